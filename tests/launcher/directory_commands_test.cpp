#include "launcher/directory_commands.h"
#include "launcher/starting.h"
#include "panel_fixture.h"
#include "platform/runtime_error.h"
#include "printing.h"
#include "shell/dispatch.h"

#include <gmock/gmock.h>

using namespace Qt::StringLiterals;
using platform::Buttons;
using platform::ErrorNumber;
using platform::Icon;
using platform::InputBox;
using platform::MessageBox;
using platform::RuntimeError;
using platform::Show;
using platform::Start;
using platform::Target;
using testing::ElementsAre;
using testing::IsEmpty;

class DirectoryCommands : public support::PanelFixture
{
protected:
    void SetUp() override
    {
        machine.files.addDirectory(u"C:\\DATA\\Empty"_s);
        addFile(u"C:\\DATA\\full\\walk1.dg"_s);
        addData({"a.cfb", "b.cfb", "walk1.dg"});
        load();
    }

    // Opens a directory, chooses a trial in it where it has one, and forgets what was recorded.
    void goTo(const QString &path)
    {
        open(path);
        kinovra.CurrentTrial = u"WALK1"_s;
        forget();
    }

    void remove(platform::Answer answer)
    {
        machine.dialogs.answers = {answer};
        if (answer == platform::Yes)
            machine.dialogs.answers.push_back(platform::OK);
        click(frm.mnuOpen[2]);
    }

    QStringList folders() const { return frm.dirSelect.Folders.value().toList(); }

    bool isThere(const QString &directory)
    {
        try {
            machine.files.directory(directory, platform::Reading::Anew);
            return true;
        } catch (const RuntimeError &) {
            return false;
        }
    }

    static MessageBox question(const QString &directory)
    {
        return {u"Do you want to remove the current directory, "_s + directory
                    + u"?\nNote, it must be empty of files."_s,
                Icon::Question, Buttons::YesNo, u"Remove directory"_s};
    }

    static MessageBox notEmpty(const QString &directory)
    {
        return {u"Directory, "_s + directory + u", was not empty.\nIt was not removed."_s, Icon::Exclamation};
    }
};

TEST_F(DirectoryCommands, show_the_lists_in_which_a_directory_is_opened)
{
    std::vector<controls::Control *> browsing{&frm.drvDrives, &frm.dirSelect,    &frm.filModels,
                                              &frm.lblModels, &frm.filDatafiles, &frm.lblDatafiles};
    std::vector<controls::Control *> others{&frm.filPlots,    &frm.lblPlots,    &frm.filOutputs,
                                            &frm.lblOutputs,  &frm.filBinaries, &frm.lblBinaries,
                                            &frm.filGraFiles, &frm.lblGraFiles};
    addData({"c.cfb"});
    for (int index = -1; index <= 4; ++index) {
        for (auto *control : browsing)
            control->Visible = false;
        for (auto *control : others)
            control->Visible = false;
        click(frm.filModels, u"b.cfb"_s);
        frm.filModels.Pattern = u"*.*"_s;
        machine.dialogs.answers = {platform::No};
        shell::dispatch(panel, [&] { launcher::mnuOpen_Click(panel, index); });
        for (auto *control : browsing)
            EXPECT_TRUE(control->Visible) << index;
        for (auto *control : others)
            EXPECT_FALSE(control->Visible) << index;
        EXPECT_EQ(frm.filModels.Pattern, u"*.cfb"_s) << index;
        EXPECT_EQ(frm.filModels.Names.value().toList(), (QStringList{u"a.cfb"_s, u"b.cfb"_s, u"c.cfb"_s}));
        EXPECT_EQ(frm.filModels.FileName(), QString()) << index;
        EXPECT_EQ(kinovra.CurrentTrial, u"b"_s) << index;
        EXPECT_EQ(kinovra.DataDir, u"C:\\DATA"_s) << index;
    }
}

