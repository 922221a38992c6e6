// What only this system's files have: short names, attributes, sharing, names without end, names of devices.

#include "platform/runtime_error.h"
#include "platform/windows/host_files.h"
#include "platform/windows/system_error.h"
#include "platform/windows/windows_file_system.h"
#include "printing.h"
#include "scratch_directory.h"
#include "windows_system.h"

#include <gtest/gtest.h>

#include <functional>

using namespace Qt::StringLiterals;
using platform::Reading;
using platform::host::Handle;
using platform::host::WindowsFileSystem;

namespace {

class WindowsFiles : public testing::Test
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

    void set(const QString &name, DWORD attributes) const
    {
        ASSERT_NE(::SetFileAttributesW(support::longForm(at(name)).c_str(), attributes), 0);
    }

    QStringList listed(const QString &pattern = u"*"_s)
    {
        return files.directory(base, Reading::Anew)->files(pattern).toList();
    }

    support::KeptDirectory kept;
    support::ScratchDirectory scratch{"Anna's data"};
    QString base = QString::fromUtf8(scratch.path()).replace(u'/', u'\\');
    WindowsFileSystem files;
};

} // namespace

TEST_F(WindowsFiles, are_not_listed_where_they_are_hidden_or_the_systems)
{
    for (const char *name :
         {"a.dg", "hidden.dg", "system.dg", "both.dg", "protected.dg", "Sub\\x.dg", "Dark\\x.dg"}) {
        if (QByteArray(name).contains('\\'))
            scratch.makeDirectory(QByteArray(name).split('\\')[0]);
        scratch.makeFile(name);
    }
    set(u"hidden.dg"_s, FILE_ATTRIBUTE_HIDDEN);
    set(u"system.dg"_s, FILE_ATTRIBUTE_SYSTEM);
    set(u"both.dg"_s, FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM);
    set(u"protected.dg"_s, FILE_ATTRIBUTE_READONLY);
    set(u"Dark"_s, FILE_ATTRIBUTE_HIDDEN);
    QStringList expected{u"a.dg"_s, u"protected.dg"_s};
    // Wine keeps no mark of a system's file that is not hidden.
    if ((::GetFileAttributesW(support::longForm(at(u"system.dg"_s)).c_str()) & FILE_ATTRIBUTE_SYSTEM) == 0)
        expected.append(u"system.dg"_s);
    EXPECT_EQ(listed(), expected);
    EXPECT_EQ(files.directory(base, Reading::Anew)->folders().toList(), QStringList{u"Sub"_s});
    EXPECT_EQ(files.directory(base, Reading::Anew)->find(u"HIDDEN.DG"), u"hidden.dg"_s) << "but it is there";
    EXPECT_EQ(files.testReading(at(u"both.dg"_s)), 0);
    EXPECT_EQ(files.testReading(at(u"Dark\\x.dg"_s)), 0);
}

TEST_F(WindowsFiles, have_short_names_by_the_system)
{
    scratch.makeFile("run1.dg");
    scratch.makeFile("a walk with a long name.digitized");
    EXPECT_EQ(files.shortName(at(u"run1.dg"_s)).toUpper(), u"RUN1.DG"_s);
    EXPECT_EQ(files.shortName(at(u"RUN1.DG"_s)).toUpper(), u"RUN1.DG"_s);
    EXPECT_EQ(errorOf([&] { files.shortName(at(u"missing.dg"_s)); }), 53);
    EXPECT_EQ(errorOf([&] { files.shortName(at(u"a walk with a long nam"_s)); }), 53);
    EXPECT_EQ(errorOf([&] { files.shortName(at(u"nowhere\\missing.dg"_s)); }), 76);
    EXPECT_EQ(errorOf([&] { files.shortName(base); }), 75);
    const QString name = files.shortName(at(u"a walk with a long name.digitized"_s));
    if (name == u"a walk with a long name.digitized")
        GTEST_SKIP() << "this volume has no short names";
    EXPECT_LE(name.size(), 12);
    EXPECT_FALSE(name.contains(u' '));
    EXPECT_FALSE(name.contains(u'\\'));
    EXPECT_EQ(name.toUpper(), name);
    EXPECT_EQ(files.testReading(at(name)), 0) << "it is another name of the same file";
    EXPECT_EQ(files.existingFile(at(name)), at(u"a walk with a long name.digitized"_s));
}

