// What the host's file system does beyond what every file system does.

#include "platform/linux/directory_reader.h"
#include "platform/linux/linux_file_system.h"
#include "platform/runtime_error.h"
#include "printing.h"
#include "scratch_directory.h"
#include "without_descriptors.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using platform::Reading;
using platform::Replacing;
using platform::host::LinuxFileSystem;
using support::WithoutDescriptors;

class LinuxFiles : public testing::Test
{
protected:
    /// The number of the error that opening the file raises; 0 where it is opened.
    qint16 opening(const QString &path)
    {
        try {
            files.openFile(path);
        } catch (const platform::RuntimeError &error) {
            return error.Number;
        }
        return 0;
    }

    QString at(const QString &name) const { return base + u'\\' + name; }
    QString upper(const QString &name) const { return at(name).toUpper(); }

    support::KeptDirectory kept;
    support::ScratchDirectory scratch{"Anna's data"};
    LinuxFileSystem files{QByteArray()};
    QString base = files.adopt(scratch.path());
};

TEST_F(LinuxFiles, refuse_pipes_devices_and_links_to_nowhere_without_waiting)
{
    scratch.makePipe("pipe.dg");
    scratch.makeLink("device.dg", "/dev/zero");
    scratch.makeLink("terminal.dg", "/dev/tty");
    scratch.makeLink("dangling.dg", "/gone/away");
    scratch.makeLink("loop.dg", "loop.dg");
    scratch.makeLink("file.dg", "target");
    scratch.makeFile("target");
    EXPECT_EQ(files.testReading(at(u"pipe.dg"_s)), 75);
    EXPECT_EQ(files.testReading(at(u"device.dg"_s)), 75);
    EXPECT_EQ(files.testReading(at(u"terminal.dg"_s)), 75);
    EXPECT_EQ(files.testReading(at(u"dangling.dg"_s)), 53);
    EXPECT_EQ(files.testReading(at(u"loop.dg"_s)), 75);
    EXPECT_EQ(files.testReading(at(u"file.dg"_s)), 0);
    EXPECT_THROW(files.firstLine(at(u"pipe.dg"_s)), platform::RuntimeError);
    EXPECT_EQ(opening(at(u"pipe.dg"_s)), 75);
    EXPECT_EQ(opening(upper(u"pipe.dg"_s)), 75);
    EXPECT_EQ(opening(at(u"device.dg"_s)), 75);
    EXPECT_EQ(opening(at(u"dangling.dg"_s)), 53);
    EXPECT_EQ(opening(at(u"file.dg"_s)), 0);
    EXPECT_EQ(files.directory(base, Reading::Anew)->files(u"*.dg"_s).toList(), QStringList{u"file.dg"_s});
}

TEST_F(LinuxFiles, cannot_be_opened_where_too_many_are)
{
    scratch.makeFile("About.txt", "text");
    // The sanitizer needs a descriptor where it meets a type for the first time.
    scratch.makeDirectory("Other");
    scratch.makeFile("Other/about.txt", "text");
    EXPECT_EQ(opening(at(u"Other\\about.txt"_s)), 0);
    EXPECT_EQ(opening(at(u"Other\\missing.txt"_s)), 53);
    EXPECT_EQ(files.testReading(at(u"Other\\missing.txt"_s)), 53);
    {
        const WithoutDescriptors none;
        EXPECT_EQ(opening(at(u"About.txt"_s)), 67);
        EXPECT_EQ(opening(upper(u"About.txt"_s)), 67) << "whether there is such a file cannot be known";
        EXPECT_EQ(files.testReading(upper(u"About.txt"_s)), 67);
    }
    EXPECT_EQ(opening(upper(u"About.txt"_s)), 0);
    EXPECT_EQ(opening(upper(u"missing.txt"_s)), 53);
    files.directory(base, Reading::Anew);
    files.beginMoment();
    EXPECT_EQ(opening(upper(u"About.txt"_s)), 0);
    {
        const WithoutDescriptors none;
        EXPECT_EQ(opening(upper(u"About.txt"_s)), 67);
        EXPECT_EQ(opening(upper(u"missing.txt"_s)), 53) << "its directory is known already";
    }
    files.endMoment();
}