TEST_F(DirectoryCommands, show_them_before_they_ask)
{
    frm.dirSelect.Visible = false;
    bool wasShown = false;
    machine.dialogs.whileChoosing = [&] { wasShown = frm.dirSelect.Visible; };
    click(frm.mnuOpen[1]);
    EXPECT_TRUE(wasShown);
    frm.dirSelect.Visible = false;
    wasShown = false;
    machine.dialogs.whileShown = [&](const MessageBox &) { wasShown = frm.dirSelect.Visible; };
    remove(platform::No);
    EXPECT_TRUE(wasShown);
}

TEST_F(DirectoryCommands, opening_and_unknown_ones_do_nothing_more)
{
    mark();
    for (int index : {-1, 0, 4})
        launcher::mnuOpen_Click(panel, index);
    expectMarkedBut({});
    EXPECT_THAT(machine.dialogs.messages, IsEmpty());
    EXPECT_THAT(machine.dialogs.inputs, IsEmpty());
    EXPECT_THAT(machine.programs.started, IsEmpty());
}

TEST_F(DirectoryCommands, make_a_subdirectory)
{
    mark();
    machine.dialogs.typed = {u"New one"_s};
    click(frm.mnuOpen[1]);
    EXPECT_THAT(machine.dialogs.inputs,
                ElementsAre(InputBox{u"Enter subdirectory name for directory, c:\\data, or press Cancel"_s,
                                     u"Make a subdirectory."_s}));
    EXPECT_EQ(folders(), (QStringList{u"Empty"_s, u"full"_s, u"New one"_s}));
    EXPECT_THAT(machine.dialogs.messages, IsEmpty());
    EXPECT_EQ(kinovra.DataDir, u"C:\\DATA"_s);
    expectMarkedBut({});
}

TEST_F(DirectoryCommands, make_none_where_no_name_was_given)
{
    for (const std::optional<QString> &typed : {std::optional<QString>(), std::optional(QString())}) {
        machine.dialogs.typed = {typed};
        click(frm.mnuOpen[1]);
        EXPECT_EQ(folders(), (QStringList{u"Empty"_s, u"full"_s}));
        EXPECT_THAT(machine.dialogs.messages, IsEmpty());
    }
}

// Also where a refused removal has left another directory the current one.
TEST_F(DirectoryCommands, make_it_below_the_data_directory_whatever_is_current)
{
    goTo(u"C:\\DATA\\full"_s);
    machine.files.addDirectory(u"C:\\ELSEWHERE"_s);
    machine.files.addDrive(u"d:"_s);
    machine.files.changeDirectory(u"C:\\ELSEWHERE"_s);
    machine.files.changeDrive(u"d:"_s);
    machine.dialogs.typed = {u"1"_s, u"..\\two"_s, u"\\three"_s, u"c:\\elsewhere\\four"_s, u"D:five"_s};
    for (int i = 0; i < 5; ++i)
        click(frm.mnuOpen[1]);
    for (const char *path :
         {R"(C:\DATA\full\1)", R"(C:\DATA\two)", "C:\\three", R"(C:\ELSEWHERE\four)", "D:\\five"})
        EXPECT_TRUE(isThere(QLatin1String(path))) << path;
    EXPECT_EQ(folders(), QStringList(u"1"_s));
    EXPECT_EQ(machine.files.currentDirectory(), u"D:\\"_s);
    EXPECT_THAT(machine.dialogs.messages, IsEmpty());
}

TEST_F(DirectoryCommands, make_it_in_a_root)
{
    goTo(u"C:\\"_s);
    EXPECT_EQ(kinovra.DataDir, u"c: [data]"_s);
    machine.dialogs.typed = {u"New"_s};
    click(frm.mnuOpen[1]);
    EXPECT_THAT(machine.dialogs.inputs,
                ElementsAre(InputBox{u"Enter subdirectory name for directory, c: [data], or press Cancel"_s,
                                     u"Make a subdirectory."_s}));
    EXPECT_EQ(folders(), (QStringList{u"DATA"_s, u"KINOVRA"_s, u"New"_s}));
}

