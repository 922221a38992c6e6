// What every file system of the platform does, the one in memory as well as the host's.

#include "memory_file_system.h"
#include "platform/display_text.h"
#include "platform/letter_case.h"
#include "platform/runtime_error.h"
#include "printing.h"
#include "world.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <optional>

using namespace Qt::StringLiterals;
using platform::FileSystem;
using platform::Reading;
using platform::Replacing;

namespace {

class MemoryWorld : public platform_tests::World
{
public:
    MemoryWorld() { files_.addDirectory(MemoryWorld::base()); }
    FileSystem &files() override { return files_; }
    QString base() override { return u"C:\\Some Place\\Base"_s; }
    void makeDirectory(const QString &name) override { files_.addDirectory(path(name)); }
    void makeFile(const QString &name, const QByteArray &content) override
    {
        files_.addFile(path(name), content);
    }
    void makeHidden(const QString &name) override
    {
        files_.addFile(path(u'.' + name));
        files_.hide(path(u'.' + name));
    }
    void makePipe(const QString &name) override
    {
        files_.addFile(path(name));
        files_.forbid(path(name), platform::ErrorNumber::PathFileAccess);
    }
    void forbid(const QString &name) override
    {
        files_.forbid(path(name), platform::ErrorNumber::PermissionDenied);
    }
    void remove(const QString &name) override { files_.remove(path(name)); }
    bool canBeCalled(const QString &) const override { return true; }
    QByteArray content(const QString &name) override
    {
        const auto spelled = files_.existingFile(path(name));
        return spelled == path(name) ? files_.content(path(name)).value_or("(none)") : "(none)";
    }

private:
    QString path(const QString &name) { return base() + u'\\' + name; }
    support::MemoryFileSystem files_;
};

std::unique_ptr<platform_tests::World> makeMemoryWorld()
{
    return std::make_unique<MemoryWorld>();
}

using MakeWorld = std::unique_ptr<platform_tests::World> (*)();

class FileSystemContract : public testing::TestWithParam<MakeWorld>
{
protected:
    QString at(const QString &name) const { return world->base() + u'\\' + name; }

    static qint16 errorOf(const std::function<void()> &call)
    {
        try {
            call();
        } catch (const platform::RuntimeError &error) {
            return error.Number;
        }
        return 0;
    }

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

    /// What is listed of the directories in the base.
    QStringList folders() const
    {
        return files.directory(world->base(), Reading::WhenChanged)->folders().toList();
    }

    std::unique_ptr<platform_tests::World> world = GetParam()();
    FileSystem &files = world->files();
};

} // namespace

TEST_P(FileSystemContract, opens_files_without_regard_to_case)
{
    world->makeFile(u"Walk1.Dg"_s, "title\n");
    EXPECT_EQ(files.testReading(at(u"Walk1.Dg"_s)), 0);
    EXPECT_EQ(files.testReading(at(u"WALK1.DG"_s).toUpper()), 0);
    EXPECT_EQ(files.testReading(at(u"walk1.dg"_s).toLower()), 0);
}

TEST_P(FileSystemContract, says_why_a_file_cannot_be_opened)
{
    world->makeDirectory(u"folder"_s);
    EXPECT_EQ(files.testReading(at(u"missing.dg"_s)), 53);
    EXPECT_EQ(files.testReading(at(u"nowhere\\missing.dg"_s)), 76);
    EXPECT_EQ(files.testReading(at(u"folder"_s)), 75);
    EXPECT_EQ(files.testReading(world->base() + u'\\'), 75);
    EXPECT_EQ(files.testReading(at(u"C:\\x.exe"_s)), 52);
    EXPECT_EQ(files.testReading(u"Q:\\x.exe"_s), 68);
    EXPECT_EQ(files.testReading(u"\\\\server\\share\\x.exe"_s), 76);
}

TEST_P(FileSystemContract, takes_many_separators_for_one)
{
    world->makeDirectory(u"Manuals"_s);
    world->makeFile(u"Manuals\\Kinovra.Pdf"_s, "manual");
    for (const QString &name :
         {u"Manuals\\\\Kinovra.Pdf"_s, u"MANUALS\\\\KINOVRA.PDF"_s, u"MANUALS\\\\\\KINOVRA.PDF"_s,
          u"\\Manuals\\Kinovra.Pdf"_s, u"\\\\manuals\\\\\\\\kinovra.pdf"_s}) {
        EXPECT_EQ(files.testReading(at(name)), 0) << name.toStdString();
        // The same directory right before it, as a menu that tests many files asks for it.
        EXPECT_EQ(files.testReading(at(u"Manuals\\Kinovra.Pdf"_s)), 0) << name.toStdString();
        EXPECT_EQ(files.testReading(at(name)), 0) << name.toStdString();
        EXPECT_EQ(files.openFile(at(name))->read(10), "manual") << name.toStdString();
        EXPECT_EQ(files.testReading(at(name) + u".txt"_s), 53) << name.toStdString();
    }
    files.directory(at(u"Manuals"_s), Reading::WhenChanged);
    EXPECT_EQ(files.testReading(at(u"Manuals"_s) + u'\\' + u"\\kinovra.pdf"_s), 0);
    EXPECT_EQ(files.testReading(at(u"MANUALS\\"_s) + u'\\' + u"\\KINOVRA.PDF"_s), 0);
    EXPECT_EQ(files.testReading(at(u"MANUALS\\"_s) + u'\\' + u"\\OTHER.PDF"_s), 53);
    EXPECT_EQ(files.testReading(at(u"NOWHERE\\"_s) + u'\\' + u"\\KINOVRA.PDF"_s), 76);
}

