#include "launcher/program_runner.h"
#include "panel_fixture.h"
#include "platform/runtime_error.h"
#include "printing.h"
#include "shell/dispatch.h"

#include <gmock/gmock.h>

using namespace Qt::StringLiterals;
using launcher::RunProgram;
using platform::Buttons;
using platform::CommandText;
using platform::Ending;
using platform::Icon;
using platform::MessageBox;
using platform::Show;
using platform::Start;
using testing::ElementsAre;
using testing::IsEmpty;

class RunProgramTest : public support::PanelFixture
{
protected:
    void SetUp() override
    {
        addData({"RUN1.DG"});
        load();
        kinovra.ProgName = u"Kinemati"_s;
        kinovra.SelectedFile = u"RUN1.DG"_s;
    }

    qint16 run(qint16 list = 1)
    {
        return RunProgram(panel, kinemati, u"/D "_s + CommandText::document(u"run1"_s), list);
    }

    void addResults() { addData({"new.km", "new.out", "new.plt", "new.dg"}); }
    bool listsRefreshed() const
    {
        return frm.filBinaries.ListCount() == 1 && frm.filOutputs.ListCount() > 0
               && frm.filPlots.ListCount() == 1 && frm.filDatafiles.ListCount() == 1;
    }
    bool listsUntouched() const
    {
        return frm.filBinaries.ListCount() == 0 && frm.filOutputs.ListCount() == 0
               && frm.filPlots.ListCount() == 0;
    }

    const QString kinemati = u"C:\\KINOVRA\\Kinemati.exe"_s;
    const Start started{u"open"_s,
                        u"C:\\KINOVRA\\KINEMATI.EXE"_s,
                        u"/D "_s + CommandText::document(u"RUN1"_s),
                        u"C:\\DATA"_s,
                        Show::Shown,
                        4711};
    const MessageBox offer{
        u"Do you want to view the output produced by the program, \nKINEMATI.  If so, click Yes to "
        "view the output?"_s,
        Icon::Question, Buttons::YesNo, u"View output"_s};
    const MessageBox notYet{
        u"Output could not be opened.  Wait until the program has completed\nexecution or check "
        "whether program halted prematurely."_s,
        Icon::Information};
};

TEST_F(RunProgramTest, shows_the_command_in_lower_case_and_starts_it_in_upper_case)
{
    frm.lblCommand.Visible = false;
    machine.dialogs.answers = {platform::No};
    EXPECT_EQ(run(), 0);
    EXPECT_EQ(frm.lblCommand.Caption.value(), u"c:\\kinovra\\kinemati.exe /d run1"_s);
    EXPECT_TRUE(frm.lblCommand.Visible);
    EXPECT_THAT(machine.programs.started, ElementsAre(started));
    EXPECT_EQ(kinovra.TaskId, 42);
}

TEST_F(RunProgramTest, keeps_the_case_of_the_working_directory)
{
    kinovra.DataDir = u"C:\\Data"_s;
    machine.dialogs.answers = {platform::No};
    run();
    ASSERT_EQ(machine.programs.started.size(), 1U);
    EXPECT_EQ(machine.programs.started[0].directory, u"C:\\Data"_s);
}

TEST_F(RunProgramTest, refuses_a_program_that_cannot_be_opened)
{
    machine.files.remove(kinemati);
    addResults();
    frm.lblCommand.Visible = false;
    machine.dialogs.whileShown = [&](const MessageBox &) {
        EXPECT_EQ(frm.lblCommand.Caption.value(), u"c:\\kinovra\\kinemati.exe /d run1"_s);
        EXPECT_TRUE(frm.lblCommand.Visible) << "the command is shown first";
    };
    EXPECT_EQ(run(), 1);
    EXPECT_THAT(
        machine.dialogs.messages,
        ElementsAre(MessageBox{u"Error opening file: \"C:\\KINOVRA\\KINEMATI.EXE\"  (53)\nFile not found"_s,
                               Icon::Exclamation}));
    EXPECT_EQ(frm.lblCommand.Caption.value(), u"c:\\kinovra\\kinemati.exe /d run1"_s);
    EXPECT_THAT(machine.programs.started, IsEmpty());
    EXPECT_THAT(machine.clock.pauses, IsEmpty());
    EXPECT_TRUE(listsUntouched());
    EXPECT_EQ(kinovra.SelectedFile, u"RUN1.DG"_s);
}

