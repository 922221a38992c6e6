// Directories that are made and removed: names that this system keeps for itself, directories in use, and
// what else only this system has.

#include "platform/runtime_error.h"
#include "platform/windows/windows_file_system.h"
#include "printing.h"
#include "scratch_directory.h"
#include "windows_system.h"

#include <QDir>
#include <gtest/gtest.h>

#include <algorithm>
#include <functional>

#include <winioctl.h>

using namespace Qt::StringLiterals;
using platform::host::Handle;
using platform::host::WindowsFileSystem;

namespace {

class DirectoryChanges : public testing::Test
{
protected:
    QString at(const QString &name) const { return base + u'\\' + name; }

    static qint16 errorOf(const std::function<void()> &call)
    {
        try {
            call();
        } catch (const platform::RuntimeError &error) {
            return error.Number;
        }
        return 0;
    }
    static QString refusal(const std::function<void()> &call)
    {
        try {
            call();
        } catch (const platform::RuntimeError &error) {
            return QString::number(error.Number) + u' ' + error.Description;
        }
        return {};
    }

    qint16 making(const QString &name)
    {
        return errorOf([&] { files.makeDirectory(at(name)); });
    }
    QString removing(const QString &name)
    {
        return refusal([&] { files.removeDirectory(at(name)); });
    }

    QStringList names() const
    {
        return QDir(base).entryList(
            QDir::Files | QDir::Dirs | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot, QDir::Name);
    }

    bool exists(const QString &name) const
    {
        return ::GetFileAttributesW(support::longForm(at(name)).c_str()) != INVALID_FILE_ATTRIBUTES;
    }

    Handle opened(const QString &name, DWORD sharing) const
    {
        return Handle(::CreateFileW(support::longForm(at(name)).c_str(), GENERIC_READ, sharing, nullptr,
                                    OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr));
    }

    support::KeptDirectory kept;
    support::ScratchDirectory scratch{"Anna's data"};
    QString base = QString::fromUtf8(scratch.path()).replace(u'/', u'\\');
    WindowsFileSystem files;
};

} // namespace

TEST_F(DirectoryChanges, make_none_that_is_called_like_a_device)
{
    for (const QString &name :
         {u"CON"_s, u"con"_s, u"PRN"_s, u"Aux"_s, u"NUL"_s, u"nul.txt"_s, u"NUL.tar.gz"_s, u"con."_s,
          u"con "_s, u"con .txt"_s, u"COM1"_s, u"com9.dat"_s, u"COM¹"_s, u"LPT1"_s, u"lpt²"_s, u"LPT³"_s,
          u"LPT³.x"_s, u"CONIN$"_s, u"conout$"_s}) {
        EXPECT_EQ(making(name), 52) << name.toStdString();
        EXPECT_EQ(making(name + u"\\x"_s), 52) << name.toStdString();
    }
    EXPECT_EQ(names(), QStringList());
}

TEST_F(DirectoryChanges, make_those_that_are_called_nearly_like_a_device)
{
    for (const QString &name : {u"CONS"_s, u"aux1"_s, u"COM"_s, u"COM10"_s, u"LPT"_s, u"null"_s, u"x.con"_s,
                                u"x con"_s, u"COM⁴"_s, u"NUL1.txt"_s}) {
        EXPECT_EQ(making(name), 0) << name.toStdString();
        EXPECT_EQ(names(), QStringList{name});
        EXPECT_EQ(removing(name), QString());
    }
}

TEST_F(DirectoryChanges, make_none_with_a_character_that_no_name_may_hold)
{
    for (const QString &name : {u"a<b"_s, u"a>b"_s, u"a\"b"_s, u"a|b"_s, u"a?b"_s, u"a*b"_s, u"a/b"_s,
                                u"a\nb"_s, u"a\u0001b"_s, u"\tb"_s, u"a:b"_s, u"a\u001F"_s}) {
        EXPECT_EQ(making(name), 52) << name.toStdString();
        EXPECT_EQ(making(u"x\\"_s + name), 52) << name.toStdString();
    }
    EXPECT_EQ(names(), QStringList());
}