TEST_F(LinuxFiles, raise_what_goes_wrong_while_they_are_read)
{
    // The process's own memory, of which nothing lies at its beginning.
    const auto file = files.openFile(u"Z:\\proc\\self\\mem"_s);
    try {
        file->read(16);
        ADD_FAILURE() << "nothing was read without an error";
    } catch (const platform::RuntimeError &error) {
        EXPECT_EQ(error.Number, 57);
    }
}

TEST_F(LinuxFiles, grow_and_shrink_while_they_are_read)
{
    scratch.makeFile("about.txt", "0123456789");
    const auto file = files.openFile(at(u"about.txt"_s));
    EXPECT_EQ(file->read(4), "0123");
    scratch.makeFile("about.txt", "01");
    EXPECT_EQ(file->read(4), "");
    scratch.makeFile("about.txt", "0123456789ab");
    EXPECT_EQ(file->read(4), "4567");
    EXPECT_EQ(file->read(100), "89ab");
}

TEST_F(LinuxFiles, know_permissions)
{
    scratch.makeFile("secret.dg");
    scratch.makeDirectory("closed/below");
    scratch.makeFile("closed/below/run1.dg");
    ::chmod(scratch.path("secret.dg").constData(), 0);
    ::chmod(scratch.path("closed").constData(), 0);
    {
        const support::WithoutPrivileges nobody;
        EXPECT_EQ(files.testReading(at(u"secret.dg"_s)), 70);
        EXPECT_EQ(files.testReading(upper(u"secret.dg"_s)), 70);
        EXPECT_EQ(files.testReading(at(u"closed\\below\\run1.dg"_s)), 70);
        EXPECT_EQ(files.testReading(upper(u"closed\\run1.dg"_s)), 70);
        EXPECT_EQ(files.testReading(at(u"missing.dg"_s)), 53);
        try {
            files.directory(at(u"closed"_s), Reading::Anew);
            ADD_FAILURE() << "a closed directory was read";
        } catch (const platform::RuntimeError &error) {
            EXPECT_EQ(error.Number, 70);
        }
        try {
            files.changeDirectory(at(u"closed"_s));
            ADD_FAILURE() << "a closed directory was entered";
        } catch (const platform::RuntimeError &error) {
            EXPECT_EQ(error.Number, 70);
        }
    }
    ::chmod(scratch.path("closed").constData(), 0755);
}

TEST_F(LinuxFiles, find_a_used_directory_again_below_one_that_cannot_be_listed)
{
    scratch.makeDirectory("Home/anna");
    scratch.makeFile("Home/anna/walk1.dg");
    // Its owner may not list it either.
    ::chmod(scratch.path("Home").constData(), 0311);
    {
        const support::WithoutPrivileges nobody;
        EXPECT_EQ(files.testReading(upper(u"Home\\anna\\walk1.dg"_s)), 76);
        files.directory(at(u"Home\\anna"_s), Reading::WhenChanged);
        EXPECT_EQ(files.testReading(upper(u"Home\\anna\\walk1.dg"_s)), 0);
        EXPECT_EQ(files.testReading(upper(u"Home\\anna\\walk2.dg"_s)), 53);
    }
    ::chmod(scratch.path("Home").constData(), 0755);
}

TEST_F(LinuxFiles, tell_apart_directories_that_differ_in_case_alone)
{
    scratch.makeDirectory("Anna");
    scratch.makeDirectory("anna");
    scratch.makeFile("Anna/upper.dg");
    scratch.makeFile("anna/lower.dg");
    files.directory(at(u"anna"_s), Reading::WhenChanged);
    EXPECT_EQ(files.testReading(upper(u"anna\\lower.dg"_s)), 0);
    EXPECT_EQ(files.testReading(upper(u"anna\\upper.dg"_s)), 53);
    files.directory(at(u"Anna"_s), Reading::WhenChanged);
    EXPECT_EQ(files.directory(at(u"Anna"_s), Reading::WhenChanged)->path(), at(u"Anna"_s));
    EXPECT_EQ(files.testReading(upper(u"anna\\upper.dg"_s)), 0);
    EXPECT_EQ(files.testReading(upper(u"anna\\lower.dg"_s)), 53);
}

