// Directories that are made and removed on the host: links, permissions, names that differ in case alone, and
// what else only a host has.

#include "platform/linux/host_names.h"
#include "platform/linux/linux_file_system.h"
#include "platform/runtime_error.h"
#include "printing.h"
#include "scratch_directory.h"
#include "without_descriptors.h"

#include <gmock/gmock.h>

#include <functional>
#include <memory>
#include <utility>

#include <sys/mount.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using platform::Reading;
using platform::host::LinuxFileSystem;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

/// A file system of its own over a directory, while it lives.
class Mounted
{
public:
    Mounted(QByteArray directory, const char *options) : directory_(std::move(directory))
    {
        isMounted_ = ::mount("tmpfs", directory_.constData(), "tmpfs", 0, options) == 0;
    }
    ~Mounted()
    {
        if (isMounted_)
            ::umount2(directory_.constData(), MNT_DETACH);
    }
    Mounted(const Mounted &) = delete;
    Mounted &operator=(const Mounted &) = delete;

    bool isMounted() const { return isMounted_; }
    void forbidWriting() const
    {
        ::mount(nullptr, directory_.constData(), nullptr, MS_REMOUNT | MS_RDONLY, nullptr);
    }

private:
    QByteArray directory_;
    bool isMounted_ = false;
};

class DirectoryChanges : public testing::Test
{
protected:
    QString at(const QString &name) const { return base + u'\\' + name; }

    /// The number of the error and its description; empty where there is none.
    static QString refusal(const std::function<void()> &call)
    {
        try {
            call();
        } catch (const platform::RuntimeError &error) {
            return QString::number(error.Number) + u' ' + error.Description;
        }
        return {};
    }

    QString make(const QString &path)
    {
        return refusal([&] { files.makeDirectory(path); });
    }
    QString remove(const QString &path)
    {
        return refusal([&] { files.removeDirectory(path); });
    }

    QStringList folders(const QString &path)
    {
        return files.directory(path, Reading::WhenChanged)->folders().toList();
    }

    const QString taken = u"75 There is something of this name already"_s;
    const QString denied = u"70 Permission denied"_s;
    const QString gone = u"76 Path not found"_s;
    const QString badName = u"52 Bad file name or number"_s;
    support::KeptDirectory kept;
    support::ScratchDirectory scratch{"Anna & Bob's \xC3\xA4 data"};
    LinuxFileSystem files{QByteArray()};
    QString base = files.adopt(scratch.path());
};

} // namespace

TEST_F(DirectoryChanges, take_a_link_for_something_wherever_it_leads)
{
    scratch.makeDirectory("place");
    scratch.makeLink("Dangling", "gone/away");
    scratch.makeLink("Loop", "Loop");
    scratch.makeLink("Folder", "place");
    scratch.makeLink("Device", "/dev/null");
    for (bool isKnown : {false, true}) {
        if (isKnown)
            files.directory(base, Reading::WhenChanged);
        for (const QString &name : {u"Dangling"_s, u"DANGLING"_s, u"dangling"_s, u"Loop"_s, u"LOOP"_s,
                                    u"Folder"_s, u"FOLDER"_s, u"Device"_s, u"device"_s})
            EXPECT_EQ(make(at(name)), taken) << name.toStdString();
    }
    EXPECT_THAT(scratch.names(), ElementsAre("Dangling", "Device", "Folder", "Loop", "place"));
}

TEST_F(DirectoryChanges, leave_links_and_what_they_lead_to)
{
    scratch.makeDirectory("place");
    scratch.makeFile("file");
    scratch.makeLink("Folder", "place");
    scratch.makeLink("Dangling", "gone");
    scratch.makeLink("File", "file");
    for (const QString &name : {u"Folder"_s, u"Folder\\"_s, u"Dangling"_s, u"File"_s})
        EXPECT_EQ(remove(at(name)), u"75 It is a link to another directory"_s) << name.toStdString();
    EXPECT_EQ(remove(at(u"file"_s)), u"75 It is not a directory"_s);
    EXPECT_EQ(remove(at(u"FOLDER"_s)), gone);
    EXPECT_THAT(scratch.names(), ElementsAre("Dangling", "File", "Folder", "file", "place"));
}

TEST_F(DirectoryChanges, reach_below_a_link)
{
    scratch.makeDirectory("place");
    scratch.makeLink("Folder", "place");
    EXPECT_EQ(make(at(u"FOLDER\\New"_s)), QString());
    EXPECT_THAT(scratch.names("place"), ElementsAre("New"));
    EXPECT_EQ(remove(at(u"Folder\\New"_s)), QString());
    EXPECT_THAT(scratch.names("place"), IsEmpty());
}

