// "New model" on real files: whatever fails, no model is lost or left in halves, and the user is told.

#include "failing_calls.h"
#include "platform/linux/linux_file_system.h"
#include "printing.h"
#include "recording_platform.h"
#include "scratch_directory.h"
#include "shell/connect_rooms.h"
#include "shell/dispatch.h"

#include <gmock/gmock.h>

#include <filesystem>

#include <sys/mount.h>
#include <sys/resource.h>

using namespace Qt::StringLiterals;
using platform::Icon;
using platform::MessageBox;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

/// A file system of 64 KiB over a directory, while it lives.
class SmallFileSystem
{
public:
    explicit SmallFileSystem(QByteArray directory) : directory_(std::move(directory))
    {
        isMounted_ = ::mount("tmpfs", directory_.constData(), "tmpfs", 0, "size=64k") == 0;
    }
    ~SmallFileSystem()
    {
        if (isMounted_)
            ::umount2(directory_.constData(), MNT_DETACH);
    }
    SmallFileSystem(const SmallFileSystem &) = delete;
    SmallFileSystem &operator=(const SmallFileSystem &) = delete;

    bool isMounted() const { return isMounted_; }

private:
    QByteArray directory_;
    bool isMounted_ = false;
};

class NewModelOnDisk : public testing::Test
{
protected:
    void SetUp() override
    {
        scratch.makeFile("Walk1.cfb", model);
        makeData("walk2.Cfb");
        panel.frm.LineBreak = u"\n"_s;
        panel.kinovra.CurrentTrial = u"walk2"_s;
        shell::connectRooms(panel);
    }

    void TearDown() override { files.changeDirectory(files.adopt("/")); }

    void makeData(const QByteArray &name)
    {
        scratch.makeDirectory("data");
        scratch.makeFile("data/" + name, "old");
        panel.kinovra.DataDir = files.adopt(scratch.path("data"));
        panel.frm.filModels.show(*files.directory(panel.kinovra.DataDir, platform::Reading::Anew));
    }

    // Copies Walk1.cfb, from beside the data directory, to a name in it.
    void copyTo(const QString &name)
    {
        dialogs.messages.clear();
        dialogs.chosenFiles = {files.adopt(scratch.path()) + u"\\Walk1.cfb"_s,
                               panel.kinovra.DataDir + u'\\' + name};
        shell::dispatch(panel, panel.frm.mnuNewModel.Click);
    }

    QList<QByteArray> names() const { return scratch.names("data"); }

    static MessageBox problem(const char *number, const char *description)
    {
        return {u"Error %1.  You must specify a complete destination file name.\n%2"_s.arg(
                    QLatin1String(number), QLatin1String(description)),
                Icon::Exclamation};
    }

    const QByteArray model = QByteArray("0123456789").repeated(20'000);
    support::KeptDirectory kept;
    support::ScratchDirectory scratch{"Anna's models"};
    support::FailingCalls *calls = new support::FailingCalls;
    platform::host::LinuxFileSystem files{QByteArray(), std::unique_ptr<platform::host::SystemCalls>(calls)};
    support::RecordingSettings settings;
    support::RecordingEnvironment environment;
    support::RecordingPrograms programs;
    support::RecordingDialogs dialogs;
    support::RecordingClock clock;
    support::RecordingRegistry registry;
    platform::Platform platform{settings, environment, files, programs, dialogs, clock, registry};
    shell::Panel panel{platform};
};

} // namespace

TEST_F(NewModelOnDisk, arrives_whole)
{
    copyTo(u"walk3"_s);
    EXPECT_EQ(scratch.read("data/walk3.CFB"), model);
    EXPECT_THAT(names(), ElementsAre("walk2.Cfb", "walk3.CFB"));
    EXPECT_EQ(panel.frm.filModels.Names.value().toList(), (QStringList{u"walk2.Cfb"_s, u"walk3.CFB"_s}));
    EXPECT_EQ(panel.kinovra.CurrentTrial, u"walk3"_s);
    EXPECT_THAT(dialogs.messages, IsEmpty());
}

TEST_F(NewModelOnDisk, replaces_the_model_that_is_there_in_another_case)
{
    dialogs.answers = {platform::Yes};
    copyTo(u"WALK2"_s);
    EXPECT_THAT(names(), ElementsAre("walk2.Cfb"));
    EXPECT_EQ(scratch.read("data/walk2.Cfb"), model);
    ASSERT_EQ(dialogs.messages.size(), 1U);
    EXPECT_EQ(dialogs.messages[0].text, u"This model is there already:\n"_s + panel.kinovra.DataDir
                                            + u"\\walk2.Cfb\nDo you want to replace it?"_s);
}