TEST_F(LinuxFiles, prefer_the_exact_name_of_names_that_differ_in_case_alone)
{
    scratch.makeFile("walk1.dg", "lower\n");
    scratch.makeFile("Walk1.dg", "capital\n");
    EXPECT_EQ(files.firstLine(at(u"walk1.dg"_s)), u"lower"_s);
    EXPECT_EQ(files.firstLine(at(u"Walk1.dg"_s)), u"capital"_s);
    EXPECT_EQ(files.firstLine(at(u"WALK1.DG"_s)), u"capital"_s);
}

TEST_F(LinuxFiles, find_names_that_the_path_language_cannot_spell)
{
    for (const QByteArray &name :
         {QByteArray("a:b.dg"), QByteArray("c\\d.dg"), QByteArray("say \"hi\".dg"), QByteArray("caf\xE9.dg"),
          QByteArray("new\nline.dg"), QByteArray("-rf & $(x) %y ^z;.dg"), QByteArray(" blank .dg")}) {
        scratch.makeFile(name, "title of " + name.toHex() + '\n');
    }
    const auto names = files.directory(base, Reading::Anew)->files(u"*.dg"_s);
    ASSERT_EQ(names.count(), 7);
    for (int row = 0; row < names.count(); ++row) {
        EXPECT_EQ(files.testReading(upper(names.at(row))), 0) << names.at(row).toStdString();
        EXPECT_TRUE(files.firstLine(at(names.at(row))).startsWith(u"title of"_s));
    }
}

TEST_F(LinuxFiles, find_names_of_the_longest_length)
{
    const QByteArray longest(252, 'n');
    scratch.makeFile(longest + ".dg");
    EXPECT_EQ(files.testReading(upper(QString::fromLatin1(longest) + u".dg"_s)), 0);
    EXPECT_EQ(files.testReading(at(QString(300, u'n'))), 53);
}

TEST_F(LinuxFiles, take_a_native_program_for_a_missing_exe)
{
    scratch.makeExecutable("kinemati", "#!/bin/true\n");
    scratch.makeFile("noise");
    scratch.makeExecutable("fourier", "#!/bin/true\n");
    scratch.makeFile("Fourier.EXE", "MZ");
    scratch.makeDirectory("energy");
    EXPECT_EQ(files.testReading(upper(u"kinemati.exe"_s)), 0);
    EXPECT_EQ(files.hostProgram(upper(u"kinemati.exe"_s)), scratch.path("kinemati"));
    EXPECT_EQ(files.testReading(upper(u"noise.exe"_s)), 53);
    EXPECT_EQ(files.hostProgram(upper(u"fourier.exe"_s)), scratch.path("Fourier.EXE"));
    EXPECT_EQ(files.testReading(upper(u"energy.exe"_s)), 53);
    EXPECT_EQ(files.testReading(upper(u"kinemati.out"_s)), 53);
    EXPECT_EQ(files.openFile(upper(u"kinemati.exe"_s))->read(100), "#!/bin/true\n");
    EXPECT_EQ(files.openFile(upper(u"fourier.exe"_s))->read(100), "MZ");
    EXPECT_EQ(opening(upper(u"noise.exe"_s)), 53);
    EXPECT_EQ(opening(upper(u"kinemati.txt"_s)), 53);
}

TEST_F(LinuxFiles, take_no_program_that_has_gone_since_the_moment_began)
{
    scratch.makeExecutable("kinemati", "#!/bin/true\n");
    files.directory(base, Reading::Anew);
    files.beginMoment();
    EXPECT_EQ(files.testReading(upper(u"kinemati.exe"_s)), 0);
    scratch.remove("kinemati");
    EXPECT_EQ(files.testReading(upper(u"kinemati.exe"_s)), 53);
    EXPECT_EQ(files.hostProgram(upper(u"kinemati.exe"_s)), std::nullopt);
    files.endMoment();
}