TEST_F(DirectoryChanges, show_within_the_same_moment_in_a_directory_that_leads_to_itself)
{
    scratch.makeLink("Link", ".");
    files.directory(base, Reading::Anew);
    files.beginMoment();
    EXPECT_EQ(make(at(u"LINK\\New"_s)), QString());
    EXPECT_EQ(files.testReading(at(u"NEW"_s)), 75);
    EXPECT_EQ(remove(at(u"Link\\New"_s)), QString());
    EXPECT_EQ(files.testReading(at(u"NEW"_s)), 53);
    files.endMoment();
}

TEST_F(DirectoryChanges, tell_apart_directories_that_differ_in_case_alone)
{
    scratch.makeDirectory("anna");
    scratch.makeDirectory("Anna");
    files.directory(at(u"anna"_s), Reading::WhenChanged);
    EXPECT_EQ(remove(at(u"ANNA"_s)), gone) << "whichever was used";
    EXPECT_EQ(make(at(u"ANNA"_s)), taken);
    EXPECT_EQ(remove(at(u"Anna"_s)), QString());
    EXPECT_THAT(scratch.names(), ElementsAre("anna"));
    EXPECT_EQ(remove(at(u"Anna"_s)), gone);
    EXPECT_EQ(folders(base), QStringList{u"anna"_s});
    EXPECT_EQ(make(at(u"Anna"_s)), taken);
    EXPECT_EQ(remove(at(u"anna"_s)), QString());
    EXPECT_THAT(scratch.names(), IsEmpty());
}

TEST_F(DirectoryChanges, make_a_directory_in_the_exact_one_of_two)
{
    scratch.makeDirectory("anna");
    scratch.makeDirectory("Anna");
    EXPECT_EQ(make(at(u"Anna\\One"_s)), QString());
    EXPECT_EQ(make(at(u"anna\\one"_s)), QString());
    EXPECT_THAT(scratch.names("Anna"), ElementsAre("One"));
    EXPECT_THAT(scratch.names("anna"), ElementsAre("one"));
    // In other case the one that was used; making something in the other one is no use.
    files.directory(at(u"anna"_s), Reading::WhenChanged);
    EXPECT_EQ(make(at(u"Anna\\Two"_s)), QString());
    EXPECT_EQ(make(at(u"ANNA\\Three"_s)), QString());
    EXPECT_THAT(scratch.names("anna"), ElementsAre("Three", "one"));
    // As it is for what is removed: its name alone counts, and nothing that was used.
    EXPECT_EQ(remove(at(u"ANNA\\Three"_s)), gone);
    EXPECT_EQ(remove(at(u"anna\\Three"_s)), QString());
}

TEST_F(DirectoryChanges, know_permissions)
{
    scratch.makeDirectory("fixed/sub");
    scratch.makeDirectory("closed/sub");
    ::chmod(scratch.path("fixed").constData(), 0555);
    ::chmod(scratch.path("closed").constData(), 0);
    {
        const support::WithoutPrivileges nobody;
        EXPECT_EQ(make(at(u"fixed\\new"_s)), denied);
        EXPECT_EQ(make(at(u"FIXED\\SUB"_s)), taken);
        EXPECT_EQ(make(at(u"closed\\new"_s)), denied);
        EXPECT_EQ(make(at(u"CLOSED\\new"_s)), denied);
        EXPECT_EQ(make(at(u"closed\\sub\\new"_s)), denied);
        EXPECT_EQ(remove(at(u"fixed\\sub"_s)), denied);
        EXPECT_EQ(remove(at(u"closed\\sub"_s)), denied);
        EXPECT_EQ(remove(at(u"closed\\none"_s)), denied);
        EXPECT_EQ(remove(at(u"fixed\\none"_s)), gone);
    }
    ::chmod(scratch.path("closed").constData(), 0755);
    EXPECT_THAT(scratch.names("fixed"), ElementsAre("sub"));
    EXPECT_THAT(scratch.names("closed"), ElementsAre("sub"));
}

TEST_F(DirectoryChanges, need_not_be_listed)
{
    scratch.makeDirectory("blind");
    ::chmod(scratch.path("blind").constData(), 0333);
    {
        const support::WithoutPrivileges nobody;
        EXPECT_EQ(make(at(u"blind\\New"_s)), QString());
        EXPECT_EQ(make(at(u"blind\\New"_s)), taken);
        EXPECT_EQ(make(at(u"blind\\New\\Below"_s)), QString());
        EXPECT_EQ(remove(at(u"blind\\New"_s)), u"75 It is not empty"_s);
        EXPECT_EQ(remove(at(u"blind\\New\\Below"_s)), QString());
        EXPECT_EQ(remove(at(u"blind\\New"_s)), QString());
    }
    ::chmod(scratch.path("blind").constData(), 0755);
    EXPECT_THAT(scratch.names("blind"), IsEmpty());
}

