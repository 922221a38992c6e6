// What is no program is not started, what is no document is not opened, and the reason is said.

#include "echo_fixture.h"
#include "platform/windows/program_search.h"
#include "platform/windows/system_starts.h"
#include "printing.h"

using namespace Qt::StringLiterals;
using platform::Start;
using platform::Target;
using platform::host::isDangerousToOpen;
using support::Association;

namespace {

const QString NoProgram = u"it is not a program"_s;
const QString NotOfThisSystem = u"it is not a program of this system"_s;
const QString ProgramNoDocument = u"it is a program, not a document"_s;

/// A program for a DOS, which says that it wants Windows: the head of every program of today.
QByteArray dosProgram()
{
    QByteArray bytes("MZ\x40\0\1\0\0\0\2\0\0\1\xFF\xFF\0\0", 16);
    bytes.append(QByteArray(48, '\0'));
    bytes.append("\xB8\0\x4C\xCD\x21", 5);
    return bytes.append(QByteArray(200, '\0'));
}

/// The head of a program that goes on elsewhere.
QByteArray headOfProgram()
{
    return QByteArray("MZ", 2) + QByteArray(58, '\0') + QByteArray("\x40\0\0\0", 4)
           + QByteArray("PE\0\0\x64\x86", 6);
}

class RefusedStarts : public platform_tests::WindowsStarts
{
protected:
    void expectRefusal(const QString &name, const QString &why, double value)
    {
        expectFailure(direct(at(name), u" x"_s), why, 0);
        expectFailure(open(at(name), u"x"_s), why, value);
    }

    // What is started after all is waited for, so that it keeps nothing busy.
    void expectRefusedDocument(const QString &name, const QString &why)
    {
        const size_t before = ends.size();
        EXPECT_TRUE(isDangerousToOpen(name)) << name.toStdString();
        expectFailure(document(name), why, 5);
        if (result.failure.isEmpty())
            waitForEnds(before + 1);
        EXPECT_TRUE(records().empty()) << name.toStdString() << " has run";
        scratch.remove("record");
    }
};

} // namespace

TEST_F(RefusedStarts, are_those_of_what_is_not_there)
{
    expectRefusal(u"missing.exe"_s, u"it was not found"_s, 2);
    expectRefusal(u"nowhere\\missing.exe"_s, u"it was not found"_s, 2);
    expectRefusal(u"C:\\x.exe"_s, u"bad file name or number"_s, 2);
    expectFailure(direct(u"Q:\\x.exe"_s), u"device unavailable"_s, 0);
    expectFailure(direct(u"\\\\server\\share\\x.exe"_s), u"path not found"_s, 0);
    expectFailure(direct(QString()), u"it was not found"_s, 0);
}

TEST_F(RefusedStarts, are_those_of_what_is_no_program)
{
    scratch.makeFile("text.exe", "not a program");
    scratch.makeFile("empty.exe", QByteArray());
    scratch.makeFile("short.exe", "M");
    scratch.makeDirectory("folder.exe");
    for (const QString &name :
         {u"text.exe"_s, u"empty.exe"_s, u"short.exe"_s, u"folder.exe"_s, u"folder.exe\\"_s})
        expectRefusal(name, NoProgram, 11);
}

TEST_F(RefusedStarts, are_those_of_programs_that_are_cut_off)
{
    install(u"whole.exe"_s);
    const QByteArray whole = scratch.read("whole.exe");
    scratch.makeFile("head.exe", "MZ");
    scratch.makeFile("start.exe", whole.left(100));
    scratch.makeFile("half.exe", whole.left(600));
    scratch.makeFile("signature.exe", headOfProgram());
    for (const QString &name : {u"head.exe"_s, u"start.exe"_s, u"half.exe"_s, u"signature.exe"_s}) {
        for (const Start &start : {direct(at(name)), open(at(name))}) {
            result = startUnlessLost(start);
            EXPECT_TRUE(result.failure == NotOfThisSystem || result.failure == NoProgram)
                << name.toStdString() << ": " << result.failure.toStdString();
            EXPECT_EQ(result.value, start.verb.isEmpty() ? 0 : 11) << name.toStdString();
        }
    }
}