TEST_F(LinuxFiles, give_documents_their_true_path)
{
    scratch.makeFile("WALK1.DG");
    EXPECT_EQ(files.hostDocument(at(u"walk1.dg"_s)), scratch.path("WALK1.DG"));
    EXPECT_EQ(files.hostDocument(at(u"new model.cfb"_s)), scratch.path("new model.cfb"));
    EXPECT_FALSE(files.hostDocument(at(u"nowhere\\x.cfb"_s)).has_value());
    EXPECT_EQ(files.hostDocument(u"Z:\\no such file.x"_s), QByteArray("/no such file.x"));
}

TEST_F(LinuxFiles, are_written_behind_links)
{
    scratch.makeDirectory("shared");
    scratch.makeFile("shared/Model.cfb", "old");
    scratch.makeFile("walk1.cfb", "new");
    scratch.makeLink("walk2.cfb", "shared/Model.cfb");
    scratch.makeLink("nowhere.cfb", "gone/model.cfb");
    EXPECT_EQ(files.existingFile(at(u"WALK2.CFB"_s)), at(u"shared\\Model.cfb"_s));
    EXPECT_EQ(files.existingFile(at(u"nowhere.cfb"_s)), std::nullopt);
    files.copyFile(at(u"walk1.cfb"_s), at(u"WALK2.CFB"_s), Replacing::Agreed);
    EXPECT_EQ(scratch.read("shared/Model.cfb"), "new");
    EXPECT_TRUE(std::filesystem::is_symlink(scratch.path("walk2.cfb").toStdString()));
    try {
        files.copyFile(at(u"walk1.cfb"_s), at(u"nowhere.cfb"_s), Replacing::Agreed);
        ADD_FAILURE() << "a link that leads nowhere was written";
    } catch (const platform::RuntimeError &error) {
        EXPECT_EQ(error.Number, 75);
    }
    EXPECT_TRUE(std::filesystem::is_symlink(scratch.path("nowhere.cfb").toStdString()));
    EXPECT_EQ(scratch.names(), (QList<QByteArray>{"nowhere.cfb", "shared", "walk1.cfb", "walk2.cfb"}));
}

TEST_F(LinuxFiles, are_one_file_under_all_their_names)
{
    scratch.makeFile("walk1.cfb");
    scratch.makeLink("link.cfb", "walk1.cfb");
    std::filesystem::create_hard_link(scratch.path("walk1.cfb").toStdString(),
                                      scratch.path("second.cfb").toStdString());
    const auto walk1 = files.stamp(at(u"walk1.cfb"_s));
    ASSERT_TRUE(walk1.has_value());
    for (const QString &name : {u"link.cfb"_s, u"second.cfb"_s, u"WALK1.CFB"_s})
        EXPECT_TRUE(walk1->isOfSameFile(files.stamp(at(name)).value())) << name.toStdString();
}

TEST_F(LinuxFiles, have_no_stamp_once_they_are_gone)
{
    scratch.makeFile("walk1.cfb");
    files.directory(base, Reading::Anew);
    files.beginMoment();
    EXPECT_TRUE(files.stamp(at(u"walk1.cfb"_s)).has_value());
    scratch.remove("walk1.cfb");
    EXPECT_FALSE(files.stamp(at(u"walk1.cfb"_s)).has_value());
    files.endMoment();
}

TEST_F(LinuxFiles, have_no_names_that_are_none_wherever_they_are_looked_for)
{
    scratch.makeFile("walk1.dg");
    files.directory(base, Reading::Anew);
    EXPECT_EQ(files.testReading(at(u"walk1.dg"_s)), 0);
    EXPECT_EQ(files.testReading(at(u"walk1:dg"_s)), 52);
    EXPECT_EQ(files.testReading(at(u"walk1.dg"_s + QChar(u'\0'))), 52);
    EXPECT_EQ(files.testReading(at(u"walk1.dg"_s)), 0);
}

TEST_F(LinuxFiles, are_replaced_even_while_another_program_keeps_them_open)
{
    scratch.makeFile("walk1.cfb", "new");
    scratch.makeFile("walk2.cfb", "old");
    std::ifstream reader(scratch.path("walk2.cfb").toStdString());
    files.copyFile(at(u"walk1.cfb"_s), at(u"walk2.cfb"_s), Replacing::Agreed);
    EXPECT_EQ(scratch.read("walk2.cfb"), "new");
    std::string seen;
    reader >> seen;
    EXPECT_EQ(seen, "old") << "the other program still reads what it has opened";
}