TEST_F(DirectoryChanges, leave_what_others_have_put_into_a_shared_directory)
{
    if (::geteuid() != 0)
        GTEST_SKIP() << "there is nobody else to make it";
    scratch.makeDirectory("shared/sub");
    ::chmod(scratch.path("shared").constData(), 01777);
    const support::WithoutPrivileges nobody;
    EXPECT_EQ(make(at(u"shared\\mine"_s)), QString());
    EXPECT_EQ(remove(at(u"shared\\sub"_s)), denied);
    EXPECT_EQ(remove(at(u"shared\\mine"_s)), QString());
}

TEST_F(DirectoryChanges, are_as_open_as_the_users_new_files)
{
    const mode_t before = ::umask(027);
    EXPECT_EQ(make(at(u"new"_s)), QString());
    ::umask(before);
    struct stat status = {};
    ASSERT_EQ(::stat(scratch.path("new").constData(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777U, 0750U);
}

TEST_F(DirectoryChanges, refuse_names_that_are_too_long)
{
    EXPECT_EQ(make(at(QString(256, u'n'))), badName);
    EXPECT_EQ(make(at(QString(128, u'ä'))), badName);
    EXPECT_EQ(remove(at(QString(256, u'n'))), badName);
    EXPECT_EQ(make(at(QString(300, u'n') + u"\\new"_s)), gone);
    const QString deep = (QString(200, u'n') + u'\\').repeated(30);
    EXPECT_EQ(make(at(deep + u"new"_s)), gone);
    EXPECT_THAT(scratch.names(), IsEmpty());

    for (const QString &longest : {QString(255, u'n'), QString(127, u'ä')}) {
        EXPECT_EQ(make(at(longest)), QString());
        EXPECT_EQ(folders(base), QStringList{longest});
        EXPECT_EQ(remove(at(longest)), QString());
    }
}

TEST_F(DirectoryChanges, have_the_names_that_the_panel_shows)
{
    for (const QByteArray &bytes : {QByteArray("caf\xE9"), QByteArray("say \"hi\""), QByteArray("a:b c\\d"),
                                    QByteArray("new\nline"), QByteArray("\xEF\xBB\xBFmark"),
                                    QByteArray("\xEF\x80\xA2"), QByteArray(".hidden"), QByteArray("...")}) {
        const QString name = platform::host::fromHostName(bytes);
        EXPECT_EQ(make(at(name)), QString()) << bytes.toHex().toStdString();
        EXPECT_THAT(scratch.names(), ElementsAre(bytes));
        EXPECT_EQ(files.testReading(at(name)), 75) << bytes.toHex().toStdString();
        EXPECT_EQ(files.directory(at(name), Reading::WhenChanged)->path(), at(name));
        EXPECT_EQ(remove(at(name)), QString()) << bytes.toHex().toStdString();
        EXPECT_THAT(scratch.names(), IsEmpty());
    }
}

TEST_F(DirectoryChanges, take_what_was_typed_as_it_was_meant)
{
    for (const QString &name : {u"10:30"_s, u"say \"hi\""_s, u" my: \"walk\" "_s}) {
        EXPECT_EQ(make(at(name)), QString()) << name.toStdString();
        EXPECT_THAT(scratch.names(), ElementsAre(name.toUtf8()));
        EXPECT_EQ(make(at(name)), taken);
        scratch.remove(name.toUtf8());
    }
}

TEST_F(DirectoryChanges, refuse_names_that_the_panel_would_show_in_another_way)
{
    scratch.makeDirectory("say \"hi\"");
    scratch.makeDirectory("\xC3\xA4");
    scratch.makeDirectory("?");
    for (const QString &name : {u"\uF0C3\uF0A4"_s, QString(QChar(0xD800)), u"\uFEFFmark"_s}) {
        EXPECT_EQ(make(at(name)), badName) << name.toStdString();
        EXPECT_EQ(remove(at(name)), badName) << name.toStdString();
    }
    EXPECT_EQ(remove(at(u"say \"hi\""_s)), badName);
    EXPECT_THAT(scratch.names(), ElementsAre("?", "say \"hi\"", "\xC3\xA4"));
}

TEST_F(DirectoryChanges, need_a_directory_that_is_still_there)
{
    scratch.makeDirectory("data/sub");
    files.directory(at(u"data"_s), Reading::WhenChanged);
    files.changeDrive(base);
    files.changeDirectory(at(u"data"_s));
    scratch.remove("data");
    EXPECT_EQ(make(at(u"data\\new"_s)), gone);
    EXPECT_EQ(make(u"new"_s), gone);
    EXPECT_EQ(make(u"."_s), taken) << "the current directory is not made anew";
    EXPECT_EQ(make(base.left(2)), taken);
    EXPECT_EQ(remove(at(u"data\\sub"_s)), gone);
    scratch.makeFile("data");
    EXPECT_EQ(make(at(u"data\\new"_s)), gone);
    EXPECT_EQ(remove(at(u"data\\sub"_s)), gone);
    EXPECT_THAT(scratch.names(), ElementsAre("data"));
}

TEST_F(DirectoryChanges, are_known_where_a_directory_was_removed_and_made_again_meanwhile)
{
    scratch.makeDirectory("data/sub");
    scratch.makeFile("data/run1.dg");
    files.changeDrive(base);
    files.changeDirectory(at(u"data"_s));
    files.directory(at(u"data"_s), Reading::WhenChanged);
    EXPECT_EQ(files.testReading(at(u"data\\RUN1.DG"_s)), 0);
    scratch.remove("data");
    scratch.makeDirectory("data");
    EXPECT_EQ(make(at(u"data\\Sub"_s)), QString()) << "the one of before is gone";
    EXPECT_EQ(folders(at(u"data"_s)), QStringList{u"Sub"_s});
    EXPECT_EQ(files.testReading(at(u"data\\RUN1.DG"_s)), 53);
    EXPECT_EQ(remove(at(u"data\\Sub"_s)), QString());
    EXPECT_EQ(remove(at(u"data"_s)), QString());
    scratch.makeDirectory("DATA");
    scratch.makeFile("DATA/run2.dg");
    EXPECT_EQ(remove(at(u"data"_s)), gone);
    EXPECT_EQ(files.testReading(at(u"data\\run2.dg"_s)), 0) << "the one that has come in its place";
    EXPECT_EQ(remove(at(u"DATA"_s)), u"75 It is not empty"_s);
}

TEST_F(DirectoryChanges, leave_directories_on_which_a_file_system_is_mounted)
{
    scratch.makeDirectory("stick");
    const Mounted stick(scratch.path("stick"), "size=64k");
    if (!stick.isMounted())
        GTEST_SKIP() << "this system lets nobody mount a file system here";
    EXPECT_EQ(remove(at(u"stick"_s)), u"75 The system uses it"_s);
    EXPECT_EQ(make(at(u"stick\\new"_s)), QString());
    EXPECT_THAT(scratch.names("stick"), ElementsAre("new"));
    EXPECT_EQ(remove(at(u"stick\\new"_s)), QString());
    EXPECT_TRUE(scratch.has("stick"));
}

TEST_F(DirectoryChanges, need_room_on_the_disk)
{
    scratch.makeDirectory("stick");
    // One node is the root's.
    const Mounted stick(scratch.path("stick"), "size=64k,nr_inodes=2");
    if (!stick.isMounted())
        GTEST_SKIP() << "this system lets nobody mount a file system here";
    EXPECT_EQ(make(at(u"stick\\one"_s)), QString());
    EXPECT_EQ(make(at(u"stick\\two"_s)), u"61 Disk full"_s);
    EXPECT_THAT(scratch.names("stick"), ElementsAre("one"));
}

TEST_F(DirectoryChanges, are_not_for_a_disk_that_cannot_be_written)
{
    scratch.makeDirectory("disc");
    const Mounted disc(scratch.path("disc"), "size=64k");
    if (!disc.isMounted())
        GTEST_SKIP() << "this system lets nobody mount a file system here";
    scratch.makeDirectory("disc/sub");
    disc.forbidWriting();
    EXPECT_EQ(make(at(u"disc\\new"_s)), denied);
    EXPECT_EQ(make(at(u"disc\\SUB"_s)), taken);
    EXPECT_EQ(remove(at(u"disc\\sub"_s)), denied);
    EXPECT_THAT(scratch.names("disc"), ElementsAre("sub"));
}

TEST_F(DirectoryChanges, are_not_made_where_what_is_there_cannot_be_known)
{
    scratch.makeDirectory("Sub");
    EXPECT_EQ(make(at(u"SUB"_s)), taken);
    {
        const support::WithoutDescriptors none;
        EXPECT_EQ(make(at(u"SUB"_s)), u"67 Too many files"_s);
    }
    EXPECT_THAT(scratch.names(), ElementsAre("Sub"));
}

/// A Wine prefix with the drives C: and E:.
class DirectoryChangesOnDrives : public DirectoryChanges
{
protected:
    DirectoryChangesOnDrives()
    {
        scratch.makeDirectory("prefix/dosdevices");
        scratch.makeDirectory("prefix/drive_c/Data");
        scratch.makeDirectory("stick");
        scratch.makeLink("prefix/dosdevices/c:", "../drive_c");
        scratch.makeLink("prefix/dosdevices/e:", scratch.path("stick"));
    }

    QString makeInWine(const QString &path)
    {
        return refusal([&] { wine().makeDirectory(path); });
    }
    QString removeInWine(const QString &path)
    {
        return refusal([&] { wine().removeDirectory(path); });
    }

    LinuxFileSystem &wine()
    {
        if (!wine_)
            wine_ = std::make_unique<LinuxFileSystem>(scratch.path("prefix"));
        return *wine_;
    }

private:
    std::unique_ptr<LinuxFileSystem> wine_;
};

TEST_F(DirectoryChangesOnDrives, are_those_of_the_drives_directory)
{
    EXPECT_EQ(makeInWine(u"C:\\DATA\\New"_s), QString());
    EXPECT_EQ(makeInWine(u"e:\\Stick"_s), QString());
    EXPECT_EQ(makeInWine(u"E:\\STICK"_s), taken);
    EXPECT_THAT(scratch.names("prefix/drive_c/Data"), ElementsAre("New"));
    EXPECT_THAT(scratch.names("stick"), ElementsAre("Stick"));
    EXPECT_EQ(wine().directory(u"C:\\Data"_s, Reading::WhenChanged)->folders().toList(),
              QStringList{u"New"_s});
    // Z: reaches it as well.
    EXPECT_EQ(wine().testReading(at(u"prefix\\drive_c\\Data\\NEW"_s)), 75);
    wine().changeDirectory(u"C:\\Data"_s);
    EXPECT_EQ(makeInWine(u"c: [Windows]\\Below"_s), QString());
    EXPECT_THAT(scratch.names("prefix/drive_c/Data"), ElementsAre("Below", "New"));

    EXPECT_EQ(removeInWine(u"c:\\Data\\New"_s), QString());
    EXPECT_EQ(removeInWine(u"c: [Windows]\\Below"_s), QString());
    EXPECT_EQ(removeInWine(u"E:\\Stick"_s), QString());
    EXPECT_THAT(scratch.names("prefix/drive_c/Data"), IsEmpty());
    EXPECT_THAT(scratch.names("stick"), IsEmpty());
    EXPECT_EQ(wine().testReading(at(u"prefix\\drive_c\\Data\\NEW"_s)), 53);
}

TEST_F(DirectoryChangesOnDrives, leave_the_roots_of_drives_however_they_are_reached)
{
    scratch.makeLink("way", "prefix");
    const QString noDrive = u"75 A drive cannot be removed"_s;
    wine().changeDirectory(u"C:\\Data"_s);
    for (const QString &path : {u"C:"_s, u"c: [Windows]"_s, u"c: [Windows]\\"_s, u"C:\\"_s, u"E:\\"_s,
                                u"Z:\\"_s, u"\\"_s, at(u"stick"_s), at(u"stick\\"_s)})
        EXPECT_EQ(removeInWine(path), noDrive) << path.toStdString();
    scratch.remove("prefix/drive_c/Data");
    EXPECT_EQ(removeInWine(at(u"prefix\\drive_c"_s)), noDrive);
    EXPECT_EQ(removeInWine(at(u"way\\drive_c"_s)), noDrive);
    EXPECT_EQ(removeInWine(u"C:\\"_s), noDrive);
    EXPECT_TRUE(scratch.has("prefix/drive_c"));
    EXPECT_TRUE(scratch.has("stick"));
    EXPECT_EQ(makeInWine(u"C:\\"_s), taken);
    EXPECT_EQ(removeInWine(u"D:\\x"_s), u"68 Device unavailable"_s);
    EXPECT_EQ(makeInWine(u"D:\\x"_s), u"68 Device unavailable"_s);
}

TEST_F(DirectoryChangesOnDrives, need_a_drive_that_is_still_there)
{
    wine();
    scratch.remove("stick");
    EXPECT_EQ(makeInWine(u"E:\\new"_s), gone);
    EXPECT_EQ(removeInWine(u"E:\\new"_s), gone);
    EXPECT_FALSE(scratch.has("stick"));
    // Others are not kept from theirs.
    EXPECT_EQ(removeInWine(u"C:\\Data"_s), QString());
    EXPECT_FALSE(scratch.has("prefix/drive_c/Data"));
}