TEST_F(RunProgramTest, pauses_one_second_before_it_offers_the_listing)
{
    addData({"Kinemati.out"});
    machine.dialogs.answers = {platform::Yes};
    bool offeredDuringPause = false;
    machine.clock.duringPause(0.9, [&] { offeredDuringPause = !machine.dialogs.messages.empty(); });
    EXPECT_EQ(run(), 0);
    EXPECT_THAT(machine.clock.pauses, ElementsAre(1.0));
    EXPECT_FALSE(offeredDuringPause);
    EXPECT_THAT(machine.dialogs.messages, ElementsAre(offer));
}

TEST_F(RunProgramTest, opens_the_listing_in_the_text_viewer_on_yes)
{
    kinovra.TextViewer = u"C:\\TOOLS\\Edit.exe"_s;
    addData({"Kinemati.out"});
    addResults();
    machine.dialogs.answers = {platform::Yes};
    machine.programs.openValue = 77;
    EXPECT_EQ(run(), 0);
    const Start inViewer{u"open"_s,
                         u"C:\\TOOLS\\Edit.exe"_s,
                         CommandText::document(u"C:\\DATA\\Kinemati.out"_s),
                         u"C:\\DATA"_s,
                         Show::Shown,
                         4711,
                         true};
    EXPECT_THAT(machine.programs.started, ElementsAre(started, inViewer));
    EXPECT_EQ(kinovra.TaskId, 77);
    EXPECT_EQ(kinovra.SelectedFile, u"C:\\DATA\\Kinemati.out"_s);
    EXPECT_EQ(frm.dlgOpen.InitDir, u"C:\\DATA"_s);
    EXPECT_TRUE(listsRefreshed());
}

TEST_F(RunProgramTest, opens_nothing_on_no)
{
    addData({"Kinemati.out"});
    addResults();
    machine.dialogs.answers = {platform::No};
    EXPECT_EQ(run(), 0);
    EXPECT_THAT(machine.programs.started, ElementsAre(started));
    EXPECT_EQ(kinovra.SelectedFile, u"C:\\DATA\\Kinemati.out"_s);
    EXPECT_TRUE(listsRefreshed());
}

TEST_F(RunProgramTest, says_that_the_listing_is_not_there_yet)
{
    addResults();
    machine.dialogs.answers = {platform::Yes, platform::OK};
    EXPECT_EQ(run(), 0);
    EXPECT_THAT(machine.dialogs.messages, ElementsAre(offer, notYet));
    EXPECT_THAT(machine.programs.started, ElementsAre(started));
    EXPECT_TRUE(listsUntouched());
}

TEST_F(RunProgramTest, offers_nothing_where_the_program_writes_no_listing)
{
    addResults();
    EXPECT_EQ(run(0), 0);
    EXPECT_THAT(machine.dialogs.messages, IsEmpty());
    EXPECT_THAT(machine.clock.pauses, ElementsAre(1.0));
    EXPECT_EQ(kinovra.SelectedFile, u"C:\\DATA\\Kinemati.out"_s);
    EXPECT_TRUE(listsRefreshed());
}

TEST_F(RunProgramTest, offers_any_non_zero_list)
{
    machine.dialogs.answers = {platform::No};
    run(-1);
    EXPECT_THAT(machine.dialogs.messages, ElementsAre(offer));
}

TEST_F(RunProgramTest, neither_pauses_nor_offers_without_the_prompt)
{
    addData({"Kinemati.out"});
    addResults();
    click(frm.mnuPrompt);
    EXPECT_EQ(run(), 0);
    EXPECT_THAT(machine.clock.pauses, IsEmpty());
    EXPECT_THAT(machine.dialogs.messages, IsEmpty());
    EXPECT_EQ(kinovra.SelectedFile, u"C:\\DATA\\Kinemati.out"_s);
    EXPECT_TRUE(listsRefreshed());
}

TEST_F(RunProgramTest, does_not_pause_for_the_pause_item)
{
    click(frm.mnuPrompt);
    click(frm.mnuPause);
    EXPECT_EQ(run(), 0);
    EXPECT_THAT(machine.clock.pauses, IsEmpty());
    click(frm.mnuPrompt);
    machine.dialogs.answers = {platform::No};
    EXPECT_EQ(run(), 0);
    EXPECT_THAT(machine.clock.pauses, ElementsAre(1.0));
}