TEST_F(DirectoryCommands, say_what_is_wrong_with_a_name)
{
    machine.dialogs.typed = {u"EMPTY"_s,      u"walk1.dg"_s, u"no\\such"_s,
                             u"two:colons"_s, u"q:\\x"_s,    u"\\\\server\\share\\x"_s};
    for (int i = 0; i < 6; ++i)
        click(frm.mnuOpen[1]);
    const MessageBox taken{u"There is something of this name already"_s, Icon::Exclamation};
    EXPECT_THAT(machine.dialogs.messages,
                ElementsAre(taken, taken, MessageBox{u"Path not found"_s, Icon::Exclamation},
                            MessageBox{u"Bad file name or number"_s, Icon::Exclamation},
                            MessageBox{u"Device unavailable"_s, Icon::Exclamation},
                            MessageBox{u"Path not found"_s, Icon::Exclamation}));
    EXPECT_EQ(folders(), (QStringList{u"Empty"_s, u"full"_s}));
    EXPECT_EQ(kinovra.DataDir, u"C:\\DATA"_s);
}

TEST_F(DirectoryCommands, ask_before_they_remove_the_current_directory)
{
    goTo(u"C:\\DATA\\Empty"_s);
    mark();
    remove(platform::No);
    EXPECT_THAT(machine.dialogs.messages, ElementsAre(question(u"c:\\data\\empty"_s)));
    EXPECT_TRUE(isThere(u"C:\\DATA\\Empty"_s));
    EXPECT_EQ(kinovra.DataDir, u"C:\\DATA\\Empty"_s);
    EXPECT_EQ(kinovra.CurrentTrial, u"WALK1"_s);
    EXPECT_EQ(machine.files.currentDirectory(), u"C:\\DATA\\Empty"_s);
    EXPECT_EQ(kinovra.TaskId, 7);
    expectMarkedBut({u"TaskId"_s});
}

TEST_F(DirectoryCommands, remove_it_and_open_the_one_above)
{
    goTo(u"C:\\DATA\\Empty"_s);
    mark();
    remove(platform::Yes);
    EXPECT_THAT(machine.dialogs.messages, ElementsAre(question(u"c:\\data\\empty"_s)));
    EXPECT_FALSE(isThere(u"C:\\DATA\\Empty"_s));
    EXPECT_EQ(kinovra.DataDir, u"C:\\DATA"_s);
    EXPECT_EQ(frm.dirSelect.Path(), u"C:\\DATA"_s);
    EXPECT_EQ(folders(), QStringList(u"full"_s));
    EXPECT_EQ(machine.files.currentDirectory(), u"C:\\DATA"_s);
    EXPECT_EQ(kinovra.TaskId, 6);
    expectMarkedBut({u"TaskId"_s});
    // The directory above is opened as ever.
    EXPECT_EQ(kinovra.CurrentTrial, QString());
    EXPECT_EQ(frm.lblPath.Caption.value(), u"c:\\data"_s);
    EXPECT_EQ(frm.filDatafiles.Names.value().toList(), QStringList(u"walk1.dg"_s));
}

TEST_F(DirectoryCommands, remove_a_directory_of_a_drive_that_is_not_the_current_one)
{
    goTo(u"C:\\DATA\\Empty"_s);
    machine.files.addDrive(u"d:"_s);
    machine.files.changeDrive(u"d:"_s);
    remove(platform::Yes);
    EXPECT_FALSE(isThere(u"C:\\DATA\\Empty"_s));
    EXPECT_EQ(kinovra.DataDir, u"C:\\DATA"_s);
    EXPECT_EQ(machine.files.currentDirectory(), u"C:\\DATA"_s);
}

TEST_F(DirectoryCommands, remove_the_directory_that_was_asked_about)
{
    goTo(u"C:\\DATA\\Empty"_s);
    machine.dialogs.whileShown = [&](const MessageBox &) { kinovra.DataDir = u"C:\\DATA\\full"_s; };
    machine.files.remove(u"C:\\DATA\\full\\walk1.dg"_s);
    remove(platform::Yes);
    EXPECT_FALSE(isThere(u"C:\\DATA\\Empty"_s));
    EXPECT_TRUE(isThere(u"C:\\DATA\\full"_s));
}

