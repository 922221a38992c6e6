#include "launcher/tools.h"
#include "panel_fixture.h"
#include "platform/runtime_error.h"
#include "printing.h"
#include "shell/dispatch.h"

#include <gmock/gmock.h>

using namespace Qt::StringLiterals;
using platform::CommandText;
using platform::ErrorNumber;
using platform::Icon;
using platform::MessageBox;
using platform::OpenFileRequest;
using platform::RuntimeError;
using platform::Show;
using platform::Start;
using testing::ElementsAre;
using testing::IsEmpty;

class Accessories : public support::PanelFixture
{
protected:
    void SetUp() override { load(); }

    static Start accessory(const char *program, Show show)
    {
        return {QString(), QLatin1String(program), {}, u"C:\\DATA"_s, show, 0};
    }
};

TEST_F(Accessories, start_by_name_alone_and_the_prompt_maximized)
{
    const std::vector<Start> table{
        accessory("calc.exe", Show::Normal), accessory("command.com", Show::Maximized),
        accessory("explorer.exe", Show::Normal), accessory("notepad.exe", Show::Normal)};
    for (size_t i = 0; i < 4; ++i) {
        mark();
        forget();
        click(frm.mnuDOS[i]);
        EXPECT_THAT(machine.programs.started, ElementsAre(table[i]));
        EXPECT_EQ(kinovra.TaskId, 51 + static_cast<int>(i));
        expectMarkedBut({u"TaskId"_s});
        EXPECT_THAT(machine.dialogs.messages, IsEmpty());
        EXPECT_THAT(machine.files.tested, IsEmpty());
    }
}

TEST_F(Accessories, of_another_index_do_not_exist)
{
    mark();
    launcher::mnuDOS_Click(panel, -1);
    launcher::mnuDOS_Click(panel, 4);
    EXPECT_THAT(machine.programs.started, IsEmpty());
    expectMarkedBut({});
}

TEST_F(Accessories, that_do_not_start_are_told_of_in_the_status_bar_alone)
{
    machine.programs.failure = u"this desktop has no calculator installed"_s;
    click(frm.mnuDOS[0]);
    EXPECT_EQ(kinovra.TaskId, 0);
    EXPECT_EQ(frm.StatusBar1.Panel1.value(),
              u"calc.exe was not started: this desktop has no calculator installed."_s);
    EXPECT_THAT(machine.dialogs.messages, IsEmpty());
}

class RunAProgram : public support::PanelFixture
{
protected:
    void SetUp() override
    {
        load();
        machine.files.addDrive(u"d:"_s);
        machine.files.addDirectory(u"D:\\PROGRAMS"_s);
        // Where the dialog has left it.
        machine.files.changeDrive(u"d:"_s);
        machine.files.changeDirectory(u"D:\\PROGRAMS"_s);
        mark();
    }

    void choose(const std::optional<QString> &file)
    {
        machine.dialogs.chosenFiles = {file};
        click(frm.mnuRun);
    }
};

TEST_F(RunAProgram, asks_in_the_program_directory)
{
    QString directoryOfDialog;
    machine.dialogs.whileChoosing = [&] { directoryOfDialog = frm.dlgOpen.InitDir; };
    choose(std::nullopt);
    EXPECT_THAT(machine.dialogs.requests, ElementsAre(OpenFileRequest{.initialDirectory = u"C:\\KINOVRA"_s,
                                                                      .fileName = u"*.exe"_s,
                                                                      .filter = u"*.exe"_s,
                                                                      .title = u"Select program to run"_s,
                                                                      .filterIndex = 1}));
    EXPECT_EQ(directoryOfDialog, u"C:\\KINOVRA"_s);
}