TEST_F(RunProgramTest, offers_nothing_where_the_listing_goes_elsewhere)
{
    for (const QString &listingSwitch : {u"/T "_s, u"/L "_s, u"/N "_s}) {
        forget();
        addData({"Kinemati.out"});
        kinovra.ListingSwitch = listingSwitch;
        frm.dlgOpen.InitDir = u"C:\\ELSEWHERE"_s;
        addResults();
        EXPECT_EQ(run(), 0);
        EXPECT_THAT(machine.clock.pauses, ElementsAre(1.0));
        EXPECT_THAT(machine.dialogs.messages, IsEmpty());
        EXPECT_EQ(kinovra.SelectedFile, u"RUN1.DG"_s);
        EXPECT_EQ(frm.dlgOpen.InitDir, u"C:\\ELSEWHERE"_s);
        EXPECT_TRUE(listsRefreshed());
    }
}

TEST_F(RunProgramTest, leaves_early_for_the_interactive_simulator)
{
    addFile(u"C:\\DATA\\Interact.out"_s);
    addResults();
    kinovra.ProgName = u"Interact"_s;
    EXPECT_EQ(RunProgram(panel, u"C:\\KINOVRA\\Interact.exe"_s, CommandText::document(u"run1"_s), 1), 0);
    EXPECT_THAT(machine.clock.pauses, ElementsAre(1.0));
    EXPECT_THAT(machine.dialogs.messages, IsEmpty());
    EXPECT_EQ(kinovra.SelectedFile, u"C:\\DATA\\Interact.out"_s);
    EXPECT_EQ(frm.dlgOpen.InitDir, u"C:\\DATA"_s);
    EXPECT_TRUE(listsUntouched());
}

TEST_F(RunProgramTest, knows_the_interactive_simulator_by_its_exact_name)
{
    kinovra.ProgName = u"interact"_s;
    addResults();
    machine.dialogs.answers = {platform::No};
    RunProgram(panel, u"C:\\KINOVRA\\Interact.exe"_s, CommandText::document(u"run1"_s), 1);
    EXPECT_EQ(machine.dialogs.messages.size(), 1U);
    EXPECT_TRUE(listsRefreshed());
}

TEST_F(RunProgramTest, refreshes_for_the_interactive_simulator_with_its_listing_elsewhere)
{
    kinovra.ProgName = u"Interact"_s;
    kinovra.ListingSwitch = u"/T "_s;
    addResults();
    EXPECT_EQ(RunProgram(panel, u"C:\\KINOVRA\\Interact.exe"_s, CommandText::document(u"run1"_s), 1), 0);
    EXPECT_TRUE(listsRefreshed());
}

TEST_F(RunProgramTest, goes_on_after_a_failed_start_and_the_status_bar_says_why)
{
    addData({"Kinemati.out"});
    addResults();
    machine.programs.failure = u"Wine is not installed"_s;
    machine.dialogs.answers = {platform::No};
    EXPECT_EQ(run(), 0);
    EXPECT_THAT(machine.dialogs.messages, ElementsAre(offer));
    EXPECT_EQ(kinovra.TaskId, 2);
    EXPECT_THAT(machine.clock.pauses, ElementsAre(1.0));
    EXPECT_TRUE(listsRefreshed());
}

TEST_F(RunProgramTest, goes_on_after_a_viewer_that_does_not_start)
{
    addData({"Kinemati.out"});
    addResults();
    machine.dialogs.answers = {platform::Yes};
    machine.dialogs.whileShown = [&](const MessageBox &) {
        EXPECT_EQ(kinovra.TaskId, 42);
        machine.programs.failure = u"it was not found"_s;
    };
    EXPECT_EQ(run(), 0);
    EXPECT_EQ(machine.programs.started.size(), 2U);
    EXPECT_THAT(machine.dialogs.messages, ElementsAre(offer));
    EXPECT_EQ(kinovra.TaskId, 2);
    EXPECT_EQ(frm.StatusBar1.Panel1.value(), u"notepad.exe was not started: it was not found."_s);
    EXPECT_TRUE(listsRefreshed());
}

TEST_F(RunProgramTest, says_in_the_status_bar_why_a_start_failed)
{
    click(frm.mnuPrompt);
    machine.programs.failure = u"Wine is not installed"_s;
    run();
    EXPECT_EQ(frm.StatusBar1.Panel1.value(), u"KINEMATI.EXE was not started: Wine is not installed."_s);
}

