#include "platform/linux/linux_environment.h"
#include "printing.h"
#include "scratch_directory.h"

#include <gtest/gtest.h>

#include <unistd.h>

using namespace Qt::StringLiterals;
using platform::host::commandLineOf;
using platform::host::LinuxEnvironment;
using platform::host::LinuxFileSystem;

class LinuxCommandLine : public testing::Test
{
protected:
    LinuxCommandLine()
    {
        scratch.makeDirectory("data");
        scratch.makeFile("data/run1.dg");
        scratch.makeFile("data/my walk.dg");
        scratch.makeFile("bare.dg");
        scratch.makeFile("-odd.dg");
    }

    // The file system begins where the process is.
    static LinuxFileSystem filesIn(const QByteArray &directory)
    {
        EXPECT_EQ(::chdir(directory.constData()), 0);
        return LinuxFileSystem(QByteArray());
    }

    QString line(const QList<QByteArray> &arguments) { return commandLineOf(arguments, files); }

    support::KeptDirectory kept;
    support::ScratchDirectory scratch;
    LinuxFileSystem files = filesIn(scratch.path());
    QString base = files.adopt(scratch.path());
};

TEST_F(LinuxCommandLine, takes_existing_files_of_the_host_with_their_absolute_path)
{
    EXPECT_EQ(line({scratch.path("data/run1.dg")}), base + u"\\data\\run1.dg"_s);
    EXPECT_EQ(line({"data/run1.dg"}), base + u"\\data\\run1.dg"_s);
    EXPECT_EQ(line({"./data/../bare.dg"}), base + u"\\bare.dg"_s);
    EXPECT_EQ(line({"bare.dg"}), base + u"\\bare.dg"_s);
    EXPECT_EQ(line({"-odd.dg"}), base + u"\\-odd.dg"_s);
}

TEST_F(LinuxCommandLine, makes_a_relative_file_absolute_where_its_directory_exists)
{
    EXPECT_EQ(line({"data/missing.dg"}), base + u"\\data\\missing.dg"_s);
    EXPECT_EQ(line({"data\\run1.dg"}), base + u"\\data\\run1.dg"_s);
    EXPECT_EQ(line({"DATA\\missing.dg"}), base + u"\\data\\missing.dg"_s);
    EXPECT_EQ(line({"nowhere/run1.dg"}), u"nowhere/run1.dg"_s);
    EXPECT_EQ(line({"nowhere\\run1.dg"}), u"nowhere\\run1.dg"_s);
}

TEST_F(LinuxCommandLine, takes_a_bare_name_for_one_in_the_current_directory)
{
    EXPECT_EQ(line({"missing.dg"}), base + u"\\missing.dg"_s);
    EXPECT_EQ(line({"BARE.DG"}), base + u"\\BARE.DG"_s);
    EXPECT_EQ(files.testReading(base + u"\\BARE.DG"_s), 0);
    EXPECT_EQ(line({"data/RUN1.DG"}), base + u"\\data\\RUN1.DG"_s);
}

TEST_F(LinuxCommandLine, leaves_everything_else_as_it_stands)
{
    EXPECT_EQ(line({}), QString());
    EXPECT_EQ(line({"/x", "-v", ";", "?"}), u"/x -v ; ?"_s);
    EXPECT_EQ(line({"/no/such/file.dg"}), u"/no/such/file.dg"_s);
    EXPECT_EQ(line({"Z:\\data\\run1.dg"}), u"Z:\\data\\run1.dg"_s);
    EXPECT_EQ(line({"Z:run1.dg"}), u"Z:run1.dg"_s);
    EXPECT_EQ(line({"data/"}), u"data/"_s);
    EXPECT_EQ(line({"\\run1.dg"}), u"\\run1.dg"_s);
    scratch.makeDirectory("-d");
    EXPECT_EQ(line({"-d\\run1.dg"}), u"-d\\run1.dg"_s);
}

TEST_F(LinuxCommandLine, quotes_arguments_with_blanks)
{
    EXPECT_EQ(line({"data/my walk.dg", "/x"}), u'"' + base + u"\\data\\my walk.dg\" /x"_s);
    EXPECT_EQ(line({"/a b", "-c\td", ""}), u"\"/a b\" \"-c\td\" \"\""_s);
}

TEST_F(LinuxCommandLine, cannot_be_broken_by_a_quote_in_a_name)
{
    scratch.makeFile("say \"hi\".dg");
    const QString text = line({"say \"hi\".dg"});
    EXPECT_EQ(text.count(u'"'), 2);
    EXPECT_TRUE(text.startsWith(u'"') && text.endsWith(u'"'));
    EXPECT_EQ(files.testReading(text.mid(1, text.size() - 2)), 0);
}

TEST_F(LinuxCommandLine, is_given_to_the_panel)
{
    LinuxEnvironment environment({"/x", "data/run1.dg"}, files);
    EXPECT_EQ(environment.commandLine(), u"/x "_s + base + u"\\data\\run1.dg"_s);
}

TEST_F(LinuxCommandLine, and_variables_are_in_the_path_language)
{
    LinuxEnvironment environment({}, files);
    {
        const support::ScopedVariable variable("KINOVRA", scratch.path("data/"));
        EXPECT_EQ(environment.variable(u"KINOVRA"_s), base + u"\\data"_s);
    }
    {
        for (const char *relative : {"./data/", "data/", "data", "data/."}) {
            const support::ScopedVariable variable("KINOVRA", relative);
            EXPECT_EQ(environment.variable(u"KINOVRA"_s), base + u"\\data"_s) << relative;
        }
        const support::ScopedVariable variable("KINOVRA", ".");
        EXPECT_EQ(environment.variable(u"KINOVRA"_s), base);
    }
    {
        const support::ScopedVariable variable("KINOVRA", R"(Z:\opt\kv\)");
        EXPECT_EQ(environment.variable(u"KINOVRA"_s), u"Z:\\opt\\kv"_s);
    }
    {
        // A directory of the host may be called so, but is not meant.
        scratch.makeDirectory(R"(opt\kv)");
        const support::ScopedVariable variable("KINOVRA", R"(opt\kv\)");
        EXPECT_EQ(environment.variable(u"KINOVRA"_s), u"opt\\kv"_s);
    }
    {
        const support::ScopedVariable variable("KINOVRA", "Z:\\");
        EXPECT_EQ(environment.variable(u"KINOVRA"_s), u"Z:\\"_s);
    }
    {
        const support::ScopedVariable variable("KINOVRA", "/");
        EXPECT_EQ(environment.variable(u"KINOVRA"_s), u"Z:\\"_s);
    }
    {
        const support::ScopedVariable variable("KINOVRA", QByteArray());
        EXPECT_EQ(environment.variable(u"KINOVRA"_s), QString());
    }
}