TEST_F(WindowsFiles, work_beyond_260_characters)
{
    QString deep = QString(60, u'N');
    for (int i = 0; i < 5; ++i)
        deep += u'\\' + QString(60, u'N');
    scratch.makeDirectory(deep.toUtf8());
    scratch.makeFile(deep.toUtf8() + "\\Run1.dg", "Läufer\n");
    files.changeDrive(base);
    files.changeDirectory(at(deep).toLower());
    EXPECT_EQ(files.currentDirectory(), at(deep));
    EXPECT_EQ(files.testReading(u"RUN1.DG"_s), 0);
    EXPECT_EQ(files.firstLine(u"run1.dg"_s), u"Läufer"_s);
    EXPECT_EQ(files.existingFile(u"run1.dg"_s), at(deep) + u"\\Run1.dg"_s);
    EXPECT_EQ(files.directory(at(deep), Reading::Anew)->files(u"*"_s).toList(), QStringList{u"Run1.dg"_s});
    files.copyFile(u"run1.dg"_s, u"Run2.dg"_s, platform::Replacing::Refused);
    EXPECT_EQ(files.firstLine(u"run2.dg"_s), u"Läufer"_s);
    EXPECT_EQ(files.shortName(u"run1.dg"_s).toUpper(), u"RUN1.DG"_s);
    EXPECT_TRUE(files.stamp(u"run1.dg"_s).has_value());
    EXPECT_EQ(files.hostForm(at(deep)), QString(at(deep)).replace(u'\\', u'/'));
}

TEST_F(WindowsFiles, may_be_called_by_names_outside_the_code_page)
{
    for (const QString &name : {u"🏃.dg"_s, u"бег.dg"_s, u"τρέξιμο.dg"_s, u"e\u0301.dg"_s, u"\u00E9.dg"_s,
                                u"Läufer ß.dg"_s, u"走る.dg"_s}) {
        scratch.makeFile(name.toUtf8(), "title\n");
        EXPECT_EQ(files.testReading(at(name)), 0) << name.toStdString();
        EXPECT_EQ(files.testReading(at(name).toUpper()), name.contains(u'ß') ? 53 : 0) << name.toStdString();
        EXPECT_EQ(files.existingFile(at(name)), at(name));
        EXPECT_EQ(files.firstLine(at(name)), u"title"_s);
        EXPECT_EQ(listed(), QStringList{name});
        scratch.remove(name.toUtf8());
    }
}