TEST_F(LinuxFiles, are_offered_in_any_case)
{
    EXPECT_EQ(files.anyCase(u"*.cfb"_s), u"*.[cC][fF][bB]"_s);
    EXPECT_EQ(files.anyCase(u"*.1T;*.*"_s), u"*.1[tT];*.*"_s);
}

TEST_F(LinuxFiles, take_the_process_along)
{
    scratch.makeDirectory("sub");
    files.changeDrive(base);
    files.changeDirectory(at(u"SUB"_s));
    EXPECT_EQ(std::filesystem::current_path().string(), scratch.path("sub").toStdString());
}

TEST_F(LinuxFiles, take_no_program_on_another_drive_for_a_directory)
{
    scratch.makeDirectory("prefix/dosdevices");
    scratch.makeDirectory("prefix/drive_c");
    scratch.makeFile("prefix/drive_c/program");
    ::chmod(scratch.path("prefix/drive_c/program").constData(), 0755);
    scratch.makeLink("prefix/dosdevices/c:", "../drive_c");
    LinuxFileSystem wine(scratch.path("prefix"));
    wine.changeDrive(u"z:"_s);
    EXPECT_THROW(wine.changeDirectory(u"C:\\program"_s), platform::RuntimeError);
}

TEST_F(LinuxFiles, begin_at_the_root_where_the_start_directory_is_gone)
{
    scratch.makeDirectory("doomed");
    ASSERT_EQ(::chdir(scratch.path("doomed").constData()), 0);
    scratch.remove("doomed");
    LinuxFileSystem others{QByteArray()};
    EXPECT_EQ(others.currentDirectory(), u"Z:\\"_s);
}

TEST_F(LinuxFiles, keep_a_current_directory_for_each_drive)
{
    scratch.makeDirectory("prefix/dosdevices");
    scratch.makeDirectory("prefix/drive_c/data");
    scratch.makeLink("prefix/dosdevices/c:", "../drive_c");
    LinuxFileSystem wine(scratch.path("prefix"));
    EXPECT_EQ(wine.drives(), (QStringList{u"c:"_s, u"z:"_s}));
    wine.changeDrive(u"z:"_s);
    wine.changeDirectory(u"C:\\DATA"_s);
    EXPECT_EQ(wine.currentDirectory().left(2), u"Z:"_s);
    wine.changeDrive(u"c:"_s);
    EXPECT_EQ(wine.currentDirectory(), u"C:\\data"_s);
    EXPECT_EQ(std::filesystem::current_path().string(), scratch.path("prefix/drive_c/data").toStdString());
    EXPECT_EQ(wine.adopt(scratch.path("prefix/drive_c/data")), u"C:\\data"_s);
}

TEST_F(LinuxFiles, leave_a_current_directory_that_cannot_be_entered_any_more)
{
    scratch.makeDirectory("sub");
    files.changeDrive(base);
    files.changeDirectory(at(u"sub"_s));
    ::chmod(scratch.path("sub").constData(), 0);
    {
        const support::WithoutPrivileges nobody;
        files.changeDrive(u"z:"_s);
    }
    EXPECT_EQ(files.currentDirectory(), u"Z:\\"_s);
    EXPECT_EQ(std::filesystem::current_path().string(), "/");
}

TEST_F(LinuxFiles, stay_on_their_drive_where_the_other_one_is_gone)
{
    scratch.makeDirectory("prefix/dosdevices");
    scratch.makeDirectory("prefix/drive_c");
    scratch.makeLink("prefix/dosdevices/c:", "../drive_c");
    LinuxFileSystem wine(scratch.path("prefix"));
    wine.changeDrive(u"z:"_s);
    EXPECT_EQ(wine.testReading(u"C:\\x"_s), 53);
    scratch.remove("prefix/drive_c");
    try {
        wine.changeDrive(u"c:"_s);
        ADD_FAILURE() << "a drive that is gone became the current one";
    } catch (const platform::RuntimeError &error) {
        EXPECT_EQ(error.Number, 76);
    }
    EXPECT_EQ(wine.currentDirectory().left(2), u"Z:"_s);
}