TEST_F(RunAProgram, starts_what_was_chosen)
{
    const QString chosen = u"D:\\Programs\\My tool.exe"_s;
    choose(chosen);
    EXPECT_THAT(machine.programs.started,
                ElementsAre(Start{u"open"_s, chosen, {}, u"C:\\KINOVRA"_s, Show::Shown, 4711}));
    // The test is of the program directory with the whole path behind it.
    EXPECT_THAT(machine.files.tested, ElementsAre(u"C:\\KINOVRA\\D:\\PROGRAMS\\MY TOOL.EXE"_s));
    EXPECT_EQ(kinovra.Answer, 52);
    EXPECT_EQ(kinovra.ProgName, chosen);
    EXPECT_EQ(frm.ProgPath, chosen);
    EXPECT_EQ(kinovra.TaskId, 42);
    EXPECT_EQ(frm.lblCommand.Caption.value(), chosen);
    EXPECT_TRUE(frm.lblCommand.Visible);
    expectMarkedBut({u"ProgName"_s, u"ProgPath"_s, u"Answer"_s, u"TaskId"_s, u"lblCommand"_s});
    EXPECT_THAT(machine.dialogs.messages, IsEmpty());
    EXPECT_EQ(machine.files.currentDirectory(), u"C:\\DATA"_s);
    EXPECT_EQ(frm.dlgOpen.InitDir, u"C:\\DATA"_s);
}

TEST_F(RunAProgram, cancelled_or_unchanged_starts_nothing)
{
    for (const auto &file : {std::optional<QString>(), std::optional(u"*.exe"_s), std::optional(QString())}) {
        machine.files.changeDrive(u"d:"_s);
        forget();
        mark();
        choose(file);
        EXPECT_THAT(machine.programs.started, IsEmpty());
        EXPECT_THAT(machine.files.tested, IsEmpty());
        EXPECT_EQ(frm.lblCommand.Caption.value(), QString());
        EXPECT_TRUE(frm.lblCommand.Visible);
        expectMarkedBut({u"lblCommand"_s});
        EXPECT_EQ(machine.files.currentDirectory(), u"C:\\DATA"_s);
        EXPECT_EQ(frm.dlgOpen.InitDir, u"C:\\DATA"_s);
    }
}

TEST_F(RunAProgram, stops_at_once_where_the_test_finds_no_file)
{
    machine.files.beforeCall = [](const QString &call) {
        if (call == u"testReading")
            throw RuntimeError(ErrorNumber::FileNotFound);
    };
    choose(u"D:\\PROGRAMS\\A.EXE"_s);
    EXPECT_EQ(kinovra.Answer, 53);
    EXPECT_THAT(machine.programs.started, IsEmpty());
    EXPECT_EQ(kinovra.ProgName, u"D:\\PROGRAMS\\A.EXE"_s);
    EXPECT_EQ(frm.ProgPath, u"D:\\PROGRAMS\\A.EXE"_s);
    EXPECT_EQ(machine.files.currentDirectory(), u"D:\\PROGRAMS"_s);
    EXPECT_EQ(frm.dlgOpen.InitDir, u"C:\\KINOVRA"_s);
    EXPECT_EQ(kinovra.TaskId, -1);
}

TEST_F(RunAProgram, starts_after_every_other_failure_of_the_test)
{
    for (const auto error : {ErrorNumber::PermissionDenied, ErrorNumber::PathNotFound,
                             ErrorNumber::PathFileAccess, ErrorNumber::TooManyFiles}) {
        forget();
        machine.files.beforeCall = [error](const QString &call) {
            if (call == u"testReading")
                throw RuntimeError(error);
        };
        choose(u"D:\\PROGRAMS\\A.EXE"_s);
        EXPECT_EQ(kinovra.Answer, static_cast<int>(error));
        EXPECT_EQ(machine.programs.started.size(), 1U);
        EXPECT_THAT(machine.dialogs.messages, IsEmpty());
    }
}

TEST_F(RunAProgram, says_in_the_status_bar_alone_that_it_did_not_start)
{
    machine.programs.failure = u"it is not a program"_s;
    choose(u"D:\\PROGRAMS\\notes.txt"_s);
    EXPECT_EQ(frm.StatusBar1.Panel1.value(), u"notes.txt was not started: it is not a program."_s);
    EXPECT_EQ(kinovra.TaskId, 2);
    EXPECT_THAT(machine.dialogs.messages, IsEmpty());
    EXPECT_EQ(machine.files.currentDirectory(), u"C:\\DATA"_s);
}

TEST_F(RunAProgram, forgets_what_was_chosen_last)
{
    choose(u"D:\\PROGRAMS\\A.EXE"_s);
    forget();
    choose(std::nullopt);
    EXPECT_THAT(machine.programs.started, IsEmpty());
    EXPECT_EQ(machine.dialogs.requests.at(0).fileName, u"*.exe"_s);
}