TEST_F(DirectoryCommands, leave_what_is_not_empty)
{
    goTo(u"C:\\DATA\\full"_s);
    mark();
    remove(platform::Yes);
    EXPECT_THAT(machine.dialogs.messages,
                ElementsAre(question(u"c:\\data\\full"_s), notEmpty(u"c:\\data\\full"_s)));
    EXPECT_EQ(frm.StatusBar1.Panel1.value(), u"full was not removed: it is not empty."_s);
    EXPECT_TRUE(machine.files.content(u"C:\\DATA\\full\\walk1.dg"_s));
    EXPECT_EQ(kinovra.DataDir, u"C:\\DATA\\full"_s);
    EXPECT_EQ(frm.dirSelect.Path(), u"C:\\DATA\\full"_s);
    EXPECT_EQ(kinovra.CurrentTrial, u"WALK1"_s);
    EXPECT_EQ(machine.files.currentDirectory(), u"C:\\DATA"_s);
    expectMarkedBut({u"TaskId"_s});
}

TEST_F(DirectoryCommands, leave_what_holds_nothing_but_directories)
{
    machine.files.addDirectory(u"C:\\DATA\\Empty\\below"_s);
    goTo(u"C:\\DATA\\Empty"_s);
    remove(platform::Yes);
    EXPECT_EQ(messages().last(), u"Directory, c:\\data\\empty, was not empty.\nIt was not removed."_s);
    EXPECT_TRUE(isThere(u"C:\\DATA\\Empty\\below"_s));
}

TEST_F(DirectoryCommands, give_the_true_reason_in_the_status_bar)
{
    const auto refused = [this](const QString &directory) {
        remove(platform::Yes);
        EXPECT_THAT(machine.dialogs.messages, ElementsAre(question(directory), notEmpty(directory)));
        forget();
        return frm.StatusBar1.Panel1.value();
    };
    goTo(u"C:\\"_s);
    EXPECT_EQ(refused(u"c: [data]"_s), u"c: [data] was not removed: a drive cannot be removed."_s);
    EXPECT_TRUE(isThere(u"C:\\DATA"_s));
    goTo(u"C:\\DATA"_s);

    machine.files.makeLink(u"C:\\DATA\\link"_s);
    click(frm.cmdRefresh);
    goTo(u"C:\\DATA\\link"_s);
    EXPECT_EQ(refused(u"c:\\data\\link"_s), u"link was not removed: it is not a directory of its own."_s);
    EXPECT_TRUE(isThere(u"C:\\DATA\\link"_s));

    goTo(u"C:\\DATA"_s);
    goTo(u"C:\\DATA\\Empty"_s);
    machine.files.forbid(u"C:\\DATA\\Empty"_s, ErrorNumber::PermissionDenied);
    EXPECT_EQ(refused(u"c:\\data\\empty"_s), u"Empty was not removed: permission denied."_s);
    machine.files.forbid(u"C:\\DATA\\Empty"_s, ErrorNumber::DeviceError);
    EXPECT_EQ(refused(u"c:\\data\\empty"_s), u"Empty was not removed: device I/O error."_s);
    machine.files.remove(u"C:\\DATA\\Empty"_s);
    EXPECT_EQ(refused(u"c:\\data\\empty"_s), u"Empty was not removed: path not found."_s);
    // Another one has come in its place: letter case tells them apart here.
    machine.files.addDirectory(u"C:\\DATA\\EMPTY"_s);
    EXPECT_EQ(refused(u"c:\\data\\empty"_s), u"Empty was not removed: path not found."_s);
    EXPECT_TRUE(isThere(u"C:\\DATA\\EMPTY"_s));
    // The directory above has gone with it.
    machine.files.remove(u"C:\\DATA"_s);
    EXPECT_EQ(refused(u"c:\\data\\empty"_s), u"Empty was not removed: path not found."_s);
    EXPECT_EQ(kinovra.DataDir, u"C:\\DATA\\Empty"_s);
}