TEST_F(LinuxFiles, of_directories_that_were_not_used_for_long_are_read_again)
{
    const auto directory = [this](int number) {
        return files.directory(at(u"sub%1"_s.arg(number)), Reading::WhenChanged);
    };
    for (int i = 0; i < 40; ++i)
        scratch.makeDirectory("sub" + QByteArray::number(i));
    files.beginMoment();
    const auto first = directory(0);
    EXPECT_EQ(directory(0), first);
    for (int i = 1; i < 40; ++i)
        directory(i);
    const auto last = directory(39);
    EXPECT_EQ(directory(39), last);
    EXPECT_NE(directory(0), first);
    EXPECT_EQ(directory(0)->path(), at(u"sub0"_s));
    files.endMoment();
}

TEST_F(LinuxFiles, read_titles_of_any_kind)
{
    scratch.makeFile("bom.dg", "\xEF\xBB\xBF"
                               "Title\n");
    scratch.makeFile("cp1252.dg", "L\xE4ufer \x96 \x80 5\n");
    scratch.makeFile("dos.dg", "Title\x1Aold garbage\n");
    scratch.makeFile("ended.dg", "\x1A");
    scratch.makeFile("huge.dg", QByteArray(10'000'000, 'x'));
    scratch.makeFile("wide.dg", QByteArray("x") + QByteArray("\xC3\xA4").repeated(100'000));
    scratch.makeFile("binary.dg", QByteArray("\x00\x01\x02\xFF\x1B[31m\n", 10));
    EXPECT_EQ(files.firstLine(at(u"bom.dg"_s)), u"Title"_s);
    EXPECT_EQ(files.firstLine(at(u"cp1252.dg"_s)), u"Läufer – € 5"_s);
    EXPECT_EQ(files.firstLine(at(u"dos.dg"_s)), u"Title"_s);
    EXPECT_THROW(files.firstLine(at(u"ended.dg"_s)), platform::RuntimeError);
    EXPECT_EQ(files.firstLine(at(u"huge.dg"_s)).size(), 65536);
    EXPECT_EQ(files.firstLine(at(u"wide.dg"_s)), u'x' + QString(32767, u'ä'));
    EXPECT_EQ(files.firstLine(at(u"binary.dg"_s)).size(), 9);
}

TEST_F(LinuxFiles, see_changes_within_one_tick_of_the_clock)
{
    for (int i = 0; i < 200; ++i) {
        const QByteArray name = "trial" + QByteArray::number(i) + ".km";
        ASSERT_EQ(files.testReading(upper(QString::fromLatin1(name))), 53) << i;
        scratch.makeFile(name);
        ASSERT_EQ(files.testReading(upper(QString::fromLatin1(name))), 0) << i;
    }
}

// Of a file system whose clock is not known a tenth of a second is too short a time.
TEST(DirectoryReadings, are_not_settled_while_a_change_could_share_their_time)
{
    using platform::host::readDirectory;
    const support::ScratchDirectory scratch;
    scratch.makeFile("new.dg");
    EXPECT_FALSE(readDirectory(scratch.path(), u"Z:\\data"_s).settled);
    const QByteArray threads = "/proc/self/task";
    readDirectory(threads, u"Z:\\task"_s);
    ::usleep(100'000);
    EXPECT_FALSE(readDirectory(threads, u"Z:\\task"_s).settled);
}

TEST_F(LinuxFiles, survive_a_directory_that_vanishes_and_comes_back)
{
    scratch.makeDirectory("data");
    scratch.makeFile("data/run1.dg");
    files.directory(at(u"data"_s), Reading::WhenChanged);
    scratch.remove("data");
    EXPECT_EQ(files.testReading(upper(u"data\\run1.dg"_s)), 76);
    EXPECT_THROW(files.directory(at(u"data"_s), Reading::Anew), platform::RuntimeError);
    scratch.makeDirectory("Data");
    scratch.makeFile("Data/run1.dg");
    EXPECT_EQ(files.testReading(upper(u"data\\run1.dg"_s)), 0);
}

TEST_F(LinuxFiles, are_what_they_were_when_the_moment_began)
{
    files.directory(base, Reading::Anew);
    files.beginMoment();
    EXPECT_EQ(files.testReading(upper(u"new.km"_s)), 53);
    scratch.makeFile("new.km");
    EXPECT_EQ(files.testReading(upper(u"new.km"_s)), 53);
    files.nextMoment();
    EXPECT_EQ(files.testReading(upper(u"new.km"_s)), 0);
    scratch.remove("new.km");
    files.beginMoment();
    EXPECT_EQ(files.testReading(upper(u"new.km"_s)), 53)
        << "a moment within another one sees what is there now";
    files.endMoment();
    files.endMoment();
    scratch.makeFile("new.km");
    EXPECT_EQ(files.testReading(upper(u"new.km"_s)), 0) << "between moments everything is looked at";
}

TEST_F(LinuxFiles, are_those_of_the_directory_that_has_the_name_now)
{
    scratch.makeDirectory("data");
    scratch.makeDirectory("other");
    scratch.makeFile("data/old.dg");
    scratch.makeFile("other/new.dg");
    files.directory(at(u"data"_s), Reading::Anew);
    EXPECT_EQ(files.testReading(upper(u"data\\old.dg"_s)), 0);
    std::filesystem::rename(scratch.path("data").toStdString(), scratch.path("gone").toStdString());
    std::filesystem::rename(scratch.path("other").toStdString(), scratch.path("data").toStdString());
    EXPECT_EQ(files.testReading(upper(u"data\\old.dg"_s)), 53);
    EXPECT_EQ(files.testReading(upper(u"data\\new.dg"_s)), 0);
}

TEST_F(LinuxFiles, are_those_of_the_exact_directory_where_two_differ_in_case_alone)
{
    scratch.makeDirectory("anna");
    scratch.makeDirectory("Anna");
    scratch.makeFile("anna/lower.dg", "lower\n");
    scratch.makeFile("Anna/upper.dg", "upper\n");
    files.directory(at(u"anna"_s), Reading::Anew);
    files.directory(at(u"Anna"_s), Reading::Anew);
    EXPECT_EQ(files.firstLine(at(u"anna\\lower.dg"_s)), u"lower"_s);
    EXPECT_EQ(files.firstLine(at(u"Anna\\upper.dg"_s)), u"upper"_s);
    EXPECT_EQ(files.testReading(upper(u"anna\\upper.dg"_s)), 0) << "the one that was used last";
}

TEST(LinuxDrives, are_another_place_once_their_letter_is)
{
    const support::KeptDirectory kept;
    const support::ScratchDirectory prefix("prefix");
    prefix.makeDirectory("stick1/data");
    prefix.makeDirectory("another stick/data");
    prefix.makeFile("stick1/data/a.dg");
    prefix.makeFile("another stick/data/b.dg");
    prefix.makeDirectory("dosdevices");
    prefix.makeLink("dosdevices/e:", prefix.path("stick1"));
    LinuxFileSystem files{prefix.path()};
    EXPECT_EQ(files.directory(u"E:\\data"_s, Reading::Anew)->files(u"*.dg"_s).toList(),
              QStringList{u"a.dg"_s});
    EXPECT_EQ(files.testReading(u"E:\\DATA\\A.DG"_s), 0);

    prefix.remove("dosdevices/e:");
    prefix.makeLink("dosdevices/e:", prefix.path("another stick"));
    files.drives();
    EXPECT_EQ(files.directory(u"E:\\data"_s, Reading::WhenChanged)->files(u"*.dg"_s).toList(),
              QStringList{u"b.dg"_s});
    EXPECT_EQ(files.testReading(u"E:\\DATA\\A.DG"_s), 53);
    EXPECT_EQ(files.testReading(u"E:\\DATA\\B.DG"_s), 0);

    prefix.remove("dosdevices/e:");
    EXPECT_EQ(files.drives(), QStringList{u"z:"_s});
    EXPECT_EQ(files.testReading(u"E:\\DATA\\B.DG"_s), 68);
}