TEST_F(WindowsFiles, that_another_program_keeps_for_itself_may_not_be_read)
{
    scratch.makeFile("run1.dg", "title\n");
    const auto keep = [this](DWORD sharing) {
        return Handle(::CreateFileW(support::longForm(at(u"run1.dg"_s)).c_str(), GENERIC_READ | GENERIC_WRITE,
                                    sharing, nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
    };
    {
        const Handle keeping = keep(0);
        EXPECT_EQ(files.testReading(at(u"run1.dg"_s)), 70);
        EXPECT_EQ(errorOf([&] { files.firstLine(at(u"run1.dg"_s)); }), 70);
        EXPECT_EQ(files.existingFile(at(u"RUN1.DG"_s)), at(u"run1.dg"_s));
        EXPECT_TRUE(files.stamp(at(u"run1.dg"_s)).has_value());
    }
    const Handle keeping = keep(FILE_SHARE_READ);
    EXPECT_EQ(files.testReading(at(u"run1.dg"_s)), 0) << "a program that still writes it";
}

TEST_F(WindowsFiles, may_be_written_renamed_and_removed_while_they_are_read)
{
    scratch.makeFile("run1.dg", "title\n");
    const auto file = files.openFile(at(u"run1.dg"_s));
    EXPECT_NE(::MoveFileExW(support::longForm(at(u"run1.dg"_s)).c_str(),
                            support::longForm(at(u"run2.dg"_s)).c_str(), 0),
              0);
    EXPECT_EQ(file->read(100), "title\n");
}

TEST_F(WindowsFiles, are_no_devices)
{
    for (const QString &name :
         {u"CON"_s, u"NUL"_s, u"nul.dg"_s, u"COM1"_s, u"AUX"_s, u"PRN.dg"_s, u"LPT1"_s, u"CONIN$"_s}) {
        EXPECT_EQ(files.testReading(at(name)), 53) << name.toStdString();
        EXPECT_EQ(files.existingFile(at(name)), std::nullopt) << name.toStdString();
    }
    EXPECT_EQ(files.testReading(u"\\\\.\\C:"_s), 52);
    EXPECT_EQ(files.testReading(u"\\\\.\\pipe\\x"_s), 76);
    EXPECT_EQ(files.testReading(u"\\\\?\\C:\\x"_s), 52);
}

TEST_F(WindowsFiles, are_no_streams_and_no_patterns)
{
    scratch.makeFile("run1.dg", "title\n");
    EXPECT_EQ(files.testReading(at(u"run1.dg:stream"_s)), 52);
    EXPECT_EQ(files.testReading(at(u"run1.dg::$DATA"_s)), 52);
    for (const QString &name : {u"run*.dg"_s, u"run?.dg"_s, u"run1.d<"_s, u"run1.dg|"_s, u"\"run1.dg\""_s})
        EXPECT_EQ(files.testReading(at(name)), 52) << name.toStdString();
    EXPECT_EQ(errorOf([&] { files.directory(at(u"*"_s), Reading::Anew); }), 52);
    EXPECT_EQ(errorOf([&] { files.changeDirectory(at(u"..\\Anna*"_s)); }), 52);
}

TEST_F(WindowsFiles, have_names_that_end_before_blanks_and_dots)
{
    scratch.makeFile("run1.dg", "title\n");
    scratch.makeDirectory("Sub");
    for (const QString &name : {u"run1.dg."_s, u"run1.dg "_s, u"run1.dg. ."_s, u"Sub. \\..\\run1.dg"_s}) {
        EXPECT_EQ(files.testReading(at(name)), 0) << name.toStdString();
        EXPECT_EQ(files.existingFile(at(name)), at(u"run1.dg"_s)) << name.toStdString();
    }
    files.changeDrive(base);
    files.changeDirectory(at(u"Sub. "_s));
    EXPECT_EQ(files.currentDirectory(), at(u"Sub"_s));
    EXPECT_NE(errorOf([&] { files.changeDirectory(at(u"..."_s)); }), 0);
}

TEST_F(WindowsFiles, may_be_protected_and_are_read_all_the_same)
{
    scratch.makeFile("run1.dg", "title\n");
    set(u"run1.dg"_s, FILE_ATTRIBUTE_READONLY);
    EXPECT_EQ(files.testReading(at(u"run1.dg"_s)), 0);
    EXPECT_EQ(files.firstLine(at(u"run1.dg"_s)), u"title"_s);
}

TEST_F(WindowsFiles, of_a_directory_that_has_gone_are_missing)
{
    scratch.makeDirectory("Sub");
    scratch.makeFile("Sub\\run1.dg");
    files.changeDrive(base);
    files.changeDirectory(at(u"Sub"_s));
    scratch.remove("Sub");
    EXPECT_EQ(files.currentDirectory(), at(u"Sub"_s));
    EXPECT_EQ(files.testReading(u"run1.dg"_s), 76);
    EXPECT_EQ(errorOf([&] { files.directory(at(u"Sub"_s), Reading::WhenChanged); }), 76);
    EXPECT_EQ(files.hostForm(at(u"Sub"_s)), QString());
    EXPECT_EQ(errorOf([&] { files.copyFile(u"run1.dg"_s, at(u"x"_s), platform::Replacing::Refused); }), 76);
}

TEST_F(WindowsFiles, have_the_desktops_form_and_the_panels)
{
    EXPECT_EQ(files.hostForm(base.toUpper()), QString(base).replace(u'\\', u'/'));
    EXPECT_EQ(files.hostForm(at(u"gone"_s)), QString());
    EXPECT_EQ(files.hostForm(u"C:\\a:b"_s), QString());
    EXPECT_EQ(files.panelForm(u"C:/My Data/run1.dg"_s), u"C:\\My Data\\run1.dg"_s);
    EXPECT_EQ(files.panelForm(u"C:\\My Data\\run1.dg"_s), u"C:\\My Data\\run1.dg"_s);
    EXPECT_EQ(files.anyCase(u"*.cfb"_s), u"*.cfb"_s);
}

TEST_F(WindowsFiles, answer_the_same_within_a_moment)
{
    scratch.makeFile("run1.dg");
    files.beginMoment();
    EXPECT_EQ(files.directory(base, Reading::WhenChanged)->files(u"*"_s).count(), 1);
    scratch.makeFile("run2.dg");
    EXPECT_EQ(files.directory(base.toUpper(), Reading::WhenChanged)->files(u"*"_s).count(), 1);
    EXPECT_EQ(files.directory(base, Reading::Anew)->files(u"*"_s).count(), 2);
    scratch.makeFile("run3.dg");
    files.nextMoment();
    EXPECT_EQ(files.directory(base, Reading::WhenChanged)->files(u"*"_s).count(), 3);
    files.endMoment();
    scratch.makeFile("run4.dg");
    EXPECT_EQ(files.directory(base, Reading::WhenChanged)->files(u"*"_s).count(), 4);
}

TEST_F(WindowsFiles, list_the_root_of_a_drive)
{
    const QString root = base.left(3);
    const auto directory = files.directory(root, Reading::Anew);
    EXPECT_EQ(directory->path(), root);
    EXPECT_FALSE(directory->folders().isEmpty());
    files.changeDirectory(root);
    files.changeDrive(root);
    EXPECT_EQ(files.currentDirectory(), root);
    EXPECT_EQ(files.testReading(root), 75);
}

TEST_F(WindowsFiles, list_thousands)
{
    for (int i = 0; i < 2'000; ++i)
        scratch.makeFile("run" + QByteArray::number(i) + ".dg", QByteArray());
    EXPECT_EQ(listed().size(), 2'000);
    EXPECT_EQ(listed(u"*.DG;*.km"_s).size(), 2'000);
}

TEST(WindowsErrors, have_the_systems_own_sentence_or_their_number)
{
    EXPECT_FALSE(platform::host::systemText(ERROR_INVALID_PARAMETER).isEmpty());
    EXPECT_FALSE(platform::host::systemText(ERROR_INVALID_PARAMETER).endsWith(u'.'));
    EXPECT_FALSE(platform::host::systemText(ERROR_INVALID_PARAMETER).contains(u'\n'));
    EXPECT_EQ(platform::host::systemText(0x2FFFFFFF), u"error 805306367"_s);
}