TEST_F(RefusedStarts, are_those_of_programs_for_another_system)
{
    scratch.makeFile("old.exe", dosProgram());
    expectRefusal(u"old.exe"_s, NotOfThisSystem, 11);
    // A program of 16 bits for Windows begins in the same way.
    QByteArray wide = headOfProgram();
    wide.replace("PE", "NE");
    scratch.makeFile("old windows.exe", wide + QByteArray(500, '\0'));
    expectRefusal(u"old windows.exe"_s, NotOfThisSystem, 11);
}

TEST_F(RefusedStarts, are_those_of_texts_for_a_shell)
{
    for (const char *name : {"go.bat", "go.cmd", "go.js", "go.vbs", "go.com", "go.pif", "go.ps1", "go.lnk"}) {
        scratch.makeFile(name, "echo x>\"%ECHO_FILE%\"\r\n");
        expectRefusal(QString::fromLatin1(name), NoProgram, 11);
    }
}

// "MZ" is how programs begin, but also a text.
TEST_F(RefusedStarts, are_those_of_texts_for_a_shell_that_begin_like_a_program)
{
    for (const char *name : {"mz.bat", "mz.cmd", "mz.js"}) {
        scratch.makeFile(name, "MZ=1;\r\necho x>\"%ECHO_FILE%\"\r\n" + QByteArray(200, ' '));
        for (const Start &start :
             {direct(at(QString::fromLatin1(name))), open(at(QString::fromLatin1(name)))}) {
            result = startUnlessLost(start);
            EXPECT_TRUE(result.failure == NotOfThisSystem || result.failure == NoProgram)
                << name << ": " << result.failure.toStdString();
            EXPECT_EQ(result.value, start.verb.isEmpty() ? 0 : 11) << name;
            if (result.failure.isEmpty())
                waitForEnds(ends.size() + 1);
        }
    }
    EXPECT_FALSE(scratch.has("record")) << "it has run";
}

