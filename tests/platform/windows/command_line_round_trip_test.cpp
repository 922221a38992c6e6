// What a program sees of its command line, through ten thousand real starts: nothing is changed on the way.

#include "echo_fixture.h"
#include "platform/argument_forms.h"
#include "printing.h"

#include <QCoreApplication>

#include <map>
#include <random>

#include <shellapi.h>

using namespace Qt::StringLiterals;
using platform::CommandText;
using platform::Start;
using platform_tests::Echo;

namespace {

/// A start with the command line that it must lead to, put together beside it piece by piece.
struct Expected
{
    Start start;
    QString parameters; ///< as the program must see them
    QStringList documents;
    QList<int> places;   ///< the argument that each document is, counted from the parameters' first
    bool isClean = true; ///< no quote of the text joins one argument with the next
};

/// Makes starts up; the same ones in every run.
class Composer
{
public:
    explicit Composer(unsigned seed) : random_(seed) {}

    unsigned upTo(unsigned most) { return static_cast<unsigned>(random_() % (most + 1)); }

    Expected parameters()
    {
        Expected result;
        const unsigned count = upTo(6);
        for (unsigned i = 0; i < count; ++i) {
            add(result, blanks());
            if (upTo(1) == 0)
                addDocument(result, static_cast<int>(i));
            else
                addText(result);
        }
        if (upTo(4) == 0)
            add(result, blanks());
        return result;
    }

private:
    static void add(Expected &result, const QString &text)
    {
        result.start.parameters += text;
        result.parameters += text;
    }

    QString blanks()
    {
        QString text(1 + upTo(2), u' ');
        if (upTo(9) == 0)
            text += u'\t';
        return text;
    }

    QString some(const QStringList &atoms, unsigned most)
    {
        QString text;
        for (unsigned i = 1 + upTo(most); i > 0; --i)
            text += atoms[static_cast<qsizetype>(upTo(static_cast<unsigned>(atoms.size()) - 1))];
        return text;
    }

    // Switches and whatever else a command is made of: as it is, whatever it holds.
    void addText(Expected &result)
    {
        static const QStringList atoms{u"/T"_s,     u"/D"_s, u"-x"_s,  u"abc"_s, u"\""_s,   u"\\"_s,
                                       u"\\\\\""_s, u"%"_s,  u"^"_s,   u"&"_s,   u"|"_s,    u"<>"_s,
                                       u"'"_s,      u"ä"_s,  u"🏃"_s,   u";"_s,   u"%OS%"_s, u"="_s,
                                       u","_s,      u"("_s,  u"бег"_s, u"*"_s};
        const QString text = some(atoms, 5);
        result.isClean = result.isClean && !text.contains(u'"');
        add(result, text);
    }

    // A document, perhaps right behind a switch: in quotes where it holds a blank, and the backslashes before
    // the closing quote twice.
    void addDocument(Expected &result, int place)
    {
        static const QStringList atoms{u"walk"_s, u" "_s,       u"  "_s, u"\t"_s,      u"C:\\"_s, u"\\"_s,
                                       u"\\\\"_s, u".dg"_s,     u"ä"_s,  u"%"_s,       u"%OS%"_s, u"^"_s,
                                       u"&"_s,    u"e\u0301"_s, u"🏃"_s,  u"τρέξιμο"_s, u"-"_s,    u"'"_s,
                                       u"="_s,    u";"_s,       u"~1"_s};
        const QString name = some(atoms, 6);
        const QString prefix = upTo(4) == 0 ? u"/F"_s : QString();
        result.start.parameters += prefix + CommandText::document(name);
        result.documents.append(prefix + name);
        result.places.append(place);
        if (!name.contains(u' ') && !name.contains(u'\t')) {
            result.parameters += prefix + name;
            return;
        }
        qsizetype backslashes = 0;
        while (backslashes < name.size() && name[name.size() - 1 - backslashes] == u'\\')
            ++backslashes;
        result.parameters += u'"' + prefix + name + QString(backslashes, u'\\') + u'"';
    }