TEST_P(FileSystemContract, reads_an_opened_file_in_pieces)
{
    world->makeFile(u"About.Txt"_s, "0123456789");
    const auto file = files.openFile(at(u"About.Txt"_s));
    EXPECT_EQ(file->read(0), "");
    EXPECT_EQ(file->read(4), "0123");
    // Another one has a place of its own.
    const auto second = files.openFile(at(u"ABOUT.TXT"_s));
    EXPECT_EQ(second->read(1), "0");
    EXPECT_EQ(file->read(4), "4567");
    EXPECT_EQ(file->read(4), "89");
    EXPECT_EQ(file->read(4), "") << "beyond the end";
    EXPECT_EQ(file->read(4), "");
    EXPECT_EQ(second->read(100), "123456789");
}

TEST_P(FileSystemContract, reads_every_byte_of_an_opened_file)
{
    const QByteArray content = QByteArray("a\r\n\0\x1A\xFF", 6).repeated(50'000);
    world->makeFile(u"about.txt"_s, content);
    EXPECT_EQ(files.openFile(at(u"about.txt"_s))->read(1'000'000), content);
    world->makeFile(u"empty.txt"_s, QByteArray());
    EXPECT_EQ(files.openFile(at(u"empty.txt"_s))->read(1), "");
}

TEST_P(FileSystemContract, opens_a_file_for_reading_without_regard_to_case)
{
    world->makeFile(u"Über uns.Txt"_s, "text");
    for (const QString &name : {u"Über uns.Txt"_s, u"ÜBER UNS.TXT"_s, u"über uns.txt"_s}) {
        EXPECT_EQ(files.openFile(at(name))->read(10), "text") << name.toStdString();
        EXPECT_EQ(files.openFile(at(name).toUpper())->read(10), "text") << name.toStdString();
    }
    files.directory(world->base(), Reading::WhenChanged);
    EXPECT_EQ(files.openFile(at(u"ÜBER UNS.TXT"_s))->read(10), "text");
}

TEST_P(FileSystemContract, raises_where_a_file_cannot_be_opened_for_reading)
{
    world->makeDirectory(u"folder"_s);
    world->makePipe(u"pipe"_s);
    world->makeFile(u"noise"_s, "x");
    const auto open = [&](const QString &path) { return errorOf([&] { files.openFile(path); }); };
    EXPECT_EQ(open(at(u"missing.txt"_s)), 53);
    EXPECT_EQ(open(at(u"NOISE.EXE"_s)), 53) << "no program";
    EXPECT_EQ(open(at(u"nowhere\\missing.txt"_s)), 76);
    EXPECT_EQ(open(at(u"folder"_s)), 75);
    EXPECT_EQ(open(world->base() + u'\\'), 75);
    EXPECT_EQ(open(at(u"pipe"_s)), 75);
    EXPECT_EQ(open(at(u"C:\\x.txt"_s)), 52);
    EXPECT_EQ(open(u"Q:\\x.txt"_s), 68);
    EXPECT_EQ(open(u"\\\\server\\share\\x.txt"_s), 76);
    EXPECT_EQ(open(QString()), 76);
}

TEST_P(FileSystemContract, raises_where_a_file_may_not_be_read)
{
    world->makeFile(u"secret.txt"_s, "x");
    world->forbid(u"secret.txt"_s);
    EXPECT_EQ(errorOf([&] { files.openFile(at(u"secret.txt"_s)); }), 70);
    EXPECT_EQ(errorOf([&] { files.openFile(at(u"SECRET.TXT"_s)); }), 70);
}

TEST_P(FileSystemContract, goes_on_reading_a_file_that_is_changed_meanwhile)
{
    for (const QByteArray &changed : {QByteArray("x"), QByteArray("longer than it was"), QByteArray()}) {
        world->makeFile(u"about.txt"_s, "0123456789");
        const auto file = files.openFile(at(u"about.txt"_s));
        EXPECT_EQ(file->read(4), "0123");
        world->makeFile(u"about.txt"_s, changed);
        EXPECT_EQ(errorOf([&] { file->read(100); }), 0);
        EXPECT_EQ(file->read(100), "");
    }
    world->makeFile(u"about.txt"_s, "0123456789");
    const auto file = files.openFile(at(u"about.txt"_s));
    world->remove(u"about.txt"_s);
    EXPECT_EQ(file->read(100), "0123456789") << "it is there for those who have opened it";
}

TEST_P(FileSystemContract, notices_files_that_come_and_go)
{
    EXPECT_EQ(files.testReading(at(u"RUN1.KM"_s).toUpper()), 53);
    world->makeFile(u"run1.km"_s, "x");
    EXPECT_EQ(files.testReading(at(u"RUN1.KM"_s).toUpper()), 0);
    world->remove(u"run1.km"_s);
    EXPECT_EQ(files.testReading(at(u"RUN1.KM"_s).toUpper()), 53);
}

TEST_P(FileSystemContract, reads_first_lines)
{
    world->makeFile(u"unix.dg"_s, "Title one\nmore");
    world->makeFile(u"dos.dg"_s, "Title two\r\nmore");
    world->makeFile(u"mac.dg"_s, "Title three\rmore");
    world->makeFile(u"short.dg"_s, "only");
    world->makeFile(u"blank.dg"_s, "\r\nmore");
    world->makeFile(u"utf8.dg"_s, "L\xC3\xA4ufer\n");
    EXPECT_EQ(files.firstLine(at(u"UNIX.DG"_s)), u"Title one"_s);
    EXPECT_EQ(files.firstLine(at(u"dos.dg"_s)), u"Title two"_s);
    EXPECT_EQ(files.firstLine(at(u"mac.dg"_s)), u"Title three"_s);
    EXPECT_EQ(files.firstLine(at(u"short.dg"_s)), u"only"_s);
    EXPECT_EQ(files.firstLine(at(u"blank.dg"_s)), QString());
    EXPECT_EQ(files.firstLine(at(u"utf8.dg"_s)), u"Läufer"_s);
}

TEST_P(FileSystemContract, raises_where_there_is_no_first_line)
{
    world->makeFile(u"empty.dg"_s, QByteArray());
    world->makeDirectory(u"folder.dg"_s);
    EXPECT_EQ(errorOf([&] { files.firstLine(at(u"empty.dg"_s)); }), 62);
    EXPECT_EQ(errorOf([&] { files.firstLine(at(u"missing.dg"_s)); }), 53);
    EXPECT_EQ(errorOf([&] { files.firstLine(at(u"folder.dg"_s)); }), 75);
}

TEST_P(FileSystemContract, lists_a_directory_with_its_true_spelling)
{
    world->makeFile(u"b.dg"_s, "x");
    world->makeFile(u"A.DG"_s, "x");
    world->makeHidden(u"c.dg"_s);
    world->makeDirectory(u"Sub"_s);
    world->makeDirectory(u"d.dg"_s);
    const auto directory = files.directory(world->base().toUpper(), Reading::WhenChanged);
    EXPECT_EQ(directory->path(), world->base());
    EXPECT_EQ(directory->files(u"*.dg"_s).toList(), (QStringList{u"A.DG"_s, u"b.dg"_s}));
    EXPECT_EQ(directory->folders().toList(), (QStringList{u"d.dg"_s, u"Sub"_s}));
}

TEST_P(FileSystemContract, lists_what_is_there_now)
{
    EXPECT_TRUE(files.directory(world->base(), Reading::WhenChanged)->files(u"*"_s).isEmpty());
    world->makeFile(u"new.dg"_s, "x");
    EXPECT_EQ(files.directory(world->base(), Reading::WhenChanged)->files(u"*"_s).count(), 1);
    world->makeFile(u"newer.dg"_s, "x");
    EXPECT_EQ(files.directory(world->base(), Reading::Anew)->files(u"*"_s).count(), 2);
}

TEST_P(FileSystemContract, raises_for_what_is_no_directory)
{
    world->makeFile(u"file"_s, "x");
    EXPECT_EQ(errorOf([&] { files.directory(at(u"missing"_s), Reading::Anew); }), 76);
    EXPECT_EQ(errorOf([&] { files.directory(at(u"file"_s), Reading::Anew); }), 76);
    EXPECT_EQ(errorOf([&] { files.directory(u"Q:\\"_s, Reading::Anew); }), 68);
    EXPECT_EQ(errorOf([&] { files.directory(u"\\\\server\\share"_s, Reading::Anew); }), 76);
}

TEST_P(FileSystemContract, changes_the_current_directory)
{
    world->makeDirectory(u"Sub"_s);
    files.changeDrive(world->base());
    files.changeDirectory(at(u"SUB"_s));
    EXPECT_EQ(files.currentDirectory(), at(u"Sub"_s));
    files.changeDirectory(u"..\\"_s);
    EXPECT_EQ(files.currentDirectory(), world->base());
    files.changeDirectory(u"sub"_s);
    EXPECT_EQ(files.currentDirectory(), at(u"Sub"_s));
}

TEST_P(FileSystemContract, stays_where_it_is_when_a_directory_cannot_be_entered)
{
    world->makeFile(u"file"_s, "x");
    files.changeDrive(world->base());
    files.changeDirectory(world->base());
    EXPECT_EQ(errorOf([&] { files.changeDirectory(at(u"missing"_s)); }), 76);
    EXPECT_EQ(errorOf([&] { files.changeDirectory(at(u"file"_s)); }), 76);
    EXPECT_EQ(errorOf([&] { files.changeDirectory(u"Q:\\"_s); }), 68);
    EXPECT_EQ(errorOf([&] { files.changeDirectory(QString()); }), 76);
    EXPECT_EQ(files.currentDirectory(), world->base());
}

TEST_P(FileSystemContract, changes_the_current_drive_by_its_letter)
{
    const QString letter = world->base().left(1);
    files.changeDrive(letter.toLower() + u": [label]"_s);
    EXPECT_EQ(files.currentDirectory().left(1), letter);
    EXPECT_EQ(errorOf([&] { files.changeDrive(u"Q:"_s); }), 68);
    EXPECT_EQ(errorOf([&] { files.changeDrive(u"\\\\server"_s); }), 5);
    EXPECT_EQ(errorOf([&] { files.changeDrive(QString()); }), 5);
}

TEST_P(FileSystemContract, falls_back_on_the_root_of_a_drive_whose_current_directory_has_gone)
{
    world->makeDirectory(u"gone"_s);
    files.changeDrive(world->base());
    files.changeDirectory(at(u"gone"_s));
    world->remove(u"gone"_s);
    EXPECT_EQ(errorOf([&] { files.changeDrive(world->base()); }), 0);
    EXPECT_EQ(files.currentDirectory(), world->base().left(3));
    EXPECT_EQ(errorOf([&] { files.changeDirectory(world->base()); }), 0);
    EXPECT_EQ(files.currentDirectory(), world->base());
}

TEST_P(FileSystemContract, accepts_drive_texts_as_paths_and_in_front_of_them)
{
    world->makeFile(u"run1.dg"_s, "Run\n");
    files.changeDrive(world->base());
    files.changeDirectory(world->base());
    const QString drive = world->base().left(1).toLower() + u':';
    const QString labelled = drive + u" [a label]"_s;
    EXPECT_EQ(files.testReading(labelled.toUpper() + u"\\RUN1.DG"_s), 0);
    EXPECT_EQ(files.firstLine(labelled + u"\\run1.dg"_s), u"Run"_s);
    EXPECT_EQ(files.directory(drive, Reading::WhenChanged)->path(), world->base());
    EXPECT_EQ(files.directory(labelled, Reading::WhenChanged)->path(), world->base());
    files.changeDirectory(labelled);
    EXPECT_EQ(files.currentDirectory(), world->base());
}

TEST_P(FileSystemContract, lists_its_drives_in_letter_order)
{
    const QStringList drives = files.drives();
    EXPECT_FALSE(drives.isEmpty());
    for (const QString &drive : drives) {
        EXPECT_TRUE(drive[0] >= u'a' && drive[0] <= u'z') << drive.toStdString();
        EXPECT_EQ(drive[1], u':');
    }
    EXPECT_TRUE(std::is_sorted(drives.begin(), drives.end()));
    EXPECT_TRUE(std::any_of(drives.begin(), drives.end(),
                            [&](const QString &drive) { return drive[0] == world->base()[0].toLower(); }));
}

TEST_P(FileSystemContract, gives_the_short_name_of_an_existing_file)
{
    world->makeFile(u"run1.dg"_s, "x");
    EXPECT_EQ(files.shortName(at(u"run1.dg"_s)).toUpper(), u"RUN1.DG"_s);
    EXPECT_EQ(errorOf([&] { files.shortName(at(u"missing.dg"_s)); }), 53);
    world->makeDirectory(u"folder.dg"_s);
    EXPECT_EQ(errorOf([&] { files.shortName(at(u"folder.dg"_s)); }), 75);
    world->forbid(u"run1.dg"_s);
    EXPECT_EQ(files.shortName(at(u"run1.dg"_s)).toUpper(), u"RUN1.DG"_s) << "it need not be readable";
}

TEST_P(FileSystemContract, stamps_change_when_a_file_is_written)
{
    EXPECT_FALSE(files.stamp(at(u"Kinemati.out"_s)).has_value());
    world->makeFile(u"Kinemati.out"_s, "one");
    const auto first = files.stamp(at(u"KINEMATI.OUT"_s));
    ASSERT_TRUE(first.has_value());
    EXPECT_EQ(files.stamp(at(u"Kinemati.out"_s)), first);
    world->makeFile(u"Kinemati.out"_s, "longer");
    EXPECT_NE(files.stamp(at(u"Kinemati.out"_s)), first);
    EXPECT_FALSE(files.stamp(u"Q:\\x"_s).has_value());
}

TEST_P(FileSystemContract, tells_one_file_from_another)
{
    world->makeFile(u"walk1.cfb"_s, "x");
    world->makeFile(u"walk2.cfb"_s, "x");
    const auto walk1 = files.stamp(at(u"walk1.cfb"_s));
    const auto walk2 = files.stamp(at(u"walk2.cfb"_s));
    ASSERT_TRUE(walk1 && walk2);
    EXPECT_FALSE(walk1->isOfSameFile(*walk2));
    world->makeFile(u"walk1.cfb"_s, "written anew");
    EXPECT_TRUE(walk1->isOfSameFile(files.stamp(at(u"WALK1.CFB"_s)).value()));
}

TEST_P(FileSystemContract, spells_an_existing_file)
{
    world->makeFile(u"Walk1.Cfb"_s, "x");
    world->makeDirectory(u"folder.cfb"_s);
    EXPECT_EQ(files.existingFile(at(u"WALK1.CFB"_s)), at(u"Walk1.Cfb"_s));
    EXPECT_EQ(files.existingFile(at(u"WALK1.CFB"_s).toUpper()), at(u"Walk1.Cfb"_s));
    EXPECT_EQ(files.existingFile(at(u"missing.cfb"_s)), std::nullopt);
    EXPECT_EQ(files.existingFile(at(u"nowhere\\walk1.cfb"_s)), std::nullopt);
    EXPECT_EQ(files.existingFile(at(u"folder.cfb"_s)), std::nullopt);
    EXPECT_EQ(errorOf([&] { files.existingFile(u"Q:\\walk1.cfb"_s); }), 68);
    EXPECT_EQ(errorOf([&] { files.existingFile(at(u"a:b.cfb"_s)); }), 52);
}

TEST_P(FileSystemContract, copies_a_file)
{
    const QByteArray content = QByteArray("model\r\n\0\xFF", 9).repeated(50'000);
    world->makeFile(u"Walk1.cfb"_s, content);
    files.copyFile(at(u"WALK1.CFB"_s), at(u"Walk3.CFB"_s), Replacing::Refused);
    EXPECT_EQ(world->content(u"Walk3.CFB"_s), content);
    EXPECT_EQ(world->content(u"Walk1.cfb"_s), content);
    EXPECT_EQ(files.directory(world->base(), Reading::WhenChanged)->files(u"*"_s).toList(),
              (QStringList{u"Walk1.cfb"_s, u"Walk3.CFB"_s}));
    world->makeFile(u"empty.cfb"_s, QByteArray());
    files.copyFile(at(u"empty.cfb"_s), at(u"copy of empty.CFB"_s), Replacing::Agreed);
    EXPECT_EQ(world->content(u"copy of empty.CFB"_s), QByteArray());
}

TEST_P(FileSystemContract, replaces_a_file_only_where_that_was_agreed)
{
    world->makeFile(u"walk1.cfb"_s, "new");
    world->makeFile(u"walk2.Cfb"_s, "old and longer");
    EXPECT_EQ(errorOf([&] { files.copyFile(at(u"walk1.cfb"_s), at(u"WALK2.CFB"_s), Replacing::Refused); }),
              58);
    EXPECT_EQ(world->content(u"walk2.Cfb"_s), "old and longer");
    files.copyFile(at(u"walk1.cfb"_s), at(u"WALK2.CFB"_s), Replacing::Agreed);
    EXPECT_EQ(world->content(u"walk2.Cfb"_s), "new");
    EXPECT_EQ(world->content(u"WALK2.CFB"_s), "(none)") << "it would be a second model of that name";
    EXPECT_EQ(world->content(u"walk1.cfb"_s), "new");
}

TEST_P(FileSystemContract, says_why_a_file_cannot_be_copied)
{
    world->makeFile(u"walk1.cfb"_s, "model");
    world->makeDirectory(u"folder.cfb"_s);
    const auto copy = [&](const QString &source, const QString &destination) {
        return errorOf([&] { files.copyFile(source, destination, Replacing::Agreed); });
    };
    EXPECT_EQ(copy(at(u"missing.cfb"_s), at(u"new.cfb"_s)), 53);
    EXPECT_EQ(copy(at(u"nowhere\\walk1.cfb"_s), at(u"new.cfb"_s)), 76);
    EXPECT_EQ(copy(at(u"folder.cfb"_s), at(u"new.cfb"_s)), 75);
    EXPECT_EQ(copy(at(u"walk1.cfb"_s), at(u"nowhere\\new.cfb"_s)), 76);
    EXPECT_EQ(copy(at(u"walk1.cfb"_s), at(u"folder.cfb"_s)), 75);
    EXPECT_EQ(copy(at(u"walk1.cfb"_s), u"Q:\\new.cfb"_s), 68);
    EXPECT_EQ(copy(at(u"walk1.cfb"_s), at(u"a:b.cfb"_s)), 52);
    EXPECT_EQ(copy(u"\\\\server\\share\\walk1.cfb"_s, at(u"new.cfb"_s)), 76);
    EXPECT_EQ(world->content(u"new.cfb"_s), "(none)");
    EXPECT_EQ(world->content(u"walk1.cfb"_s), "model");
}

TEST_P(FileSystemContract, copies_what_is_there_now_and_shows_it_within_the_same_moment)
{
    files.directory(world->base(), Reading::Anew);
    files.beginMoment();
    EXPECT_EQ(files.testReading(at(u"NEW.CFB"_s)), 53);
    EXPECT_EQ(files.testReading(at(u"WALK1.CFB"_s)), 53);
    world->makeFile(u"walk1.cfb"_s, "model");
    files.copyFile(at(u"walk1.cfb"_s), at(u"new.CFB"_s), Replacing::Refused);
    EXPECT_EQ(files.testReading(at(u"NEW.CFB"_s)), 0);
    files.endMoment();
}

TEST_P(FileSystemContract, makes_a_directory)
{
    world->makeDirectory(u"Sub"_s);
    files.makeDirectory(at(u"My Walks"_s));
    EXPECT_EQ(folders(), (QStringList{u"My Walks"_s, u"Sub"_s}));
    EXPECT_EQ(files.directory(at(u"MY WALKS"_s), Reading::WhenChanged)->path(), at(u"My Walks"_s));
    EXPECT_EQ(files.testReading(at(u"MY WALKS"_s)), 75);
    files.makeDirectory(at(u"SUB\\Below"_s));
    EXPECT_EQ(files.directory(at(u"Sub"_s), Reading::WhenChanged)->folders().toList(),
              QStringList{u"Below"_s});
    EXPECT_EQ(folders(), (QStringList{u"My Walks"_s, u"Sub"_s})) << "in the directory that is there";
}

TEST_P(FileSystemContract, makes_and_removes_directories_of_any_name)
{
    for (const QString &name : {u"-rf"_s, u"--help"_s, u"Anna & Bob's"_s, u"Läufer ß"_s, u"new "_s, u" new"_s,
                                u"a.b.c"_s, u"new."_s, u"~"_s, u"%TEMP%"_s, u"$(x) `y` ;"_s, u"🏃"_s}) {
        if (!world->canBeCalled(name))
            continue;
        EXPECT_EQ(errorOf([&] { files.makeDirectory(at(name)); }), 0) << name.toStdString();
        EXPECT_EQ(folders(), QStringList{name}) << name.toStdString();
        EXPECT_EQ(files.directory(platform::UCase(at(name)), Reading::WhenChanged)->path(), at(name));
        EXPECT_EQ(errorOf([&] { files.makeDirectory(at(name)); }), 75) << name.toStdString();
        EXPECT_EQ(errorOf([&] { files.removeDirectory(at(name)); }), 0) << name.toStdString();
        EXPECT_EQ(folders(), QStringList()) << name.toStdString();
        EXPECT_EQ(files.testReading(at(name)), 53) << name.toStdString();
    }
}

TEST_P(FileSystemContract, makes_and_removes_directories_below_the_current_one)
{
    world->makeDirectory(u"Sub"_s);
    files.changeDrive(world->base());
    files.changeDirectory(at(u"Sub"_s));
    const QString labelled = world->base().left(1).toLower() + u": [a label]"_s;
    files.makeDirectory(u"one"_s);
    files.makeDirectory(labelled + u"\\two"_s);
    files.makeDirectory(u"..\\three"_s);
    files.makeDirectory(u"one\\.\\\\four\\"_s);
    EXPECT_EQ(files.directory(at(u"Sub"_s), Reading::WhenChanged)->folders().toList(),
              (QStringList{u"one"_s, u"two"_s}));
    EXPECT_EQ(folders(), (QStringList{u"Sub"_s, u"three"_s}));
    files.removeDirectory(u"one\\four"_s);
    files.removeDirectory(u"one"_s);
    files.removeDirectory(labelled + u"\\two"_s);
    files.removeDirectory(u"..\\Sub\\..\\three"_s);
    EXPECT_TRUE(files.directory(at(u"Sub"_s), Reading::WhenChanged)->folders().isEmpty());
    EXPECT_EQ(folders(), QStringList{u"Sub"_s});
}

TEST_P(FileSystemContract, makes_no_directory_where_its_name_is_taken_in_any_case)
{
    world->makeDirectory(u"Sub"_s);
    world->makeFile(u"Läufer.dg"_s, "x");
    world->makeHidden(u"c.dg"_s);
    world->makePipe(u"pipe"_s);
    files.changeDrive(world->base());
    files.changeDirectory(world->base());
    const QString drive = world->base().left(2);
    for (const QString &path :
         {at(u"Sub"_s), at(u"sub"_s), at(u"SUB\\"_s), at(u"Läufer.dg"_s), at(u"LÄUFER.DG"_s), at(u".C.dg"_s),
          at(u"PIPE"_s), world->base(), world->base() + u'\\', world->base().left(3), drive,
          drive + u" [a label]"_s, drive + u" [a label]\\"_s, u"."_s, u".."_s, u"sub\\."_s, u"sub\\.."_s}) {
        for (bool isKnown : {false, true}) {
            if (isKnown)
                files.directory(world->base(), Reading::WhenChanged);
            EXPECT_EQ(refusal([&] { files.makeDirectory(path); }),
                      u"75 There is something of this name already"_s)
                << path.toStdString();
        }
    }
    EXPECT_EQ(folders(), QStringList{u"Sub"_s});
    EXPECT_EQ(world->content(u"Läufer.dg"_s), "x");
}

TEST_P(FileSystemContract, says_why_a_directory_cannot_be_made)
{
    world->makeFile(u"file"_s, "x");
    const auto make = [&](const QString &path) { return errorOf([&] { files.makeDirectory(path); }); };
    EXPECT_EQ(make(at(u"nowhere\\new"_s)), 76);
    EXPECT_EQ(make(at(u"nowhere\\.\\new"_s)), 76);
    EXPECT_EQ(make(at(u"file\\new"_s)), 76);
    EXPECT_EQ(make(QString()), 76);
    EXPECT_EQ(make(u"\\\\server\\share\\new"_s), 76);
    EXPECT_EQ(make(u"Q:\\new"_s), 68);
    EXPECT_EQ(make(u"Q:"_s), 68);
    for (const QString &name :
         {u"a:b\\new"_s, u"C:\\new"_s, u"a/b"_s, u"/new"_s, u"new/"_s, u"../new"_s, u"new"_s + QChar(u'\0')})
        EXPECT_EQ(make(at(name)), 52) << name.toStdString();
    EXPECT_EQ(folders(), QStringList());
    EXPECT_EQ(world->content(u"file"_s), "x");
}

TEST_P(FileSystemContract, makes_a_directory_with_quotes_in_its_name)
{
    if (!world->canBeCalled(u"say \"hi\""_s))
        GTEST_SKIP() << "this system has no such names";
    files.makeDirectory(at(u"say \"hi\""_s));
    ASSERT_EQ(folders().size(), 1);
    EXPECT_EQ(platform::displayText(folders()[0]), u"say \"hi\""_s);
    EXPECT_EQ(errorOf([&] { files.makeDirectory(at(u"SAY \"HI\""_s)); }), 75);
    files.removeDirectory(at(folders()[0]));
    EXPECT_EQ(folders(), QStringList());
}

TEST_P(FileSystemContract, removes_a_directory)
{
    world->makeDirectory(u"Sub"_s);
    world->makeDirectory(u"Süb"_s);
    world->makeFile(u"walk1.dg"_s, "x");
    EXPECT_EQ(folders(), (QStringList{u"Sub"_s, u"Süb"_s}));
    files.removeDirectory(at(u"Sub"_s));
    EXPECT_EQ(folders(), QStringList{u"Süb"_s});
    EXPECT_EQ(errorOf([&] { files.directory(at(u"Sub"_s), Reading::WhenChanged); }), 76);
    EXPECT_EQ(errorOf([&] { files.changeDirectory(at(u"SUB"_s)); }), 76);
    EXPECT_EQ(files.testReading(at(u"Sub\\walk1.dg"_s)), 76);
    EXPECT_EQ(world->content(u"walk1.dg"_s), "x");
    EXPECT_EQ(errorOf([&] { files.removeDirectory(at(u"Sub"_s)); }), 76) << "it has gone";
    files.makeDirectory(at(u"SUB"_s));
    EXPECT_EQ(files.directory(at(u"sub"_s), Reading::WhenChanged)->path(), at(u"SUB"_s));
}

TEST_P(FileSystemContract, removes_nothing_but_an_empty_directory)
{
    world->makeDirectory(u"full"_s);
    world->makeFile(u"full\\walk1.dg"_s, "x");
    world->makeDirectory(u"hiding"_s);
    world->makeHidden(u"c.dg"_s);
    world->makeFile(u"file"_s, "x");
    world->makePipe(u"pipe"_s);
    const auto remove = [&](const QString &path) { return refusal([&] { files.removeDirectory(path); }); };
    EXPECT_EQ(remove(at(u"full"_s)), u"75 It is not empty"_s);
    EXPECT_EQ(remove(at(u"full\\"_s)), u"75 It is not empty"_s);
    EXPECT_EQ(remove(world->base()), u"75 It is not empty"_s);
    EXPECT_EQ(errorOf([&] { files.removeDirectory(at(u"file"_s)); }), 75);
    EXPECT_EQ(errorOf([&] { files.removeDirectory(at(u"pipe"_s)); }), 75);
    EXPECT_EQ(remove(at(u"missing"_s)), u"76 Path not found"_s);
    EXPECT_EQ(remove(at(u"missing\\full"_s)), u"76 Path not found"_s);
    EXPECT_EQ(remove(at(u"file\\full"_s)), u"76 Path not found"_s);
    EXPECT_EQ(world->content(u"file"_s), "x");
    EXPECT_EQ(folders(), (QStringList{u"full"_s, u"hiding"_s}));
    EXPECT_EQ(files.testReading(at(u"full\\walk1.dg"_s)), 0);
    // What is hidden, and a directory, are something as well.
    files.removeDirectory(at(u"hiding"_s));
    world->remove(u"file"_s);
    world->remove(u"pipe"_s);
    world->remove(u"full"_s);
    EXPECT_EQ(remove(world->base()), u"75 It is not empty"_s);
    world->remove(u".c.dg"_s);
    world->makeDirectory(u"below"_s);
    EXPECT_EQ(remove(world->base()), u"75 It is not empty"_s);
    world->remove(u"below"_s);
    EXPECT_EQ(remove(world->base()), QString());
    EXPECT_EQ(errorOf([&] { files.directory(world->base(), Reading::WhenChanged); }), 76);
}

TEST_P(FileSystemContract, removes_a_directory_by_its_exact_name_alone)
{
    world->makeDirectory(u"Sub"_s);
    files.makeDirectory(at(u"Sub\\Below"_s));
    files.directory(at(u"Sub\\Below"_s), Reading::WhenChanged);
    for (const QString &name : {u"Sub\\below"_s, u"Sub\\BELOW"_s, u"sub\\Below"_s, u"SUB\\BELOW"_s})
        EXPECT_EQ(errorOf([&] { files.removeDirectory(at(name)); }), 76) << name.toStdString();
    for (const QString &name : {u"Sub/Below"_s, u"Sub\\x/../Below"_s, u"Sub\\../Sub/Below"_s, u"Sub:Below"_s,
                                u"Sub\\Below"_s + QChar(u'\0')})
        EXPECT_EQ(errorOf([&] { files.removeDirectory(at(name)); }), 52) << name.toStdString();
    EXPECT_EQ(errorOf([&] { files.removeDirectory(u"\\\\server\\share"_s); }), 76);
    EXPECT_EQ(errorOf([&] { files.removeDirectory(QString()); }), 76);
    EXPECT_EQ(errorOf([&] { files.removeDirectory(u"Q:\\Sub"_s); }), 68);
    EXPECT_EQ(folders(), QStringList{u"Sub"_s});
    EXPECT_EQ(files.testReading(at(u"Sub\\Below"_s)), 75);
    files.removeDirectory(at(u"Sub\\Below"_s));
    EXPECT_EQ(files.testReading(at(u"Sub\\Below"_s)), 53);
}

TEST_P(FileSystemContract, removes_no_drive_and_no_directory_that_is_not_called_by_its_name)
{
    world->makeDirectory(u"Sub"_s);
    files.makeDirectory(at(u"Sub\\Below"_s));
    files.changeDrive(world->base());
    files.changeDirectory(at(u"Sub\\Below"_s));
    const QString drive = world->base().left(1).toLower() + u':';
    for (const QString &path : {drive, drive.toUpper(), drive + u" [a label]"_s, drive + u" [a label]\\"_s,
                                drive + u" \\\\server\\share"_s, drive + u'\\', u"\\"_s})
        EXPECT_EQ(refusal([&] { files.removeDirectory(path); }), u"75 A drive cannot be removed"_s)
            << path.toStdString();
    for (const QString &path : {u"."_s, u".\\"_s, u".."_s, u"..\\..\\Sub\\Below\\."_s, drive + u'.',
                                drive + u" [a label]\\."_s, at(u"Sub\\Below\\x\\.."_s)})
        EXPECT_EQ(refusal([&] { files.removeDirectory(path); }), u"75 It must be called by its own name"_s)
            << path.toStdString();
    EXPECT_EQ(files.testReading(at(u"Sub\\Below"_s)), 75);
}

TEST_P(FileSystemContract, shows_what_was_made_and_removed_within_the_same_moment)
{
    files.directory(world->base(), Reading::Anew);
    files.beginMoment();
    EXPECT_EQ(folders(), QStringList());
    EXPECT_EQ(files.testReading(at(u"NEW"_s)), 53);
    files.makeDirectory(at(u"New"_s));
    EXPECT_EQ(folders(), QStringList{u"New"_s});
    EXPECT_EQ(files.testReading(at(u"NEW"_s)), 75);
    EXPECT_EQ(files.testReading(at(u"NEW\\RUN1.DG"_s)), 53);
    files.removeDirectory(at(u"New"_s));
    EXPECT_EQ(folders(), QStringList());
    EXPECT_EQ(files.testReading(at(u"NEW"_s)), 53);
    EXPECT_EQ(files.testReading(at(u"NEW\\RUN1.DG"_s)), 76);
    files.makeDirectory(at(u"NEW"_s));
    EXPECT_EQ(folders(), QStringList{u"NEW"_s});
    EXPECT_EQ(files.testReading(at(u"new\\run1.dg"_s)), 53);
    files.endMoment();
    EXPECT_EQ(folders(), QStringList{u"NEW"_s});
}

TEST_P(FileSystemContract, makes_and_removes_what_is_free_and_empty_now)
{
    world->makeDirectory(u"Sub"_s);
    files.directory(at(u"Sub"_s), Reading::Anew);
    files.directory(world->base(), Reading::Anew);
    files.beginMoment();
    EXPECT_EQ(files.testReading(at(u"TAKEN"_s)), 53);
    EXPECT_EQ(files.testReading(at(u"SUB\\RUN1.DG"_s)), 53);
    world->makeFile(u"taken"_s, "x");
    world->makeFile(u"Sub\\run1.dg"_s, "x");
    EXPECT_EQ(errorOf([&] { files.makeDirectory(at(u"TAKEN"_s)); }), 75);
    EXPECT_EQ(files.testReading(at(u"TAKEN"_s)), 0) << "another moment has begun all the same";
    EXPECT_EQ(files.testReading(at(u"RUN2.DG"_s)), 53);
    world->makeFile(u"run2.dg"_s, "x");
    EXPECT_EQ(errorOf([&] { files.removeDirectory(at(u"Sub"_s)); }), 75);
    EXPECT_EQ(files.testReading(at(u"RUN2.DG"_s)), 0) << "another moment has begun all the same";
    EXPECT_EQ(files.testReading(at(u"SUB\\RUN1.DG"_s)), 0);
    world->remove(u"taken"_s);
    world->remove(u"Sub"_s);
    world->makeDirectory(u"Sub"_s);
    EXPECT_EQ(errorOf([&] { files.makeDirectory(at(u"TAKEN"_s)); }), 0);
    EXPECT_EQ(errorOf([&] { files.removeDirectory(at(u"Sub"_s)); }), 0);
    EXPECT_EQ(folders(), QStringList{u"TAKEN"_s});
    EXPECT_EQ(files.testReading(at(u"LATER\\RUN1.DG"_s)), 76);
    world->makeDirectory(u"Later"_s);
    EXPECT_EQ(errorOf([&] { files.makeDirectory(at(u"LATER\\Below"_s)); }), 0);
    files.endMoment();
}

TEST_P(FileSystemContract, shows_what_is_made_and_removed_within_one_tick_of_the_clock)
{
    for (int i = 0; i < 50; ++i) {
        const QString name = (i % 2 == 0 ? u"Walk"_s : u"WALK"_s) + QString::number(i / 4);
        ASSERT_EQ(files.testReading(at(name).toUpper()), 53) << i;
        files.makeDirectory(at(name));
        ASSERT_EQ(folders(), QStringList{name}) << i;
        ASSERT_EQ(files.testReading(at(name).toUpper()), 75) << i;
        files.removeDirectory(at(name));
        ASSERT_EQ(folders(), QStringList()) << i;
    }
}

INSTANTIATE_TEST_SUITE_P(Platforms, FileSystemContract,
                         testing::Values(&makeMemoryWorld, &platform_tests::makeHostWorld),
                         [](const auto &platform) { return platform.index == 0 ? "memory" : "host"; });