TEST_F(RefusedStarts, are_those_of_programs_that_may_not_be_read)
{
    install(u"kept.exe"_s);
    const platform::host::Handle keeping(::CreateFileW(support::longForm(at(u"kept.exe"_s)).c_str(),
                                                       GENERIC_READ | GENERIC_WRITE, 0, nullptr,
                                                       OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
    ASSERT_TRUE(keeping.isValid());
    expectRefusal(u"kept.exe"_s, u"permission denied"_s, 5);
}

TEST_F(RefusedStarts, are_those_of_command_lines_that_are_too_long)
{
    const QString program = at(u"Program Files\\Kinemati.exe"_s);
    const QString longest(20'000, u'x');
    EXPECT_EQ(run(direct(program, u' ' + longest)).commandLine, u'"' + program + u"\" "_s + longest);
    if (support::isWine())
        GTEST_SKIP() << "Wine knows no longest command line";
    expectFailure(direct(program, u" "_s + QString(33'000, u'x')), u"its command line is too long"_s, 0);
}

TEST_F(RefusedStarts, are_those_of_documents_that_are_programs)
{
    for (const QString &name :
         {u"run.exe"_s, u"BIG.EXE"_s, u"my walk.dg.exe"_s, u"run.com"_s, u"run.scr"_s, u"run.pif"_s}) {
        install(name);
        expectRefusedDocument(name, ProgramNoDocument);
    }
    for (const QString &name :
         {u"run.bat"_s, u"run.cmd"_s, u"run.js"_s, u"run.jse"_s, u"run.vbs"_s, u"run.vbe"_s, u"run.wsf"_s,
          u"run.wsh"_s, u"run.hta"_s, u"run.lnk"_s, u"run.msi"_s, u"run.reg"_s, u"run.cpl"_s}) {
        scratch.makeFile(name.toUtf8(), "echo x>\"%ECHO_FILE%\"\r\n");
        expectRefusedDocument(name, ProgramNoDocument);
    }
}

// Blanks and dots at the end of a name do not count: it is the same file.
TEST_F(RefusedStarts, are_those_of_documents_that_are_programs_however_their_name_is_written)
{
    install(u"run.exe"_s);
    for (const QString &name : {u"run.exe."_s, u"run.exe "_s, u"run.exe.."_s, u"run.exe . ."_s}) {
        expectRefusedDocument(name, ProgramNoDocument);
    }
}

TEST_F(RefusedStarts, take_no_document_for_a_program)
{
    for (const QString &name :
         {u"walk1.dg"_s, u"manual.pdf"_s, u"About.Txt"_s, u"model.cfb"_s, u"film.avi"_s, u"film.mpg"_s,
          u"graph.plt"_s, u"graph.bmp"_s, u"no extension"_s, u"exe"_s, u"walk.exe.dg"_s, u"kinovra.htm"_s})
        EXPECT_FALSE(isDangerousToOpen(name)) << name.toStdString();
}

TEST_F(RefusedStarts, are_those_of_documents_elsewhere)
{
    const Association extension(u".kvtest"_s, u"kvtest.test"_s);
    const Association command(u"kvtest.test\\shell\\open\\command"_s,
                              u'"' + at(u"Program Files\\Kinemati.exe"_s) + u"\" \"%1\""_s);
    scratch.makeFile("bin\\walk1.kvtest");
    scratch.makeDirectory("folder.kvtest");
    const QString notFound = u"it was not found"_s;
    expectFailure(document(u"missing.kvtest"_s), notFound, 2);
    for (const QString &name : {u"bin\\walk1.kvtest"_s, u"bin/walk1.kvtest"_s, u".\\bin\\walk1.kvtest"_s,
                                at(u"bin\\walk1.kvtest"_s), u"C:walk1.kvtest"_s, u"."_s, u".."_s,
                                u"https://example.org/walk1.kvtest"_s, u"\\\\server\\share\\walk1.kvtest"_s})
        expectFailure(document(name), notFound, 2);
    expectFailure(document(u"folder.kvtest"_s), u"it is not a file"_s, 2);
    Start gone = document(u"walk1.kvtest"_s);
    gone.directory = at(u"gone"_s);
    expectFailure(gone, u"the directory "_s + at(u"gone"_s) + u" is gone"_s, 2);
}

TEST_F(RefusedStarts, are_those_of_documents_with_which_nothing_is_associated)
{
    scratch.makeFile("walk1.kvnothing");
    if (support::isWine())
        GTEST_SKIP() << "Wine tries to run what it cannot open";
    expectFailure(document(u"walk1.kvnothing"_s), u"this system has nothing to open it with"_s, 31);
}

TEST_F(RefusedStarts, are_those_of_addresses_that_are_not_on_the_safe_web)
{
    for (const QString &address :
         {u"http://example.org/"_s, u"ftp://example.org/"_s, u"file:///C:/windows/notepad.exe"_s,
          u"mailto:a@b"_s, u"javascript:alert(1)"_s, u"example.org"_s, QString(), u"notepad.exe"_s,
          u"https:/example.org"_s, u" https://example.org"_s, u"https://example.org/a b"_s,
          u"https://example.org/\"x"_s, u"https://example.org/\n"_s, u"https://example.org/\t"_s,
          u"https://x\u00A0y"_s, at(u"Program Files\\Kinemati.exe"_s)}) {
        Start start = open(address);
        start.target = Target::Address;
        expectFailure(start, u"it is not an https address"_s, 2);
    }
}

// Most of them only a machine in trouble gives.
TEST_F(RefusedStarts, say_what_the_systems_error_means)
{
    struct Row
    {
        quint32 systemError;
        QString why;
        double value;
    };
    for (const Row &row : {Row{ERROR_FILE_NOT_FOUND, u"it was not found"_s, 2},
                           Row{ERROR_PATH_NOT_FOUND, u"it was not found"_s, 2},
                           Row{ERROR_ACCESS_DENIED, u"permission was denied"_s, 5},
                           Row{ERROR_SHARING_VIOLATION, u"permission was denied"_s, 5},
                           Row{ERROR_BAD_EXE_FORMAT, NotOfThisSystem, 11},
                           Row{ERROR_EXE_MACHINE_TYPE_MISMATCH, NotOfThisSystem, 11},
                           Row{ERROR_INVALID_EXE_SIGNATURE, NotOfThisSystem, 11},
                           Row{740, u"it asks for the rights of an administrator"_s, 5},
                           Row{ERROR_NO_ASSOCIATION, u"this system has nothing to open it with"_s, 31},
                           Row{ERROR_CANCELLED, u"it was cancelled"_s, 5},
                           Row{ERROR_FILENAME_EXCED_RANGE, u"its command line is too long"_s, 2}}) {
        const platform::host::Started started = platform::host::notStarted(row.systemError);
        EXPECT_EQ(started.failure, row.why);
        EXPECT_EQ(started.failureValue, row.value) << row.why.toStdString();
        EXPECT_FALSE(started.process.isValid());
    }
}