TEST_F(RunProgramTest, offers_its_own_listing_whatever_was_chosen_during_its_pause)
{
    addData({"Kinemati.out"});
    addFile(u"C:\\OTHER\\RUN2.DG"_s);
    machine.clock.duringPause(0.5, [&] {
        kinovra.ProgName = u"Fourier"_s;
        kinovra.ListingSwitch = u"/T "_s;
        frm.ProgPath = u"C:\\KINOVRA\\Fourier.exe"_s;
        kinovra.DataDir = u"C:\\OTHER"_s;
    });
    machine.dialogs.answers = {platform::Yes};
    EXPECT_EQ(run(), 0);
    EXPECT_THAT(machine.dialogs.messages, ElementsAre(offer));
    ASSERT_EQ(machine.programs.started.size(), 2U);
    EXPECT_EQ(machine.programs.started[1].parameters.text(), u"C:\\DATA\\Kinemati.out"_s);
    EXPECT_EQ(machine.programs.started[1].directory, u"C:\\DATA"_s);
    EXPECT_EQ(kinovra.SelectedFile, u"C:\\DATA\\Kinemati.out"_s);
}

TEST_F(RunProgramTest, offers_nothing_where_the_prompt_is_switched_off_during_the_pause)
{
    machine.clock.duringPause(0.5, [&] { click(frm.mnuPrompt); });
    EXPECT_EQ(run(), 0);
    EXPECT_THAT(machine.dialogs.messages, IsEmpty());
}

TEST_F(RunProgramTest, ends_silently_when_the_window_is_closed_during_its_pause)
{
    addData({"Kinemati.out"});
    addResults();
    machine.clock.duringPause(0.5, [&] { shell::dispatch(panel, frm.Unload); });
    shell::dispatch(panel, [&] { run(); });
    EXPECT_THAT(machine.dialogs.messages, IsEmpty());
    EXPECT_THAT(machine.programs.started, ElementsAre(started));
    EXPECT_TRUE(listsUntouched());
    EXPECT_TRUE(machine.environment.ended);
}

TEST_F(RunProgramTest, says_that_a_listing_is_from_before_this_run)
{
    addData({"Kinemati.out"});
    machine.dialogs.answers = {platform::Yes};
    machine.dialogs.whileShown = [&](const MessageBox &) {
        EXPECT_EQ(frm.StatusBar1.Panel1.value(), u"Kinemati.out is from before this run."_s);
    };
    run();
    EXPECT_EQ(frm.StatusBar1.Panel1.value(), u"Kinemati.out is from before this run."_s);
    EXPECT_EQ(machine.programs.started.size(), 2U);
}

TEST_F(RunProgramTest, says_why_it_did_not_start_beside_the_older_listing_and_through_the_viewers_start)
{
    addData({"Kinemati.out"});
    machine.programs.failure = u"Wine is not installed"_s;
    machine.dialogs.answers = {platform::Yes};
    machine.dialogs.whileShown = [&](const MessageBox &) { machine.programs.failure.clear(); };
    run();
    EXPECT_EQ(machine.programs.started.size(), 2U);
    EXPECT_EQ(frm.StatusBar1.Panel1.value(), u"KINEMATI.EXE was not started: Wine is not installed. "
                                             "Kinemati.out is from before this run."_s);
}

TEST_F(RunProgramTest, says_that_it_ended_with_an_error_beside_the_older_listing)
{
    addData({"Kinemati.out"});
    machine.clock.duringPause(0.5, [&] { machine.programs.ended(42, {Ending::Kind::Exited, 3}); });
    machine.dialogs.answers = {platform::No};
    run();
    EXPECT_EQ(frm.StatusBar1.Panel1.value(),
              u"KINEMATI.EXE ended with error 3. Kinemati.out is from before this run."_s);
}

TEST_F(RunProgramTest, sees_the_listing_of_a_program_that_ends_during_its_pause)
{
    QString said;
    machine.clock.duringPause(0.5, [&] {
        addData({"Kinemati.out"});
        machine.programs.ended(42, {});
        said = frm.StatusBar1.Panel1;
    });
    machine.dialogs.answers = {platform::No};
    shell::dispatch(panel, [&] { run(); });
    EXPECT_EQ(said, u"Kinemati.out is ready."_s);
}