TEST_F(RunAProgram, tells_where_the_data_directory_is_gone)
{
    machine.files.remove(u"C:\\DATA"_s);
    choose(u"D:\\PROGRAMS\\A.EXE"_s);
    EXPECT_EQ(machine.programs.started.size(), 1U);
    EXPECT_THAT(machine.dialogs.messages, ElementsAre(MessageBox{u"Path not found"_s, Icon::Exclamation}));
    EXPECT_EQ(frm.dlgOpen.InitDir, u"C:\\DATA"_s) << "the next dialog begins there all the same";
}

TEST_F(RunAProgram, starts_nothing_when_the_window_is_closed_meanwhile)
{
    machine.dialogs.whileChoosing = [&] { panel.unloading = true; };
    choose(u"D:\\PROGRAMS\\A.EXE"_s);
    EXPECT_THAT(machine.programs.started, IsEmpty());
    EXPECT_THAT(machine.dialogs.messages, IsEmpty());
}

class ControlOptions : public support::PanelFixture
{};

TEST_F(ControlOptions, start_on_the_trial_with_all_their_switches)
{
    addData({"my walk.dg"});
    load();
    click(frm.filDatafiles, u"my walk.dg"_s);
    forget();
    mark();
    click(frm.mnuOptions);
    EXPECT_THAT(machine.programs.started,
                ElementsAre(Start{QString(), u"C:\\KINOVRA\\Options.exe"_s,
                                  u" /C/R/M/F/G "_s + CommandText::document(u"my walk"_s), u"C:\\DATA"_s,
                                  Show::Shown}));
    EXPECT_EQ(machine.programs.started[0].text(), u"C:\\KINOVRA\\Options.exe /C/R/M/F/G my walk"_s);
    EXPECT_EQ(kinovra.ProgName, u"Options.exe"_s);
    EXPECT_EQ(frm.ProgPath, u"C:\\KINOVRA\\Options.exe /C/R/M/F/G "_s);
    EXPECT_EQ(frm.lblCommand.Caption.value(), u"C:\\KINOVRA\\Options.exe /C/R/M/F/G   my walk"_s);
    EXPECT_TRUE(frm.lblCommand.Visible);
    EXPECT_EQ(kinovra.TaskId, 51);
    expectMarkedBut({u"ProgName"_s, u"ProgPath"_s, u"TaskId"_s, u"lblCommand"_s});
    EXPECT_THAT(machine.files.tested, IsEmpty());
    EXPECT_THAT(machine.clock.pauses, IsEmpty());
}

TEST_F(ControlOptions, start_without_a_trial_too)
{
    load();
    click(frm.mnuOptions);
    ASSERT_EQ(machine.programs.started.size(), 1U);
    EXPECT_EQ(machine.programs.started[0].text(), u"C:\\KINOVRA\\Options.exe /C/R/M/F/G "_s);
    EXPECT_EQ(machine.programs.started[0].parameters.arguments(), QStringList(u"/C/R/M/F/G"_s));
    EXPECT_EQ(frm.lblCommand.Caption.value(), u"C:\\KINOVRA\\Options.exe /C/R/M/F/G   "_s);
    EXPECT_THAT(machine.dialogs.messages, IsEmpty());
}

TEST_F(ControlOptions, that_do_not_start_are_told_of_in_the_status_bar_alone)
{
    load();
    machine.programs.failure = u"it was not found"_s;
    click(frm.mnuOptions);
    EXPECT_EQ(frm.StatusBar1.Panel1.value(), u"Options.exe was not started: it was not found."_s);
    EXPECT_EQ(kinovra.TaskId, 0);
    EXPECT_THAT(machine.dialogs.messages, IsEmpty());
}

class ProgHelp : public support::PanelFixture
{
protected:
    void SetUp() override
    {
        load();
        machine.files.addDirectory(u"C:\\ELSEWHERE"_s);
        machine.files.addDrive(u"d:"_s);
    }
};

TEST_F(ProgHelp, asks_for_a_program_of_the_package)
{
    click(frm.mnuProgHelp);
    EXPECT_THAT(machine.dialogs.requests,
                ElementsAre(platform::OpenFileRequest{.initialDirectory = u"C:\\KINOVRA"_s,
                                                      .fileName = u"*.exe"_s,
                                                      .filter = u"*.exe"_s,
                                                      .title = u"Select a program to view its help."_s,
                                                      .filterIndex = 1,
                                                      .mustExist = true,
                                                      .hideReadOnly = true}));
}