// As everywhere on this system. What would be left empty is no name, and nobody could remove such a
// directory.
TEST_F(DirectoryChanges, take_blanks_and_dots_at_the_end_of_a_name_for_none)
{
    for (const QString &name : {u"new."_s, u"new "_s, u"new..."_s, u"new . ."_s, u"new.\\"_s}) {
        EXPECT_EQ(making(name), 0) << name.toStdString();
        EXPECT_EQ(names(), QStringList{u"new"_s}) << name.toStdString();
        EXPECT_EQ(making(u"new"_s), 75);
        EXPECT_EQ(making(name), 75);
        EXPECT_EQ(removing(u"new"_s), QString());
    }
}

TEST_F(DirectoryChanges, make_none_whose_name_is_nothing_but_blanks_and_dots)
{
    for (const QString &name : {u"..."_s, u"...."_s, u" "_s, u"   "_s, u". ."_s, u" ."_s, u".. "_s}) {
        EXPECT_NE(making(name), 0) << '"' << name.toStdString() << '"';
        EXPECT_EQ(names(), QStringList());
        ::RemoveDirectoryW(support::longForm(at(name)).c_str());
    }
}

TEST_F(DirectoryChanges, make_names_outside_the_code_page)
{
    for (const QString &name : {u"🏃"_s, u"бег"_s, u"τρέξιμο"_s, u"e\u0301"_s, u"\u00E9"_s,
                                u"Anna & Bob's (100%) ^x"_s, u" leading"_s, u"a.b.c"_s, u".hidden"_s}) {
        EXPECT_EQ(making(name), 0) << name.toStdString();
        EXPECT_EQ(names(), QStringList{name});
        EXPECT_EQ(making(name.toUpper()), 75) << name.toStdString();
        EXPECT_EQ(removing(name), QString()) << name.toStdString();
    }
}

TEST_F(DirectoryChanges, work_beyond_260_characters)
{
    QString deep;
    for (int i = 0; i < 7; ++i) {
        deep += (i == 0 ? QString() : u"\\"_s) + QString(60, u'n');
        EXPECT_EQ(making(deep), 0) << i;
    }
    EXPECT_TRUE(exists(deep));
    EXPECT_GT(at(deep).size(), 400);
    while (!deep.isEmpty()) {
        EXPECT_EQ(removing(deep), QString());
        deep.chop(deep.size() > 60 ? 61 : 60);
    }
    EXPECT_EQ(names(), QStringList());
    EXPECT_NE(making(QString(256, u'n')), 0) << "no single name may be that long";
}

TEST_F(DirectoryChanges, remove_none_that_is_in_use)
{
    files.makeDirectory(at(u"Sub"_s));
    for (DWORD sharing : {0U, 1U, 3U}) {
        const Handle user = opened(u"Sub"_s, sharing);
        ASSERT_TRUE(user.isValid());
        EXPECT_EQ(removing(u"Sub"_s), u"75 The system uses it"_s) << sharing;
        EXPECT_TRUE(exists(u"Sub"_s));
    }
    EXPECT_EQ(removing(u"Sub"_s), QString());
}

TEST_F(DirectoryChanges, remove_the_directory_that_the_panel_was_started_in)
{
    files.makeDirectory(at(u"Sub"_s));
    ::SetCurrentDirectoryW(platform::host::wide(at(u"Sub"_s)).c_str());
    WindowsFileSystem started;
    EXPECT_EQ(started.currentDirectory(), at(u"Sub"_s));
    EXPECT_EQ(refusal([&] { started.removeDirectory(at(u"Sub"_s)); }), QString());
    EXPECT_EQ(names(), QStringList());
}

TEST_F(DirectoryChanges, remove_a_directory_by_its_exact_name_alone)
{
    files.makeDirectory(at(u"Long Name of Läufer"_s));
    for (const QString &name : {u"long name of Läufer"_s, u"LONG NAME OF LÄUFER"_s, u"Long Name of Läufer."_s,
                                u"Long Name of Läufer "_s, u"Long Name of LäuFer"_s})
        EXPECT_EQ(removing(name).left(2), u"76"_s) << name.toStdString();
    for (const QString &name : {u"Long Name of L*"_s, u"Long Name of L?ufer"_s, u"Long Name of Läufe<"_s})
        EXPECT_EQ(removing(name).left(2), u"52"_s) << name.toStdString();
    const std::wstring name = support::longForm(at(u"Long Name of Läufer"_s));
    const QString shortName = platform::host::textOf(
        [&name](wchar_t *buffer, DWORD size) { return ::GetShortPathNameW(name.c_str(), buffer, size); });
    if (!shortName.endsWith(u"Läufer")) {
        EXPECT_EQ(removing(shortName.section(u'\\', -1)), u"76 Path not found"_s) << shortName.toStdString();
    }
    EXPECT_TRUE(exists(u"Long Name of Läufer"_s));
    EXPECT_EQ(removing(u"Long Name of Läufer"_s), QString());
}

