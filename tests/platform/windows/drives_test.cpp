// The machine's drives: what is told of them, and a current directory for each.

#include "platform/runtime_error.h"
#include "platform/windows/drives.h"
#include "platform/windows/windows_file_system.h"
#include "printing.h"
#include "scratch_directory.h"
#include "windows_system.h"

#include <gtest/gtest.h>

#include <functional>

#include <winnetwk.h>

using namespace Qt::StringLiterals;
using platform::host::wide;
using platform::host::WindowsFileSystem;
using support::SystemVariable;

namespace {

class Drives : public testing::Test
{
protected:
    static qint16 errorOf(const std::function<void()> &call)
    {
        try {
            call();
        } catch (const platform::RuntimeError &error) {
            return error.Number;
        }
        return 0;
    }

    static QString label(const QString &root)
    {
        wchar_t text[MAX_PATH + 1] = {};
        ::GetVolumeInformationW(wide(root).c_str(), text, MAX_PATH + 1, nullptr, nullptr, nullptr, nullptr,
                                0);
        return QString::fromWCharArray(text);
    }

    static QString share(const QString &drive)
    {
        wchar_t text[1'024] = {};
        DWORD size = 1'024;
        ::WNetGetConnectionW(wide(drive).c_str(), text, &size);
        return QString::fromWCharArray(text);
    }

    /// A letter that no drive has.
    static QString freeDrive()
    {
        for (char16_t letter = u'P'; letter <= u'Y'; ++letter) {
            if ((::GetLogicalDrives() & (1U << (letter - u'A'))) == 0)
                return QChar(letter) + u":"_s;
        }
        return {};
    }

    support::KeptDirectory kept;
    support::ScratchDirectory scratch{"data"};
    QString base = QString::fromUtf8(scratch.path()).replace(u'/', u'\\');
    QString drive = base.left(2);
};

} // namespace

TEST_F(Drives, are_told_in_letter_order_with_labels_and_network_names)
{
    QStringList expected;
    for (char letter = 'a'; letter <= 'z'; ++letter) {
        const QString text = QString(QLatin1Char(letter)) + u':';
        const QString root = text.toUpper() + u'\\';
        const UINT type = ::GetDriveTypeW(wide(root).c_str());
        if ((::GetLogicalDrives() & (1U << unsigned(letter - 'a'))) == 0)
            continue;
        if (type == DRIVE_FIXED && !label(root).isEmpty())
            expected.append(text + u" ["_s + label(root) + u']');
        else if (type == DRIVE_REMOTE && !share(text).isEmpty())
            expected.append(text + u' ' + share(text));
        else
            expected.append(text);
    }
    WindowsFileSystem files;
    EXPECT_EQ(files.drives(), expected);
    EXPECT_FALSE(expected.isEmpty());
}

TEST_F(Drives, are_accepted_as_they_are_told)
{
    WindowsFileSystem files;
    files.changeDrive(base);
    files.changeDirectory(base);
    scratch.makeFile("run1.dg", "Run\n");
    const QStringList texts = files.drives();
    for (const QString &text : texts) {
        if (text.left(2).toUpper() != drive)
            continue;
        EXPECT_EQ(errorOf([&] { files.changeDrive(text); }), 0);
        // Without a label a backslash would begin a path at the root.
        const QString joint = text.size() > 2 ? u"\\"_s : QString();
        EXPECT_EQ(files.testReading(text + joint + u"run1.dg"_s), 0) << text.toStdString();
        EXPECT_EQ(errorOf([&] { files.changeDirectory(text); }), 0);
        EXPECT_EQ(files.currentDirectory(), base);
    }
}

TEST_F(Drives, that_are_not_there_are_unavailable)
{
    WindowsFileSystem files;
    const QString absent = freeDrive();
    ASSERT_FALSE(absent.isEmpty());
    EXPECT_FALSE(platform::host::hasDrive(absent[0]));
    EXPECT_FALSE(platform::host::hasDrive(u'1'));
    EXPECT_FALSE(platform::host::hasDrive(u'\u0141'));
    EXPECT_TRUE(platform::host::hasDrive(drive[0]));
    EXPECT_EQ(errorOf([&] { files.changeDrive(absent); }), 68);
    EXPECT_EQ(errorOf([&] { files.changeDirectory(absent + u"\\data"_s); }), 68);
    EXPECT_EQ(files.testReading(absent + u"\\x"_s), 68);
    for (const QString &text : {QString(), u"1:"_s, u"\\\\server\\share"_s, u"\u0141:"_s, u" c:"_s})
        EXPECT_EQ(errorOf([&] { files.changeDrive(text); }), 5) << text.toStdString();
    EXPECT_EQ(files.currentDirectory()[1], u':') << "it stays where it is";
}

TEST_F(Drives, have_the_current_directories_that_the_process_was_given)
{
    scratch.makeDirectory("Sub");
    const SystemVariable variable(u'=' + drive, base.toLower() + u"\\sub"_s);
    ::SetCurrentDirectoryW(wide(base).c_str());
    {
        WindowsFileSystem files;
        EXPECT_EQ(files.currentDirectory(), base) << "where it was started counts more";
    }
    if (drive == u"C:" && platform::host::hasDrive(u'Z')) {
        ::SetCurrentDirectoryW(L"Z:\\");
        WindowsFileSystem files;
        EXPECT_EQ(files.currentDirectory(), u"Z:\\"_s);
        scratch.makeFile("Sub\\run1.dg");
        EXPECT_EQ(files.testReading(u"C:run1.dg"_s), 0);
        files.changeDrive(u"c"_s);
        EXPECT_EQ(files.currentDirectory().toLower(), base.toLower() + u"\\sub"_s);
    }
}

TEST_F(Drives, begin_at_their_root_where_what_the_process_was_given_is_no_directory)
{
    const QString other = drive == u"Z:" ? u"C:"_s : u"Z:"_s;
    if (!platform::host::hasDrive(other[0]))
        GTEST_SKIP() << "this system has one drive alone";
    for (const QString &odd : {u""_s, u"nonsense"_s, other, u"Q:\\elsewhere"_s, u"\\\\server\\share"_s,
                               other + u"\\gone\\away"_s, other + u"\\a:b"_s, other + u"/"_s}) {
        const SystemVariable variable(u'=' + other, odd);
        ::SetCurrentDirectoryW(wide(base).c_str());
        EXPECT_EQ(errorOf([&] {
                      WindowsFileSystem files;
                      files.changeDrive(other);
                      EXPECT_EQ(files.currentDirectory(), other + u'\\') << odd.toStdString();
                  }),
                  0)
            << odd.toStdString();
    }
}

TEST_F(Drives, hand_on_their_current_directories)
{
    scratch.makeDirectory("Sub");
    const SystemVariable variable(u'=' + drive, QString());
    WindowsFileSystem files;
    files.changeDirectory(base.toUpper() + u"\\SUB"_s);
    EXPECT_EQ(SystemVariable::read(u'=' + drive), base + u"\\Sub"_s) << "as it is spelled";
    EXPECT_EQ(errorOf([&] { files.changeDirectory(base + u"\\gone"_s); }), 76);
    EXPECT_EQ(SystemVariable::read(u'=' + drive), base + u"\\Sub"_s);
}

TEST_F(Drives, hand_on_their_root_where_their_current_directory_has_gone)
{
    scratch.makeDirectory("Sub");
    const SystemVariable variable(u'=' + drive, QString());
    WindowsFileSystem files;
    files.changeDrive(drive);
    files.changeDirectory(base + u"\\Sub"_s);
    scratch.remove("Sub");
    files.changeDrive(drive);
    EXPECT_EQ(files.currentDirectory(), drive + u'\\');
    EXPECT_EQ(SystemVariable::read(u'=' + drive), drive + u'\\');
}

TEST_F(Drives, leave_the_process_in_a_directory_of_the_system)
{
    ::SetCurrentDirectoryW(wide(base).c_str());
    WindowsFileSystem files;
    files.changeDrive(base);
    files.changeDirectory(base);
    const QString home = platform::host::textOf(
        [](wchar_t *buffer, DWORD size) { return ::GetCurrentDirectoryW(size, buffer); });
    const QString system = platform::host::textOf(
        [](wchar_t *buffer, DWORD size) { return ::GetSystemDirectoryW(buffer, size); });
    EXPECT_EQ(home.toLower(), system.toLower());
}

TEST_F(Drives, are_named_in_any_case)
{
    WindowsFileSystem files;
    files.changeDirectory(base.left(1).toLower() + base.mid(1));
    files.changeDrive(drive.toLower());
    EXPECT_EQ(files.currentDirectory(), base);
}