TEST_F(ProgHelp, starts_the_chosen_program_with_its_help_switches)
{
    frm.lblCommand.Visible = false;
    machine.dialogs.chosenFiles = {u"C:\\Kinovra\\noise.exe"_s};
    click(frm.mnuProgHelp);
    EXPECT_THAT(machine.programs.started, ElementsAre(Start{QString(), u"C:\\Kinovra\\noise.exe"_s,
                                                            u" /? /HELP"_s, u"C:\\DATA"_s, Show::Shown}));
    EXPECT_EQ(machine.programs.started[0].text(), u"C:\\Kinovra\\noise.exe /? /HELP"_s);
    EXPECT_EQ(kinovra.TaskId, 51);
    EXPECT_EQ(kinovra.ProgName, u"C:\\Kinovra\\noise.exe"_s);
    EXPECT_EQ(frm.ProgPath, u"C:\\Kinovra\\noise.exe"_s);
    EXPECT_EQ(frm.lblCommand.Caption.value(), u"C:\\Kinovra\\noise.exe /? /HELP"_s);
    EXPECT_TRUE(frm.lblCommand.Visible);
    EXPECT_THAT(machine.clock.pauses, IsEmpty());
    EXPECT_THAT(machine.dialogs.messages, IsEmpty());
}

TEST_F(ProgHelp, shows_the_dialog_in_the_program_directory)
{
    QString directoryOfDialog;
    machine.dialogs.whileChoosing = [&] { directoryOfDialog = frm.dlgOpen.InitDir; };
    click(frm.mnuProgHelp);
    EXPECT_EQ(directoryOfDialog, u"C:\\KINOVRA"_s);
}

TEST_F(ProgHelp, starts_nothing_when_the_window_is_closed_meanwhile)
{
    machine.dialogs.chosenFiles = {u"C:\\KINOVRA\\noise.exe"_s};
    machine.dialogs.whileChoosing = [&] { panel.unloading = true; };
    click(frm.mnuProgHelp);
    EXPECT_THAT(machine.programs.started, IsEmpty());
    EXPECT_THAT(machine.dialogs.messages, IsEmpty());
}

TEST_F(ProgHelp, cancelled_starts_nothing)
{
    kinovra.ProgName = u"before"_s;
    frm.ProgPath = u"path"_s;
    kinovra.TaskId = 5;
    frm.lblCommand.Visible = false;
    click(frm.mnuProgHelp);
    EXPECT_THAT(machine.programs.started, IsEmpty());
    EXPECT_EQ(kinovra.ProgName, u"before"_s);
    EXPECT_EQ(frm.ProgPath, u"path"_s);
    EXPECT_EQ(kinovra.TaskId, 5);
    EXPECT_TRUE(frm.lblCommand.Visible);
    EXPECT_EQ(frm.lblCommand.Caption.value(), u"*.exe /? /HELP"_s);
}

TEST_F(ProgHelp, makes_the_data_directory_current_again_in_every_case)
{
    for (const auto &chosen :
         {std::optional<QString>(), std::optional<QString>(u"C:\\KINOVRA\\noise.exe"_s)}) {
        machine.files.changeDrive(u"D"_s);
        machine.files.changeDirectory(u"C:\\ELSEWHERE"_s);
        frm.dlgOpen.InitDir = u"C:\\ELSEWHERE"_s;
        machine.dialogs.chosenFiles = {chosen};
        click(frm.mnuProgHelp);
        EXPECT_EQ(machine.files.currentDirectory(), u"C:\\DATA"_s);
        EXPECT_EQ(frm.dlgOpen.InitDir, u"C:\\DATA"_s);
    }
}

TEST_F(ProgHelp, tells_where_the_data_directory_is_gone)
{
    machine.files.remove(u"C:\\DATA"_s);
    click(frm.mnuProgHelp);
    EXPECT_THAT(machine.dialogs.messages, ElementsAre(MessageBox{u"Path not found"_s, Icon::Exclamation}));
    EXPECT_EQ(frm.dlgOpen.InitDir, u"C:\\DATA"_s);
}
