// Where programs and documents are looked for, and what is not started: real files, real starts.

#include "echo_fixture.h"
#include "platform/path_language.h"
#include "platform/windows/program_search.h"
#include "printing.h"

using namespace Qt::StringLiterals;
using platform::CommandText;
using platform::Start;
using platform::host::findProgram;
using platform::host::successorOf;
using support::Association;
using support::SystemVariable;

namespace {

class ProgramSearch : public platform_tests::WindowsStarts
{
protected:
    ProgramSearch()
    {
        scratch.makeDirectory("data");
        data = at(u"data"_s);
        files.changeDrive(base);
        files.changeDirectory(data);
    }

    static QString systemDirectory()
    {
        return platform::host::textOf(
            [](wchar_t *buffer, DWORD size) { return ::GetSystemDirectoryW(buffer, size); });
    }

    Start inData(Start start) const
    {
        start.directory = data;
        return start;
    }

    QString data;
};

} // namespace

TEST_F(ProgramSearch, finds_a_bare_name_in_the_system_directories_first)
{
    install(u"bin\\notepad.exe"_s);
    install(u"bin\\my-editor.exe"_s);
    const SystemVariable path(u"PATH"_s, at(u"bin"_s));
    EXPECT_EQ(findProgram(u"Notepad.EXE"_s, data).toLower(),
              (systemDirectory() + u"\\notepad.exe"_s).toLower());
    EXPECT_EQ(findProgram(u"my-editor.exe"_s, data), at(u"bin\\my-editor.exe"_s));
    EXPECT_EQ(findProgram(u"MY-EDITOR.EXE"_s, data).toLower(), at(u"bin\\my-editor.exe"_s).toLower());
    EXPECT_EQ(findProgram(u"my-editor"_s, data), QString()) << "a name is what it says";
    EXPECT_EQ(findProgram(u"missing.exe"_s, data), QString());
    EXPECT_EQ(findProgram(QString(), data), QString());
    EXPECT_EQ(findProgram(u"."_s, data), QString());
}

TEST_F(ProgramSearch, takes_the_path_as_it_is_written)
{
    install(u"bin\\my-editor.exe"_s);
    scratch.makeDirectory("empty");
    const QString bin = at(u"bin"_s);
    for (const QString &path :
         {bin + u'\\', u'"' + bin + u'"', u"  "_s + bin + u"  "_s, QString(bin).replace(u'\\', u'/'),
          u";;"_s + bin + u";"_s, at(u"gone"_s) + u';' + bin, at(u"empty"_s) + u';' + bin,
          u"Q:\\gone;"_s + bin, u"\\\\server\\share;"_s + bin, u".;..;bin;"_s + bin, bin.toLower(),
          bin.toUpper(), at(u"empty\\..\\bin"_s), at(u"Program Files\\Kinemati.exe"_s) + u';' + bin}) {
        const SystemVariable variable(u"PATH"_s, path);
        EXPECT_EQ(findProgram(u"my-editor.exe"_s, data).section(u'\\', -1), u"my-editor.exe"_s)
            << path.toStdString();
    }
}