TEST_F(NewModelOnDisk, is_told_to_have_failed_in_every_step)
{
    copyTo(u"walk3"_s);
    const int steps = calls->made - 1;
    scratch.remove("data/walk3.CFB");
    ASSERT_GT(steps, 20);
    panel.kinovra.CurrentTrial = u"walk2"_s;
    for (int step = 0; step < steps; ++step) {
        calls->failing = step;
        calls->error = EIO;
        calls->made = 0;
        copyTo(u"walk3"_s);
        EXPECT_THAT(dialogs.messages, ElementsAre(problem("57", "Device I/O error"))) << step;
        calls->made = 0;
        dialogs.answers = {platform::Yes, platform::OK};
        copyTo(u"walk2"_s);
        ASSERT_EQ(dialogs.messages.size(), 2U) << step;
        EXPECT_EQ(dialogs.messages[1], problem("57", "Device I/O error")) << step;
        EXPECT_THAT(names(), ElementsAre("walk2.Cfb")) << step;
        EXPECT_EQ(scratch.read("data/walk2.Cfb"), "old") << step;
        EXPECT_EQ(scratch.read("Walk1.cfb"), model) << step;
        EXPECT_EQ(panel.kinovra.CurrentTrial, u"walk2"_s);
    }
}

TEST_F(NewModelOnDisk, is_told_to_have_failed_on_a_full_disk)
{
    const SmallFileSystem small(scratch.path("data"));
    if (!small.isMounted())
        GTEST_SKIP() << "this system lets nobody mount a file system here";
    makeData("walk2.Cfb");
    copyTo(u"walk3"_s);
    EXPECT_THAT(dialogs.messages, ElementsAre(problem("61", "Disk full")));
    dialogs.answers = {platform::Yes, platform::OK};
    copyTo(u"walk2"_s);
    ASSERT_EQ(dialogs.messages.size(), 2U);
    EXPECT_EQ(dialogs.messages[1], problem("61", "Disk full"));
    EXPECT_THAT(names(), ElementsAre("walk2.Cfb"));
    EXPECT_EQ(scratch.read("data/walk2.Cfb"), "old");
    EXPECT_EQ(scratch.read("Walk1.cfb"), model);
    EXPECT_EQ(panel.kinovra.CurrentTrial, u"walk2"_s);
}

TEST_F(NewModelOnDisk, is_told_to_have_failed_where_files_may_not_grow)
{
    rlimit limit{};
    ::getrlimit(RLIMIT_FSIZE, &limit);
    const rlimit small{65'536, limit.rlim_max};
    ::setrlimit(RLIMIT_FSIZE, &small);
    copyTo(u"walk3"_s);
    ::setrlimit(RLIMIT_FSIZE, &limit);
    EXPECT_THAT(dialogs.messages, ElementsAre(problem("61", "Disk full")));
    EXPECT_THAT(names(), ElementsAre("walk2.Cfb"));
}

TEST_F(NewModelOnDisk, stays_as_it_is_under_every_name_of_its_own)
{
    scratch.makeLink("data/link.cfb", "../Walk1.cfb");
    std::filesystem::create_hard_link(scratch.path("Walk1.cfb").toStdString(),
                                      scratch.path("data/second.cfb").toStdString());
    for (const QString &name : {u"LINK"_s, u"second"_s}) {
        calls->made = 0;
        panel.frm.StatusBar1.Panel1 = QString();
        copyTo(name);
        EXPECT_EQ(calls->made, 0) << name.toStdString();
        EXPECT_TRUE(
            panel.frm.StatusBar1.Panel1.value().endsWith(u"is that model itself: it stays as it is."_s));
    }
    EXPECT_EQ(scratch.read("Walk1.cfb"), model);
    EXPECT_TRUE(std::filesystem::is_symlink(scratch.path("data/link.cfb").toStdString()));
}

TEST_F(NewModelOnDisk, asks_again_where_a_link_leads_elsewhere_meanwhile)
{
    scratch.makeFile("first.cfb", "first");
    scratch.makeFile("second.cfb", "second");
    scratch.makeLink("data/link.cfb", "../first.cfb");
    dialogs.whileShown = [this](const MessageBox &) {
        scratch.remove("data/link.cfb");
        scratch.makeLink("data/link.cfb", "../second.cfb");
    };
    dialogs.answers = {platform::Yes, platform::No};
    copyTo(u"link"_s);
    const QString models = files.adopt(scratch.path());
    ASSERT_EQ(dialogs.messages.size(), 2U);
    EXPECT_EQ(dialogs.messages[0].text,
              u"This model is there already:\n"_s + models + u"\\first.cfb\nDo you want to replace it?"_s);
    EXPECT_EQ(dialogs.messages[1].text, u"This model has changed meanwhile:\n"_s + models
                                            + u"\\second.cfb\nDo you want to replace it?"_s);
    EXPECT_EQ(scratch.read("first.cfb"), "first");
    EXPECT_EQ(scratch.read("second.cfb"), "second");
}
