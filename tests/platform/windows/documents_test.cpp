// Documents, folders and addresses that the system opens with what is associated with them: for the time of a
// test, the echo program.

#include "echo_fixture.h"
#include "platform/windows/host_files.h"
#include "printing.h"

using namespace Qt::StringLiterals;
using platform::Show;
using platform::Start;
using platform::Target;
using platform_tests::Echo;
using support::Association;

namespace {

class Documents : public platform_tests::WindowsStarts
{
protected:
    QString echoing() const { return u'"' + at(u"Program Files\\Kinemati.exe"_s) + u"\" \"%1\""_s; }
    QString echoOf(const QString &argument) const
    {
        return u'"' + at(u"Program Files\\Kinemati.exe"_s) + u"\" \""_s + argument + u'"';
    }

    const Association extension{u".kvtest"_s, u"kvtest.test"_s};
    const Association command{u"kvtest.test\\shell\\open\\command"_s, echoing()};
};

} // namespace

TEST_F(Documents, are_opened_by_what_is_associated_with_them_by_their_full_path)
{
    ASSERT_TRUE(extension.isMade() && command.isMade());
    for (const QString &name :
         {u"walk1.kvtest"_s, u"MY WALK.KVTEST"_s, u"Läufer & Co.kvtest"_s, u"🏃 бег.kvtest"_s, u"-x.kvtest"_s,
          u"e\u0301.kvtest"_s, u"a.exe.kvtest"_s, u"a;b,c=d.kvtest"_s}) {
        scratch.makeFile(name.toUtf8());
        Start start = document(name);
        start.show = Show::Maximized;
        const Echo echo = run(start);
        EXPECT_EQ(echo.commandLine, echoOf(at(name)));
        EXPECT_EQ(echo.directory, base);
        EXPECT_EQ(echo.show, u"3"_s);
        EXPECT_GT(result.value, 32);
    }
}

TEST_F(Documents, may_have_names_with_percent_signs)
{
    scratch.makeFile("100% %TEMP% %1.kvtest");
    if (support::isWine())
        GTEST_SKIP() << "Wine takes a part of a path between percent signs for a variable";
    EXPECT_EQ(run(document(u"100% %TEMP% %1.kvtest"_s)).commandLine, echoOf(at(u"100% %TEMP% %1.kvtest"_s)));
}

TEST_F(Documents, are_found_in_their_directory_and_nowhere_else)
{
    scratch.makeFile("bin\\walk1.kvtest");
    scratch.makeDirectory("data");
    scratch.makeFile("data\\walk2.kvtest");
    files.changeDrive(base);
    files.changeDirectory(at(u"data"_s));
    const support::SystemVariable path(u"PATH"_s, at(u"bin"_s));
    expectFailure(document(u"walk1.kvtest"_s), u"it was not found"_s, 2);
    expectFailure(document(u"walk2.kvtest"_s), u"it was not found"_s, 2);
    Start start = document(u"walk2.kvtest"_s);
    start.directory = at(u"data"_s);
    EXPECT_EQ(run(start).commandLine, echoOf(at(u"data\\walk2.kvtest"_s)));
}

TEST_F(Documents, may_lie_in_directories_with_very_long_names)
{
    const QString deep = QString(50, u'n') + (u'\\' + QString(50, u'n')).repeated(5);
    scratch.makeDirectory(deep.toUtf8());
    scratch.makeFile(deep.toUtf8() + "\\walk1.kvtest");
    if (support::isWine())
        GTEST_SKIP() << "Wine opens nothing whose long path is longer than 260 characters";
    Start start = document(u"walk1.kvtest"_s);
    start.directory = at(deep);
    const Echo echo = run(start);
    const QString opened = echo.commandLine.section(u'"', 3, 3);
    EXPECT_LT(opened.size(), 260) << "its short form";
    EXPECT_EQ(platform::host::trueSpelling(opened), at(deep) + u"\\walk1.kvtest"_s);
}

TEST_F(Documents, that_another_program_keeps_for_itself_are_not_opened)
{
    scratch.makeFile("kept.kvtest");
    const platform::host::Handle keeping(::CreateFileW(support::longForm(at(u"kept.kvtest"_s)).c_str(),
                                                       GENERIC_READ, 0, nullptr, OPEN_EXISTING,
                                                       FILE_ATTRIBUTE_NORMAL, nullptr));
    expectFailure(document(u"kept.kvtest"_s), u"permission denied"_s, 5);
}

TEST_F(Documents, may_be_the_directory_itself)
{
    if (!support::isWine())
        GTEST_SKIP() << "it would open windows of the file manager";
    const Association explore(u"Folder\\shell\\explore\\command"_s, echoing());
    const Association open(u"Folder\\shell\\open\\command"_s, echoing());
    Start start = document(QString());
    start.verb = u"explore"_s;
    result = startUnlessLost(start);
    EXPECT_EQ(result.failure, QString());
    waitForEnds(1);
    ASSERT_EQ(records().size(), 1U);
    EXPECT_TRUE(records()[0].commandLine.contains(base)) << records()[0].commandLine.toStdString();
}

TEST_F(Documents, may_be_addresses_of_the_safe_web)
{
    if (!support::isWine())
        GTEST_SKIP() << "it would open pages in the browser";
    const Association browser(u"https\\shell\\open\\command"_s, echoing());
    for (const QString &address : {u"https://example.org/kinovra/kinovra.htm"_s,
                                   u"https://example.org/?a=b&c=%20#x"_s, u"https://example.org/ä"_s}) {
        Start start = open(address);
        start.target = Target::Address;
        start.directory.clear();
        EXPECT_EQ(run(start).commandLine, echoOf(address));
        start.directory = at(u"gone"_s);
        const Echo echo = run(start);
        EXPECT_EQ(echo.commandLine, echoOf(address));
        EXPECT_FALSE(echo.directory.startsWith(base)) << "a browser that stays keeps no data directory busy";
    }
}
