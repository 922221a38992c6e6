#pragma once

#include <QList>
#include <QString>
#include <QStringList>

#include <functional>
#include <utility>

namespace platform {

/// A piece of a command line exactly as it was composed, blanks included. Beside the text it knows which
/// pieces are documents (a trial, a file name), so that a host can quote them where blanks need it, or pass
/// each as part of one argument.
class CommandText
{
public:
    CommandText() = default;
    CommandText(QString switches) // NOLINT(google-explicit-constructor): switches are plain text
        : text_(std::move(switches))
    {}
    CommandText(const char *switches) // NOLINT(google-explicit-constructor)
        : text_(QString::fromUtf8(switches))
    {}

    /// A document: `name` as it stands, one piece whatever it holds.
    static CommandText document(const QString &name);

    QString text() const { return text_; }

    /// The same command in upper case; the documents stay where they are.
    CommandText upperCased() const;

    /// The pieces between the blanks, as a program sees its arguments; a document is never taken apart.
    /// `replace`, where it is given, says what stands for each document.
    QStringList arguments(const std::function<QString(const QString &document)> &replace = {}) const;

    /// The text with double quotes around the pieces that hold a document with blanks.
    QString quoted() const;

    CommandText &operator+=(const CommandText &other);
    friend CommandText operator+(CommandText left, const CommandText &right) { return left += right; }
    bool operator==(const CommandText &other) const = default;

    /// Where documents stand in the text.
    struct Range
    {
        qsizetype from;
        qsizetype length;
        bool operator==(const Range &other) const = default;
    };
    QList<Range> documents() const { return documents_; }

private:
    CommandText replaced(const std::function<QString(const QString &document)> &replace) const;

    QString text_;
    QList<Range> documents_;
};

/// How a started program's window appears.
enum class Show : qint16 {
    Normal = 1, ///< normal and focused
    Maximized = 3,
    Shown = 5 ///< at its current size and position
};

/// What `Start::file` names.
enum class Target {
    Program,
    Document, ///< of `Start::directory` and found nowhere else, for whatever the system opens it with; an
              ///< empty name is that directory itself, which "explore" shows in the file manager
    Address   ///< of the web, beginning with "https://"
};

/// What a command wants to be started: a plain value that tests compare.
struct Start
{
    QString verb =
        {}; ///< "open" or "explore" for the operating system, empty for a direct start of a program
    QString file = {};           ///< the program, or the document of "open"
    CommandText parameters = {}; ///< of a direct start: what follows the program, leading blank included
    QString directory = {};
    Show show = Show::Normal;
    qint64 owner = 0;      ///< handle of the window that asks the operating system
    bool isViewer = false; ///< the program is no part of the package: it only shows the document
    Target target = Target::Program;

    bool operator==(const Start &other) const = default;

    /// The composed text: program and parameters, with one blank between them where the operating system puts
    /// it.
    QString text() const;
};

} // namespace platform