TEST_F(RunProgramTest, runs_a_second_program_that_is_chosen_during_its_pause)
{
    addData({"run1.cn", "run1.cfb"});
    addFile(u"C:\\KINOVRA\\Fourier.exe"_s);
    kinovra.CurrentTrial = u"run1"_s;
    machine.clock.duringPause(0.5, [&] { click(frm.mnuProg[1]); });
    machine.dialogs.answers = {platform::No, platform::No};
    run();
    ASSERT_EQ(machine.programs.started.size(), 2U);
    EXPECT_EQ(machine.programs.started[0].file, u"C:\\KINOVRA\\KINEMATI.EXE"_s);
    EXPECT_EQ(machine.programs.started[1].file, u"C:\\KINOVRA\\FOURIER.EXE"_s);
    ASSERT_EQ(messages().size(), 2);
    EXPECT_TRUE(messages()[0].contains(u"FOURIER"_s));
    EXPECT_TRUE(messages()[1].contains(u"KINEMATI"_s));
    EXPECT_EQ(kinovra.SelectedFile, u"C:\\DATA\\Kinemati.out"_s);
    EXPECT_THAT(machine.clock.pauses, ElementsAre(1.0, 1.0));
}

TEST_F(RunProgramTest, works_in_the_root_of_a_drive)
{
    machine.files.addDrive(u"d: [stick]"_s);
    addFile(u"D:\\Kinemati.out"_s);
    click(frm.cmdRefresh);
    kinovra.DataDir = u"d: [stick]"_s;
    machine.dialogs.answers = {platform::Yes};
    run();
    ASSERT_EQ(machine.programs.started.size(), 2U);
    EXPECT_EQ(machine.programs.started[0].directory, u"d: [stick]"_s);
    EXPECT_EQ(machine.programs.started[1].parameters.text(), u"d: [stick]\\Kinemati.out"_s);
    EXPECT_EQ(kinovra.SelectedFile, u"d: [stick]\\Kinemati.out"_s);
}

TEST_F(RunProgramTest, says_nothing_about_a_listing_that_the_run_has_written)
{
    addData({"Kinemati.out"});
    machine.clock.duringPause(0.5, [&] { addData({"Kinemati.out"}); });
    machine.dialogs.answers = {platform::Yes};
    run();
    EXPECT_EQ(frm.StatusBar1.Panel1.value(), QString());
}

TEST_F(RunProgramTest, keeps_to_the_lists_that_show_files_when_the_directory_vanishes)
{
    machine.clock.duringPause(0.5, [&] { machine.files.remove(u"C:\\DATA"_s); });
    machine.dialogs.answers = {platform::No};
    EXPECT_EQ(run(), 0);
    EXPECT_EQ(frm.StatusBar1.Panel1.value(), u"DATA cannot be read: path not found."_s);
    EXPECT_THAT(machine.dialogs.messages, ElementsAre(offer));
}

class ProgramEnds : public RunProgramTest
{
protected:
    void SetUp() override
    {
        RunProgramTest::SetUp();
        click(frm.mnuPrompt);
    }

    void end(const Ending &ending, double value = 42) { machine.programs.ended(value, ending); }
    QString said() const { return frm.StatusBar1.Panel1.value(); }
};

TEST_F(ProgramEnds, with_an_error_and_the_status_bar_says_so)
{
    run();
    end({Ending::Kind::Exited, 3});
    EXPECT_EQ(said(), u"KINEMATI.EXE ended with error 3."_s);
}

TEST_F(ProgramEnds, with_an_error_that_the_system_explains)
{
    run();
    end({Ending::Kind::Exited, 127, u"a library may be missing"_s});
    EXPECT_EQ(said(), u"KINEMATI.EXE ended with error 127: a library may be missing."_s);
}

TEST_F(ProgramEnds, well_and_its_results_are_listed)
{
    addData({"a.km", "b.plt"});
    click(frm.cmdRefresh);
    run();
    frm.filBinaries.ListIndex = 0;
    addData({"Walk1.km", "Kinemati.out", "Walk1.plt", "walk2.dg", "a.fr"});
    bool clicked = false;
    frm.filBinaries.Click = [&clicked] { clicked = true; };
    end({});
    EXPECT_EQ(frm.filBinaries.Names.value().toList(), (QStringList{u"a.fr"_s, u"a.km"_s, u"Walk1.km"_s}));
    EXPECT_EQ(frm.filBinaries.FileName(), u"a.km"_s);
    EXPECT_EQ(frm.filOutputs.Names.value().toList(), QStringList{u"Kinemati.out"_s});
    EXPECT_EQ(frm.filPlots.Names.value().toList(), (QStringList{u"b.plt"_s, u"Walk1.plt"_s}));
    EXPECT_TRUE(frm.filDatafiles.Names.value().toList().contains(u"walk2.dg"_s)) << "what was converted";
    EXPECT_FALSE(clicked);
}