TEST_F(ProgramSearch, goes_on_behind_an_entry_of_the_path_that_is_no_directory)
{
    install(u"bin\\my-editor.exe"_s);
    for (const QString &odd :
         {u"C:\\a:b"_s, u"C:\\http://x"_s, u"C:\\*?<>|"_s, u"C:\\\\\\"_s, u"C:\\"_s + QString(4'000, u'x')}) {
        const SystemVariable variable(u"PATH"_s, odd + u';' + at(u"bin"_s));
        EXPECT_EQ(startUnlessLost(inData(direct(u"my-editor.exe"_s))).failure, QString())
            << odd.toStdString();
    }
}

TEST_F(ProgramSearch, finds_programs_in_a_very_long_path)
{
    install(u"bin\\my-editor.exe"_s);
    QString path;
    while (path.size() < 20'000)
        path += at(u"gone"_s) + QString::number(path.size()) + u';';
    const SystemVariable variable(u"PATH"_s, path + at(u"bin"_s));
    EXPECT_EQ(findProgram(u"my-editor.exe"_s, data), at(u"bin\\my-editor.exe"_s));
}

TEST_F(ProgramSearch, starts_what_was_found_by_its_full_path_and_the_composed_text)
{
    install(u"bin\\my-editor.exe"_s);
    install(u"data\\my-editor.exe"_s);
    const SystemVariable path(u"PATH"_s, at(u"bin"_s));
    EXPECT_EQ(run(inData(direct(u"my-editor.exe"_s, u" x"_s))).commandLine, u"my-editor.exe x"_s);
    EXPECT_EQ(run(inData(open(u"my-editor.exe"_s, u"x"_s))).commandLine,
              u'"' + at(u"bin\\my-editor.exe"_s) + u"\" x"_s);
}

TEST_F(ProgramSearch, takes_nothing_from_the_data_directory)
{
    install(u"data\\planted.exe"_s);
    install(u"data\\planted"_s);
    install(u"data\\planted.com"_s);
    for (const QString &path :
         {data, data + u'\\', data.toUpper(), data.toLower(), u'"' + data + u'"', u' ' + data + u' ',
          QString(data).replace(u'\\', u'/'), data + u'.', at(u"bin\\..\\data"_s), u"."_s, u".\\"_s,
          QString(), u";;"_s, u"..\\data"_s, base.left(2), base.left(2) + u'.', base.left(2) + u"..\\data"_s,
          data.mid(2)}) {
        const SystemVariable variable(u"PATH"_s, path);
        for (const QString &name : {u"planted.exe"_s, u"planted"_s, u"planted.com"_s, u"PLANTED.EXE"_s}) {
            expectFailure(inData(direct(name)), u"it was not found"_s, 0);
            expectFailure(inData(open(name)), u"it was not found"_s, 2);
        }
    }
}

TEST_F(ProgramSearch, takes_nothing_from_the_data_directory_by_its_short_name)
{
    const QString longName = at(u"a directory with a long name"_s);
    scratch.makeDirectory("a directory with a long name");
    const std::wstring name = support::longForm(longName);
    const QString shortName = platform::host::textOf(
        [&name](wchar_t *buffer, DWORD size) { return ::GetShortPathNameW(name.c_str(), buffer, size); });
    if (shortName.contains(u"long name"))
        GTEST_SKIP() << "this volume has no short names";
    install(u"a directory with a long name\\planted.exe"_s);
    const SystemVariable variable(u"PATH"_s, shortName.mid(4));
    Start start = direct(u"planted.exe"_s);
    start.directory = longName;
    expectFailure(start, u"it was not found"_s, 0);
}

// A drive letter that stands for a directory, as SUBST makes one; Wine's Z: is another one.
TEST_F(ProgramSearch, takes_nothing_from_the_data_directory_by_another_drive)
{
    install(u"data\\planted.exe"_s);
    QString other = u"W:"_s;
    if (support::isWine()) {
        const QString prefix = SystemVariable::read(u"WINECONFIGDIR"_s).value_or(QString());
        other = prefix.mid(4) + u"\\drive_c"_s + data.mid(2);
    } else {
        ASSERT_NE(::DefineDosDeviceW(0, L"W:", platform::host::wide(data).c_str()), 0);
        other += u'\\';
    }
    const SystemVariable variable(u"PATH"_s, other);
    const QString found = findProgram(u"planted.exe"_s, data);
    if (!support::isWine())
        ::DefineDosDeviceW(DDD_REMOVE_DEFINITION, L"W:", nullptr);
    ASSERT_TRUE(support::isWine() ? other.startsWith(u"Z:") : true);
    EXPECT_EQ(found, QString());
}

TEST_F(ProgramSearch, leaves_a_planted_notepad_alone)
{
    install(u"data\\notepad.exe"_s);
    const SystemVariable variable(u"PATH"_s, data);
    const QString found = findProgram(u"notepad.exe"_s, data);
    EXPECT_EQ(found.toLower(), (systemDirectory() + u"\\notepad.exe"_s).toLower());
}

TEST_F(ProgramSearch, takes_a_path_for_a_path)
{
    install(u"data\\Kv.exe"_s);
    EXPECT_EQ(run(inData(direct(u".\\Kv.exe"_s, u" x"_s))).commandLine, u".\\Kv.exe x"_s);
    EXPECT_EQ(run(inData(direct(base.left(2) + u"Kv.exe"_s, u" x"_s))).commandLine,
              base.left(2) + u"Kv.exe x"_s);
    expectFailure(inData(direct(u"data/Kv.exe"_s)), u"it was not found"_s, 0);
}

TEST_F(ProgramSearch, replaces_the_programs_that_the_system_lacks)
{
    EXPECT_EQ(successorOf(u"command.com"_s).toLower(), (systemDirectory() + u"\\cmd.exe"_s).toLower());
    EXPECT_EQ(successorOf(u"COMMAND.COM"_s).toLower(), (systemDirectory() + u"\\cmd.exe"_s).toLower());
    EXPECT_TRUE(successorOf(u"WinHlp32.EXE"_s).endsWith(u".exe", Qt::CaseInsensitive));
    EXPECT_FALSE(successorOf(u"WinHlp32.EXE"_s).contains(u"winhlp32", Qt::CaseInsensitive));
    EXPECT_EQ(successorOf(u"notepad.exe"_s), QString());
    EXPECT_EQ(successorOf(u"mplayer.exe"_s), QString());
}

TEST_F(ProgramSearch, starts_the_command_processor_for_command_com)
{
    if (!findProgram(u"command.com"_s, data).isEmpty())
        GTEST_SKIP() << "this system has a command.com";
    for (const Start &start : {inData(direct(u"COMMAND.COM"_s, u" /c exit 5"_s)),
                               inData(open(u"command.com"_s, u"/c exit 5"_s))}) {
        const size_t before = ends.size();
        EXPECT_EQ(startUnlessLost(start).failure, QString());
        waitForEnds(before + 1);
        EXPECT_EQ(ends.back().ending.code, 5);
    }
}

TEST_F(ProgramSearch, uses_a_program_that_exists_as_named)
{
    install(u"bin\\command.com"_s);
    install(u"bin\\mplayer.exe"_s);
    const SystemVariable variable(u"PATH"_s, at(u"bin"_s));
    EXPECT_EQ(run(inData(direct(u"command.com"_s, u" x"_s))).commandLine, u"command.com x"_s);
    EXPECT_EQ(run(inData(direct(u"mplayer.exe"_s, u" x"_s))).commandLine, u"mplayer.exe x"_s);
}

TEST_F(ProgramSearch, takes_no_planted_command_processor)
{
    install(u"data\\command.com"_s);
    install(u"data\\cmd.exe"_s);
    const SystemVariable variable(u"PATH"_s, data);
    const size_t before = ends.size();
    EXPECT_EQ(startUnlessLost(inData(direct(u"command.com"_s, u" /c exit 6"_s))).failure, QString());
    waitForEnds(before + 1);
    EXPECT_EQ(ends.back().ending.code, 6);
    EXPECT_TRUE(records().empty());
}

TEST_F(ProgramSearch, shows_a_film_with_the_program_that_is_associated_with_it)
{
    const Association extension(u".kvfilm"_s, u"kvfilm.test"_s);
    const Association command(u"kvfilm.test\\shell\\open\\command"_s,
                              u'"' + at(u"Program Files\\Kinemati.exe"_s) + u"\" \"%1\""_s);
    ASSERT_TRUE(extension.isMade() && command.isMade());
    scratch.makeFile("data\\my film.kvfilm");
    const Start start = inData(open(u"mplayer.exe"_s, CommandText::document(u"my film.kvfilm"_s)));
    EXPECT_EQ(run(start).commandLine,
              u'"' + at(u"Program Files\\Kinemati.exe"_s) + u"\" \""_s + data + u"\\my film.kvfilm\""_s);
    EXPECT_EQ(
        run(inData(open(u"MPLAYER.EXE"_s, CommandText::document(data + u"\\my film.kvfilm"_s)))).commandLine,
        u'"' + at(u"Program Files\\Kinemati.exe"_s) + u"\" \""_s + data + u"\\my film.kvfilm\""_s);
    expectFailure(inData(open(u"mplayer.exe"_s, CommandText::document(u"gone.kvfilm"_s))),
                  u"it was not found"_s, 2);
    expectFailure(inData(open(u"mplayer.exe"_s)), u"it was not found"_s, 2);
}

TEST_F(ProgramSearch, takes_no_program_for_a_film)
{
    install(u"data\\film.exe"_s);
    expectFailure(inData(open(u"mplayer.exe"_s, CommandText::document(u"film.exe"_s))),
                  u"it is a program, not a document"_s, 5);
    if (result.failure.isEmpty())
        waitForEnds(1);
}