TEST_F(DirectoryCommands, work_on_the_data_directory_after_a_refusal)
{
    goTo(u"C:\\DATA\\full"_s);
    remove(platform::Yes);
    machine.files.remove(u"C:\\DATA\\full\\walk1.dg"_s);
    machine.dialogs.typed = {u"sub"_s};
    click(frm.mnuOpen[1]);
    EXPECT_TRUE(isThere(u"C:\\DATA\\full\\sub"_s));
    remove(platform::Yes);
    EXPECT_TRUE(isThere(u"C:\\DATA\\full"_s));
    machine.files.remove(u"C:\\DATA\\full\\sub"_s);
    remove(platform::Yes);
    EXPECT_FALSE(isThere(u"C:\\DATA\\full"_s));
    EXPECT_EQ(kinovra.DataDir, u"C:\\DATA"_s);
}

TEST_F(DirectoryCommands, go_to_the_one_above_even_where_it_cannot_be_read)
{
    goTo(u"C:\\DATA\\Empty"_s);
    bool isRemoved = false;
    machine.files.beforeCall = [&](const QString &call) {
        if (call == u"directory" && isRemoved)
            throw RuntimeError(ErrorNumber::PermissionDenied);
        isRemoved = isRemoved || call == u"removeDirectory";
    };
    remove(platform::Yes);
    machine.files.beforeCall = {};
    EXPECT_THAT(messages(),
                ElementsAre(question(u"c:\\data\\empty"_s).text,
                            u"There was a problem finding a path.  Error was Permission denied"_s));
    EXPECT_FALSE(isThere(u"C:\\DATA\\Empty"_s));
    EXPECT_EQ(kinovra.DataDir, u"C:\\DATA"_s);
}

TEST_F(DirectoryCommands, keep_no_backslash_of_a_root_that_cannot_be_read)
{
    machine.files.addDirectory(u"C:\\Alone"_s);
    click(frm.cmdRefresh);
    goTo(u"C:\\"_s);
    goTo(u"C:\\Alone"_s);
    bool isRemoved = false;
    machine.files.beforeCall = [&](const QString &call) {
        if (call == u"directory" && isRemoved)
            throw RuntimeError(ErrorNumber::PermissionDenied);
        isRemoved = isRemoved || call == u"removeDirectory";
    };
    remove(platform::Yes);
    EXPECT_EQ(kinovra.DataDir, u"C:"_s);
    EXPECT_EQ(machine.files.currentDirectory(), u"C:\\"_s);
}

TEST_F(DirectoryCommands, explore_the_data_directory)
{
    goTo(u"C:\\DATA\\full"_s);
    machine.files.changeDirectory(u"C:\\"_s);
    mark();
    click(frm.mnuOpen[3]);
    EXPECT_THAT(machine.programs.started, ElementsAre(Start{.verb = u"explore"_s,
                                                            .directory = u"C:\\DATA\\full"_s,
                                                            .show = Show::Normal,
                                                            .owner = 4711,
                                                            .target = Target::Document}));
    EXPECT_EQ(kinovra.TaskId, 42);
    expectMarkedBut({u"TaskId"_s});
    EXPECT_THAT(machine.dialogs.messages, IsEmpty());
}

TEST_F(DirectoryCommands, say_in_the_status_bar_alone_that_exploring_failed)
{
    machine.programs.failure = u"this desktop has no file manager installed"_s;
    click(frm.mnuOpen[3]);
    EXPECT_EQ(frm.StatusBar1.Panel1.value(),
              u"DATA was not opened: this desktop has no file manager installed."_s);
    EXPECT_THAT(machine.dialogs.messages, IsEmpty());
    EXPECT_EQ(kinovra.TaskId, 2);
}

TEST_F(DirectoryCommands, end_silently_when_the_window_is_closed_meanwhile)
{
    goTo(u"C:\\DATA\\Empty"_s);
    machine.dialogs.whileShown = [&](const MessageBox &) { panel.unloading = true; };
    remove(platform::Yes);
    panel.unloading = false;
    EXPECT_TRUE(isThere(u"C:\\DATA\\Empty"_s));
    machine.dialogs.whileChoosing = [&] { panel.unloading = true; };
    machine.dialogs.typed = {u"new"_s};
    click(frm.mnuOpen[1]);
    panel.unloading = false;
    EXPECT_FALSE(isThere(u"C:\\DATA\\Empty\\new"_s));
}