TEST_F(ProgramEnds, with_an_error_and_the_lists_stay)
{
    run();
    addData({"Walk1.km"});
    end({Ending::Kind::Exited, 1});
    EXPECT_EQ(frm.filBinaries.ListCount(), 0);
}

TEST_F(ProgramEnds, by_a_crash_and_the_status_bar_says_so)
{
    run();
    end({Ending::Kind::Crashed, 11, u"signal 11"_s});
    EXPECT_EQ(said(), u"KINEMATI.EXE was stopped by an error (signal 11)."_s);
}

TEST_F(ProgramEnds, unseen_because_its_terminal_failed_and_the_status_bar_says_so)
{
    run();
    end({Ending::Kind::TerminalFailed, 1});
    EXPECT_EQ(said(), u"KINEMATI.EXE may not have run: its terminal failed."_s);
}

TEST_F(ProgramEnds, with_a_listing_that_is_ready)
{
    run();
    addData({"Kinemati.out"});
    end({});
    EXPECT_EQ(said(), u"Kinemati.out is ready."_s);
}

TEST_F(ProgramEnds, with_an_error_though_its_listing_is_new)
{
    run();
    addData({"Kinemati.out"});
    end({Ending::Kind::Exited, 3});
    EXPECT_EQ(said(), u"KINEMATI.EXE ended with error 3."_s);
}

TEST_F(ProgramEnds, without_a_word_of_a_listing_that_is_not_offered)
{
    run(0);
    addData({"Kinemati.out"});
    end({});
    EXPECT_EQ(said(), QString());
}

TEST_F(ProgramEnds, without_a_new_listing_in_silence)
{
    addData({"Kinemati.out"});
    run();
    end({});
    EXPECT_EQ(said(), QString());
}

TEST_F(ProgramEnds, twice_is_told_once)
{
    run();
    end({Ending::Kind::Exited, 3});
    frm.StatusBar1.Panel1 = QString();
    end({Ending::Kind::Exited, 3});
    EXPECT_EQ(said(), QString());
}

TEST_F(ProgramEnds, that_nobody_started_are_ignored)
{
    end({Ending::Kind::Exited, 3}, 4242);
    EXPECT_EQ(said(), QString());
}

TEST_F(ProgramEnds, of_the_interactive_simulator_announce_no_listing)
{
    kinovra.ProgName = u"Interact"_s;
    RunProgram(panel, u"C:\\KINOVRA\\Interact.exe"_s, CommandText::document(u"run1"_s), 1);
    addFile(u"C:\\DATA\\Interact.out"_s);
    end({});
    EXPECT_EQ(said(), QString());
}

class SettingsItems : public support::PanelFixture
{
protected:
    void SetUp() override { load(); }
};

TEST_F(SettingsItems, pause_and_prompt_toggle)
{
    click(frm.mnuPause);
    EXPECT_TRUE(frm.mnuPause.Checked);
    EXPECT_TRUE(frm.mnuPrompt.Checked);
    click(frm.mnuPause);
    EXPECT_FALSE(frm.mnuPause.Checked);
    click(frm.mnuPrompt);
    EXPECT_FALSE(frm.mnuPrompt.Checked);
    click(frm.mnuPrompt);
    EXPECT_TRUE(frm.mnuPrompt.Checked);
    EXPECT_THAT(machine.settings.written, IsEmpty());
    EXPECT_THAT(machine.dialogs.messages, IsEmpty());
}

TEST_F(SettingsItems, reset_puts_both_devices_back_to_their_first_choice)
{
    click(frm.mnuListing[2]);
    click(frm.mnuGraphics[3]);
    click(frm.mnuReset);
    EXPECT_EQ(kinovra.ListingSwitch, QString());
    EXPECT_EQ(kinovra.ListingDevice, u"DISK FILE"_s);
    EXPECT_EQ(frm.lblOutput.Caption.value(), u"DISK FILE"_s);
    EXPECT_TRUE(frm.mnuListing[0].Checked);
    EXPECT_FALSE(frm.mnuListing[2].Checked);
    // The first choice of the graphics device, not the switches of the start.
    EXPECT_EQ(frm.GraphicsSwitch, u"/A "_s);
    EXPECT_EQ(kinovra.GraphicsDevice, u"SCREEN"_s);
    EXPECT_EQ(frm.lblGraphics[1].Caption.value(), u"SCREEN"_s);
    EXPECT_TRUE(frm.mnuGraphics[0].Checked);
    EXPECT_FALSE(frm.mnuGraphics[3].Checked);
}
