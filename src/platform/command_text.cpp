#include "platform/command_text.h"

#include "platform/letter_case.h"

#include <algorithm>

namespace platform {

namespace {

bool isBlank(QChar c)
{
    return c == u' ' || c == u'\t';
}

/// One argument of a command text: its range in the text.
struct Piece
{
    qsizetype from;
    qsizetype to;
};

QList<Piece> pieces(const QString &text, const QList<CommandText::Range> &documents)
{
    QList<Piece> result;
    qsizetype start = -1;
    auto document = documents.begin();
    qsizetype i = 0;
    // Behind the text's last character stand only empty documents, which make no piece.
    while (i < text.size()) {
        if (document != documents.end() && document->from == i) {
            if (document->length > 0 && start < 0)
                start = i;
            i += document->length;
            ++document;
            continue;
        }
        if (isBlank(text[i])) {
            if (start >= 0)
                result.append({start, i});
            start = -1;
        } else if (start < 0) {
            start = i;
        }
        ++i;
    }
    if (start >= 0)
        result.append({start, text.size()});
    return result;
}

} // namespace

CommandText CommandText::document(const QString &name)
{
    CommandText result(name);
    result.documents_.append({0, name.size()});
    return result;
}

CommandText CommandText::upperCased() const
{
    CommandText result(*this);
    result.text_ = UCase(text_);
    return result;
}

QStringList CommandText::arguments(const std::function<QString(const QString &document)> &replace) const
{
    if (replace)
        return replaced(replace).arguments();
    QStringList result;
    const auto all = pieces(text_, documents_);
    for (const Piece &piece : all)
        result.append(text_.mid(piece.from, piece.to - piece.from));
    return result;
}

CommandText CommandText::replaced(const std::function<QString(const QString &document)> &replace) const
{
    CommandText result;
    qsizetype done = 0;
    for (const Range &range : documents_) {
        result += text_.mid(done, range.from - done);
        const QString name = text_.mid(range.from, range.length);
        result += document(name.isEmpty() ? name : replace(name));
        done = range.from + range.length;
    }
    return result += text_.mid(done);
}

QString CommandText::quoted() const
{
    QString result;
    qsizetype done = 0;
    const auto all = pieces(text_, documents_);
    for (const Piece &piece : all) {
        const QString argument = text_.mid(piece.from, piece.to - piece.from);
        result += QStringView(text_).mid(done, piece.from - done);
        done = piece.to;
        if (!std::any_of(argument.begin(), argument.end(), isBlank)) {
            result += argument;
            continue;
        }
        result += u'"' + argument;
        // A backslash before the closing quote would escape it. The blank ends their row at the latest.
        for (qsizetype i = argument.size() - 1; argument[i] == u'\\'; --i)
            result += u'\\';
        result += u'"';
    }
    result += QStringView(text_).mid(done);
    return result;
}

CommandText &CommandText::operator+=(const CommandText &other)
{
    const qsizetype shift = text_.size();
    text_ += other.text_;
    for (const Range &range : other.documents_)
        documents_.append({shift + range.from, range.length});
    return *this;
}

QString Start::text() const
{
    if (verb.isEmpty())
        return file + parameters.text();
    return parameters.text().isEmpty() ? file : file + u' ' + parameters.text();
}

} // namespace platform