    std::mt19937 random_;
};

QStringList argumentsOf(const QString &commandLine)
{
    int count = 0;
    wchar_t **arguments = ::CommandLineToArgvW(platform::host::wide(commandLine).c_str(), &count);
    QStringList result;
    for (int i = 0; i < count; ++i)
        result.append(QString::fromWCharArray(arguments[i]));
    ::LocalFree(arguments);
    return result;
}

class CommandLineRoundTrip : public platform_tests::WindowsStarts
{
protected:
    CommandLineRoundTrip()
    {
        for (const QString &program : names)
            install(program);
        files.changeDrive(base);
        files.changeDirectory(base);
    }

    void startOne(int number, Start start)
    {
        const support::SystemVariable variable(u"ECHO_NUMBER"_s, QString::number(number));
        start.directory = base;
        result = startUnlessLost(start);
        EXPECT_EQ(result.failure, QString())
            << number << ' ' << platform::windowsCommandLine(start).toStdString();
        if (!result.failure.isEmpty())
            return;
        constexpr size_t AtOnce = 4;
        ++started;
        if (started > AtOnce)
            waitForEnds(started - AtOnce);
    }

    std::map<int, Echo> echoes()
    {
        waitForEnds(started);
        std::map<int, Echo> all;
        for (const Echo &echo : records())
            all[echo.number.toInt()] = echo;
        return all;
    }

    static void expectDocuments(const Expected &expected, const QString &commandLine)
    {
        if (!expected.isClean)
            return;
        const QStringList arguments = argumentsOf(commandLine);
        for (qsizetype i = 0; i < expected.documents.size(); ++i)
            EXPECT_EQ(arguments.value(1 + expected.places[i]), expected.documents[i])
                << commandLine.toStdString();
    }

    const QStringList names{u"plain.exe"_s, u"with blank.exe"_s, u"Program Files\\kv & ä 🏃.exe"_s,
                            u"bin\\100%.exe"_s, u"bin\\it's;a,b=c^d.exe"_s};
    size_t started = 0;
};

} // namespace

TEST_F(CommandLineRoundTrip, changes_nothing_of_ten_thousand_direct_starts)
{
    constexpr int Count = 10'000;
    Composer composer(20261122);
    std::vector<Expected> all;
    std::vector<QString> lines;
    for (int i = 0; i < Count && !HasFailure(); ++i) {
        Expected expected = composer.parameters();
        const QString name = names[static_cast<qsizetype>(composer.upTo(4))];
        expected.start.file = composer.upTo(1) == 0 ? at(name) : u".\\"_s + name;
        const bool isQuoted = expected.start.file.contains(u' ');
        lines.push_back((isQuoted ? u'"' + expected.start.file + u'"' : expected.start.file)
                        + expected.parameters);
        startOne(i, expected.start);
        all.push_back(std::move(expected));
    }
    const std::map<int, Echo> got = echoes();
    EXPECT_EQ(records().size(), all.size());
    ASSERT_EQ(got.size(), all.size());
    for (size_t i = 0; i < all.size() && !HasFailure(); ++i) {
        const Echo &echo = got.at(static_cast<int>(i));
        EXPECT_EQ(echo.commandLine, lines[i]);
        EXPECT_EQ(echo.directory, base);
        expectDocuments(all[i], echo.commandLine);
    }
}

TEST_F(CommandLineRoundTrip, changes_nothing_of_the_parameters_of_five_hundred_opens)
{
    constexpr int Count = 500;
    Composer composer(20261123);
    std::vector<Expected> all;
    for (int i = 0; i < Count && !HasFailure(); ++i) {
        Expected expected = composer.parameters();
        expected.start.verb = u"open"_s;
        // Wine takes a part of a path between percent signs for a variable.
        expected.start.file = at(names[static_cast<qsizetype>(composer.upTo(2))]);
        startOne(i, expected.start);
        all.push_back(std::move(expected));
    }
    const std::map<int, Echo> got = echoes();
    EXPECT_EQ(records().size(), all.size());
    ASSERT_EQ(got.size(), all.size());
    for (size_t i = 0; i < all.size() && !HasFailure(); ++i) {
        const Echo &echo = got.at(static_cast<int>(i));
        const QString program = u'"' + all[i].start.file + u'"';
        // The system puts the program in front, and a blank of its own behind it.
        ASSERT_EQ(echo.commandLine.left(program.size()), program);
        EXPECT_EQ(echo.commandLine.mid(program.size()).trimmed(), all[i].parameters.trimmed());
        EXPECT_EQ(echo.directory, base);
        expectDocuments(all[i], echo.commandLine);
    }
}