TEST_F(DirectoryChanges, remove_an_empty_directory_that_is_hidden)
{
    files.makeDirectory(at(u"Sub"_s));
    ::SetFileAttributesW(support::longForm(at(u"Sub"_s)).c_str(), FILE_ATTRIBUTE_HIDDEN);
    EXPECT_EQ(removing(u"Sub"_s), QString());
}

TEST_F(DirectoryChanges, keep_what_holds_a_hidden_file)
{
    files.makeDirectory(at(u"Sub"_s));
    scratch.makeFile("Sub\\desktop.ini");
    ::SetFileAttributesW(support::longForm(at(u"Sub\\desktop.ini"_s)).c_str(),
                         FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM);
    EXPECT_EQ(removing(u"Sub"_s), u"75 It is not empty"_s);
}

TEST_F(DirectoryChanges, make_nothing_in_a_directory_that_has_gone)
{
    files.makeDirectory(at(u"Sub"_s));
    files.changeDrive(base);
    files.changeDirectory(at(u"Sub"_s));
    scratch.remove("Sub");
    EXPECT_EQ(errorOf([&] { files.makeDirectory(u"new"_s); }), 76);
    EXPECT_EQ(errorOf([&] { files.removeDirectory(u"new"_s); }), 76);
    EXPECT_EQ(names(), QStringList());
}

TEST_F(DirectoryChanges, remove_nothing_that_a_link_stands_for)
{
    scratch.makeDirectory("target");
    const bool isLinked =
        ::CreateSymbolicLinkW(support::longForm(at(u"link"_s)).c_str(),
                              support::longForm(at(u"target"_s)).c_str(), SYMBOLIC_LINK_FLAG_DIRECTORY | 2U)
        != 0;
    // Wine says that it has made one.
    if (!isLinked || !exists(u"link"_s))
        GTEST_SKIP() << "this system makes no links to directories";
    EXPECT_EQ(removing(u"link"_s), u"75 It is a link to another directory"_s);
    EXPECT_TRUE(exists(u"link"_s));
    EXPECT_TRUE(exists(u"target"_s));
    EXPECT_EQ(making(u"link"_s), 75);
}

TEST_F(DirectoryChanges, remove_nothing_that_a_junction_stands_for)
{
    struct JunctionTarget
    {
        DWORD tag;
        WORD size, reserved;
        WORD targetStart, targetSize, nameStart, nameSize;
        wchar_t text[1'000];
    };
    scratch.makeDirectory("target");
    scratch.makeDirectory("junction");
    const std::wstring target = L"\\??\\" + platform::host::wide(at(u"target"_s));
    const auto bytes = static_cast<WORD>(target.size() * sizeof(wchar_t));
    JunctionTarget data = {IO_REPARSE_TAG_MOUNT_POINT, WORD(bytes + 12), 0, 0, bytes, WORD(bytes + 2), 0, {}};
    std::copy(target.begin(), target.end(), data.text);
    bool isMade = false;
    {
        const Handle junction(
            ::CreateFileW(support::longForm(at(u"junction"_s)).c_str(), GENERIC_WRITE, 7, nullptr,
                          OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS | FILE_FLAG_OPEN_REPARSE_POINT, nullptr));
        DWORD written = 0;
        isMade = ::DeviceIoControl(junction.get(), FSCTL_SET_REPARSE_POINT, &data, bytes + 20U, nullptr, 0,
                                   &written, nullptr)
                 != 0;
    }
    if (!isMade)
        GTEST_SKIP() << "this system makes no junctions";
    EXPECT_EQ(removing(u"junction"_s), u"75 It is a link to another directory"_s);
    EXPECT_EQ(making(u"junction"_s), 75);
    ::RemoveDirectoryW(support::longForm(at(u"junction"_s)).c_str());
    EXPECT_TRUE(exists(u"target"_s));
}
