#include "panel_fixture.h"
#include "platform/runtime_error.h"
#include "printing.h"
#include "shell/dispatch.h"
#include "shell/start_up.h"
#include "shell/stored_settings.h"

#include <gmock/gmock.h>

using namespace Qt::StringLiterals;
using platform::Buttons;
using platform::Icon;
using platform::MessageBox;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

const MessageBox NoDataDirectory{u"No data directory was given, will use program directory."_s,
                                 Icon::Information, Buttons::OKOnly, u"No Data Directory"_s};
const MessageBox NoGraphs{
    u"No Graphs subdirectory was found, will use data directory.\nProgram directory may have been renamed."_s,
    Icon::Information, Buttons::OKOnly, u"No Graphs Subdirectory"_s};

} // namespace

TEST(VersionText, pads_the_minor_number_to_two_digits_and_the_build_to_three)
{
    EXPECT_EQ(shell::versionText(3, 5, 12), u"3.05 (build 012)"_s);
    EXPECT_EQ(shell::versionText(10, 0, 0), u"10.00 (build 000)"_s);
    EXPECT_EQ(shell::versionText(1, 123, 4567), u"1.123 (build 4567)"_s);
}

class StartUp : public support::PanelFixture
{
protected:
    bool splashShown() const { return machine.clock.pauses == std::vector<double>{3}; }
};

TEST_F(StartUp, without_stored_settings_begins_in_the_current_directory)
{
    start();
    EXPECT_EQ(kinovra.DataDir, u"C:\\DATA"_s);
    EXPECT_EQ(kinovra.LastFile, u"C:\\DATA"_s);
    EXPECT_EQ(frm.CurrentGRA, u"RUN.GRA"_s);
    EXPECT_EQ(kinovra.UserLevel, 0);
    EXPECT_TRUE(frm.mnuUser[0].Checked);
    EXPECT_FALSE(frm.mnuUser[1].Checked);
    EXPECT_THAT(machine.dialogs.messages, IsEmpty());
    EXPECT_THAT(machine.settings.written, IsEmpty());
}

TEST_F(StartUp, reads_each_setting_once_and_in_order)
{
    start();
    EXPECT_EQ(machine.settings.readKeys,
              (QStringList{u"Kinovra/Startup/Progdir"_s, u"Kinovra/Startup/Datadir"_s,
                           u"Kinovra/Startup/Lastfile"_s, u"Kinovra/Startup/LastGRA"_s,
                           u"Kinovra/Startup/UserLevel"_s, u"Kinovra/Startup/Viewer"_s}));
}

TEST_F(StartUp, takes_the_stored_settings)
{
    machine.files.addDirectory(u"C:\\TRIALS"_s);
    addFile(u"C:\\TOOLS\\edit.exe"_s);
    machine.settings.stored(u"Datadir"_s, u"C:\\TRIALS"_s);
    machine.settings.stored(u"Lastfile"_s, u"C:\\OLD\\walk.dg"_s);
    machine.settings.stored(u"LastGRA"_s, u"Stick.gra"_s);
    machine.settings.stored(u"UserLevel"_s, u"1"_s);
    machine.settings.stored(u"Viewer"_s, u"C:\\TOOLS\\edit.exe"_s);
    start();
    EXPECT_EQ(kinovra.DataDir, u"C:\\TRIALS"_s);
    EXPECT_EQ(kinovra.LastFile, u"C:\\OLD\\walk.dg"_s);
    EXPECT_EQ(frm.CurrentGRA, u"Stick.gra"_s);
    EXPECT_EQ(frm.lblGraphics[0].Caption.value(), u"STICK.GRA"_s);
    EXPECT_EQ(kinovra.UserLevel, 1);
    EXPECT_FALSE(frm.mnuUser[0].Checked);
    EXPECT_TRUE(frm.mnuUser[1].Checked);
    EXPECT_EQ(kinovra.TextViewer, u"C:\\TOOLS\\edit.exe"_s);
    EXPECT_TRUE(frm.mnuTextViewer[2].Checked);
}

TEST_F(StartUp, takes_an_empty_graph_type_for_the_default)
{
    machine.settings.stored(u"LastGRA"_s, QString());
    start();
    EXPECT_EQ(frm.CurrentGRA, u"RUN.GRA"_s);
}

TEST_F(StartUp, takes_an_empty_data_directory_for_the_current_one)
{
    machine.settings.stored(u"Datadir"_s, QString());
    start();
    EXPECT_EQ(kinovra.DataDir, u"C:\\DATA"_s);
}

TEST_F(StartUp, takes_a_user_level_that_is_none_for_novice)
{
    for (const QString &text : {u"2"_s, u"-1"_s, u"99999999999"_s, u"expert"_s, u""_s, u"1 "_s}) {
        machine.settings.stored(u"UserLevel"_s, text);
        start();
        EXPECT_EQ(kinovra.UserLevel, 0) << text.toStdString();
        EXPECT_TRUE(frm.mnuUser[0].Checked);
    }
}

TEST_F(StartUp, does_not_trust_stored_text)
{
    const QString hostile = u"C:\\x\u0007\ny"_s;
    for (const QString &text : {hostile, QString(40000, u'A')}) {
        for (const char *key : {"Progdir", "Datadir", "Lastfile", "LastGRA", "UserLevel", "Viewer"})
            machine.settings.stored(QLatin1String(key), text);
        start();
        EXPECT_EQ(kinovra.DataDir, u"C:\\DATA"_s);
        EXPECT_EQ(frm.CurrentGRA, u"RUN.GRA"_s);
        EXPECT_EQ(kinovra.UserLevel, 0);
        EXPECT_EQ(kinovra.TextViewer, u"notepad.exe"_s);
        EXPECT_THAT(machine.dialogs.messages, IsEmpty());
    }
}

TEST_F(StartUp, shows_the_version_in_the_second_panel)
{
    start();
    EXPECT_EQ(kinovra.VersionText, u"1.00 (build 001)"_s);
    EXPECT_EQ(frm.StatusBar1.Panel2.value(), u"Version 1.00 (build 001)"_s);
}

TEST_F(StartUp, sets_what_holds_for_the_whole_run)
{
    start();
    EXPECT_EQ(frm.LineBreak, u"\n"_s);
    EXPECT_EQ(kinovra.ProgName, u"KVwin98.exe"_s);
    EXPECT_EQ(kinovra.WebHome, QStringLiteral(KINOVRA_WEB_HOME));
    EXPECT_EQ(frm.Loaded, 1);
    EXPECT_EQ(frm.StartDir, u"C:\\DATA"_s);
    EXPECT_EQ(frm.lblCommand.Caption.value(), QString());
    EXPECT_EQ(kinovra.BinaryFile, QString());
    EXPECT_EQ(frm.GraphicsSwitch, u"/A /Z "_s);
    EXPECT_EQ(kinovra.ListingSwitch, QString());
    EXPECT_EQ(kinovra.ListingDevice, u"DISK FILE"_s);
    EXPECT_EQ(kinovra.GraphicsDevice, u"SCREEN"_s);
    EXPECT_EQ(kinovra.MainWindowHandle, 4711);
    EXPECT_EQ(frm.dlgOpen.InitDir, u"C:\\DATA"_s);
    EXPECT_EQ(kinovra.CurrentTrial, QString());
    EXPECT_EQ(kinovra.CurrentExtension, QString());
    EXPECT_EQ(kinovra.ViewerFile, QString());
    EXPECT_EQ(kinovra.TaskId, 0);
}

TEST_F(StartUp, composes_the_banner)
{
    start();
    EXPECT_EQ(kinovra.HeaderText,
              u"\r\n     KvWin98, version 1.00 (build 001)\n\n     Kinovra Motion Analysis System\r\n"
              "     This software is for planar motion analysis only.\r\n\r\n"
              "     It starts the programs of the package; the analysis is theirs."_s);
}

TEST_F(StartUp, places_the_window)
{
    start();
    EXPECT_EQ(frm.Top.value(), 300);
    EXPECT_EQ(frm.Left.value(), (15360 - 10100) / 2);
}

TEST_F(StartUp, takes_the_program_directory_from_the_environment_whatever_is_stored)
{
    machine.settings.stored(u"Progdir"_s, u"C:\\STORED"_s);
    machine.environment.variables[u"KINOVRA"_s] = u"C:\\KV"_s;
    start();
    EXPECT_EQ(kinovra.ProgDir, u"C:\\KV"_s);
    EXPECT_EQ(kinovra.ManualsDir, u"C:\\KV\\manuals\\"_s);
}

TEST_F(StartUp, else_takes_its_own_folder_for_the_program_directory)
{
    machine.settings.stored(u"Progdir"_s, u"C:\\STORED"_s);
    start();
    EXPECT_EQ(kinovra.ProgDir, u"C:\\KINOVRA"_s);
    EXPECT_EQ(kinovra.ManualsDir, u"C:\\KINOVRA\\manuals\\"_s);
}

TEST_F(StartUp, keeps_a_viewer_that_can_be_opened)
{
    addFile(u"C:\\DATA\\NOTEPAD.EXE"_s);
    start();
    EXPECT_EQ(kinovra.TextViewer, u"Notepad.exe"_s);
    EXPECT_TRUE(frm.mnuTextViewer[1].Checked);
    EXPECT_FALSE(frm.mnuTextViewer[0].Checked);
    EXPECT_FALSE(frm.mnuTextViewer[2].Checked);
}

TEST_F(StartUp, checks_windows_notepad_for_its_bare_name)
{
    machine.environment.variables[u"WINDIR"_s] = u"C:\\WINDOWS"_s;
    addFile(u"C:\\DATA\\NOTEPAD.EXE"_s);
    start();
    EXPECT_EQ(kinovra.TextViewer, u"Notepad.exe"_s);
    EXPECT_TRUE(frm.mnuTextViewer[1].Checked);
    EXPECT_FALSE(frm.mnuTextViewer[0].Checked);
    EXPECT_FALSE(frm.mnuTextViewer[2].Checked);
}

TEST_F(StartUp, falls_back_to_the_notepad_of_the_windows_directory_without_a_word)
{
    machine.environment.variables[u"WINDIR"_s] = u"C:\\WINDOWS"_s;
    machine.settings.stored(u"Viewer"_s, u"C:\\gone\\edit.exe"_s);
    start();
    EXPECT_EQ(kinovra.WindowsDir, u"C:\\WINDOWS\\"_s);
    EXPECT_EQ(kinovra.TextViewer, u"C:\\WINDOWS\\notepad.exe"_s);
    EXPECT_TRUE(frm.mnuTextViewer[1].Checked);
    EXPECT_THAT(machine.dialogs.messages, IsEmpty());
}

TEST_F(StartUp, without_a_windows_directory_falls_back_to_the_bare_name)
{
    start();
    EXPECT_EQ(kinovra.WindowsDir, QString());
    EXPECT_EQ(kinovra.TextViewer, u"notepad.exe"_s);
    EXPECT_TRUE(frm.mnuTextViewer[1].Checked);
}

TEST_F(StartUp, takes_an_empty_viewer_for_notepad)
{
    machine.environment.variables[u"WINDIR"_s] = u"C:\\WINDOWS"_s;
    addFile(u"C:\\WINDOWS\\NOTEPAD.EXE"_s);
    machine.settings.stored(u"Viewer"_s, QString());
    start();
    EXPECT_EQ(kinovra.TextViewer, u"C:\\WINDOWS\\Notepad.exe"_s);
    EXPECT_TRUE(frm.mnuTextViewer[1].Checked);
}

TEST_F(StartUp, checks_notepad_plus_where_it_is_the_viewer)
{
    addFile(u"C:\\KINOVRA\\notepad.exe"_s);
    machine.settings.stored(u"Viewer"_s, u"C:\\Kinovra\\Notepad.exe"_s);
    start();
    EXPECT_TRUE(frm.mnuTextViewer[0].Checked);
    EXPECT_FALSE(frm.mnuTextViewer[1].Checked);
}

TEST_F(StartUp, leaves_the_manual_buttons_disabled_without_their_manuals)
{
    start();
    EXPECT_FALSE(frm.cmdGuide.Enabled);
    EXPECT_FALSE(frm.cmdManual.Enabled);
}

TEST_F(StartUp, enables_the_guide_button_where_the_guide_is)
{
    addFile(u"C:\\KINOVRA\\manuals\\kv_qrg.pdf"_s);
    start();
    EXPECT_TRUE(frm.cmdGuide.Enabled);
    EXPECT_FALSE(frm.cmdManual.Enabled);
}

TEST_F(StartUp, enables_the_manual_button_by_either_file)
{
    addFile(u"C:\\KINOVRA\\manuals\\kinovra.pdf"_s);
    start();
    EXPECT_TRUE(frm.cmdManual.Enabled);

    machine.files.remove(u"C:\\KINOVRA\\manuals\\kinovra.pdf"_s);
    addFile(u"C:\\KINOVRA\\kinovra.txt"_s);
    frm.cmdManual.Enabled = false;
    start();
    EXPECT_TRUE(frm.cmdManual.Enabled);
}

TEST_F(StartUp, enables_the_four_program_buttons)
{
    for (auto *button : {&frm.cmdOndex, &frm.cmdSkelvo, &frm.cmdEditor, &frm.cmdForces})
        button->Enabled = false;
    start();
    for (auto *button : {&frm.cmdOndex, &frm.cmdSkelvo, &frm.cmdEditor, &frm.cmdForces})
        EXPECT_TRUE(button->Enabled) << button->Caption.value().toStdString();
}

TEST_F(StartUp, makes_the_data_directory_current_and_shows_it)
{
    machine.files.addDrive(u"d:"_s);
    addFile(u"D:\\Trials\\RUN1.DG"_s);
    machine.settings.stored(u"Datadir"_s, u"D:\\Trials"_s);
    start();
    EXPECT_EQ(machine.files.currentDirectory(), u"D:\\Trials"_s);
    EXPECT_EQ(frm.drvDrives.Drive.value(), u"d:"_s);
    EXPECT_EQ(frm.dirSelect.Path(), u"D:\\Trials"_s);
    EXPECT_EQ(frm.filDatafiles.Names.value().toList(), QStringList{u"RUN1.DG"_s});
    EXPECT_EQ(frm.filGraFiles.Path(), u"C:\\KINOVRA\\graphs"_s);
    EXPECT_EQ(frm.lblPath.Caption.value(), u"d:\\trials"_s);
}

TEST_F(StartUp, drops_a_trailing_backslash_and_blanks_around_the_data_directory)
{
    machine.files.addDirectory(u"C:\\TRIALS"_s);
    machine.settings.stored(u"Datadir"_s, u"C:\\TRIALS\\"_s);
    start();
    EXPECT_EQ(kinovra.DataDir, u"C:\\TRIALS"_s);
    EXPECT_THAT(machine.dialogs.messages, IsEmpty());

    machine.files.addDirectory(u"C:\\TRIALS "_s);
    machine.settings.stored(u"Datadir"_s, u"C:\\TRIALS "_s);
    start();
    EXPECT_EQ(kinovra.DataDir, u"C:\\TRIALS"_s);
}

TEST_F(StartUp, replaces_a_root_by_the_chosen_drives_text)
{
    machine.settings.stored(u"Datadir"_s, u"C:\\"_s);
    frm.dirSelect.Height = 1;
    start();
    // The drive's text means the drive's current directory, which the directory list then opens.
    EXPECT_EQ(kinovra.DataDir, u"C:\\DATA"_s);
    EXPECT_THAT(machine.dialogs.messages, IsEmpty());

    machine.files.changeDirectory(u"C:\\"_s);
    start();
    EXPECT_EQ(kinovra.DataDir, u"c: [data]"_s);
    EXPECT_EQ(frm.dirSelect.Path(), u"C:\\"_s);
    EXPECT_EQ(frm.lblPath.Caption.value(), u"c: [data]"_s);
}

TEST_F(StartUp, replaces_a_root_by_the_text_of_the_drive_that_is_current_not_of_the_root)
{
    machine.files.addDirectory(u"D:\\"_s);
    machine.settings.stored(u"Datadir"_s, u"D:\\"_s);
    start();
    EXPECT_EQ(kinovra.DataDir, u"C:\\DATA"_s);
    EXPECT_EQ(frm.drvDrives.Drive.value(), u"c: [data]"_s);
    EXPECT_THAT(machine.dialogs.messages, IsEmpty());
}

TEST_F(StartUp, uses_the_program_directory_where_the_data_directory_is_gone)
{
    machine.settings.stored(u"Datadir"_s, u"C:\\GONE"_s);
    start();
    EXPECT_THAT(machine.dialogs.messages, ElementsAre(NoDataDirectory));
    EXPECT_EQ(kinovra.DataDir, u"C:\\KINOVRA"_s);
    EXPECT_EQ(frm.dirSelect.Path(), u"C:\\KINOVRA"_s);
    EXPECT_EQ(machine.files.currentDirectory(), u"C:\\KINOVRA"_s);
}

TEST_F(StartUp, drops_blanks_before_the_program_directory_that_it_uses_instead)
{
    machine.environment.variables[u"KINOVRA"_s] = u"  C:\\KINOVRA"_s;
    machine.settings.stored(u"Datadir"_s, u"Q:\\GONE"_s);
    start();
    EXPECT_EQ(kinovra.DataDir, u"C:\\KINOVRA"_s);
    EXPECT_EQ(frm.dirSelect.Path(), u"C:\\KINOVRA"_s);
}

TEST_F(StartUp, uses_the_program_directory_where_the_drive_is_gone)
{
    machine.settings.stored(u"Datadir"_s, u"Q:\\TRIALS"_s);
    start();
    EXPECT_THAT(machine.dialogs.messages, ElementsAre(NoDataDirectory));
    EXPECT_EQ(kinovra.DataDir, u"C:\\KINOVRA"_s);
}

TEST_F(StartUp, uses_the_program_directory_instead_of_a_network_name)
{
    machine.settings.stored(u"Datadir"_s, u"\\\\server\\share\\trials"_s);
    start();
    EXPECT_THAT(machine.dialogs.messages, ElementsAre(NoDataDirectory));
    EXPECT_EQ(kinovra.DataDir, u"C:\\KINOVRA"_s);
    EXPECT_EQ(frm.dirSelect.Path(), u"C:\\KINOVRA"_s);
}

TEST_F(StartUp, reports_each_statement_that_fails_and_tries_the_next)
{
    machine.settings.stored(u"Datadir"_s, u"Q:\\GONE"_s);
    machine.environment.variables[u"KINOVRA"_s] = u"Q:\\KV"_s;
    start();
    // Drive, directory, drive list and directory list fail one after the other; the graphs follow, and last
    // the programs.
    ASSERT_EQ(machine.dialogs.messages.size(), 6U);
    for (size_t i = 0; i < 4; ++i)
        EXPECT_EQ(machine.dialogs.messages[i], NoDataDirectory);
    EXPECT_EQ(machine.dialogs.messages[4], NoGraphs);
    EXPECT_EQ(machine.dialogs.messages[5].icon, Icon::Critical);
    EXPECT_EQ(kinovra.DataDir, u"Q:\\KV"_s);
    EXPECT_EQ(frm.dirSelect.Path(), u"C:\\DATA"_s) << "the current directory's rows are the way out";
}

TEST_F(StartUp, shows_the_program_directory_where_the_data_directory_can_be_entered_but_not_read)
{
    machine.files.addDirectory(u"C:\\SECRET"_s);
    machine.settings.stored(u"Datadir"_s, u"C:\\SECRET"_s);
    machine.files.beforeCall = [this](const QString &call) {
        if (call == u"directory" && kinovra.DataDir == u"C:\\SECRET")
            throw platform::RuntimeError(platform::ErrorNumber::PathFileAccess);
    };
    start();
    EXPECT_THAT(machine.dialogs.messages, ElementsAre(NoDataDirectory));
    EXPECT_EQ(kinovra.DataDir, u"C:\\KINOVRA"_s);
    EXPECT_EQ(frm.dirSelect.Path(), u"C:\\KINOVRA"_s);
    EXPECT_EQ(machine.files.currentDirectory(), u"C:\\KINOVRA"_s);
}

TEST_F(StartUp, runs_no_drive_handler_and_the_directory_handler_once)
{
    int driveChanges = 0;
    frm.drvDrives.Change = [&] { ++driveChanges; };
    int pathChanges = 0;
    const auto watch = frm.lblPath.Caption.addNotifier([&] { ++pathChanges; });
    start();
    EXPECT_EQ(driveChanges, 0);
    EXPECT_EQ(pathChanges, 1);
}

TEST_F(StartUp, points_the_graph_types_at_the_data_directory_where_there_are_no_graphs)
{
    machine.files.remove(u"C:\\KINOVRA\\graphs"_s);
    addFile(u"C:\\DATA\\MINE.GRA"_s);
    start();
    EXPECT_THAT(machine.dialogs.messages, ElementsAre(NoGraphs));
    EXPECT_EQ(frm.filGraFiles.Path(), u"C:\\DATA"_s);
    EXPECT_EQ(frm.filGraFiles.Names.value().toList(), QStringList{u"MINE.GRA"_s});
}

TEST_F(StartUp, without_arguments_always_shows_the_splash_for_three_seconds)
{
    bool broughtToFront = false;
    panel.about.ToFront = [&] { broughtToFront = true; };
    bool aboutDuring = false;
    bool mainDuring = false;
    machine.clock.duringPause(1, [&] {
        aboutDuring = panel.about.Visible;
        mainDuring = frm.Visible;
        broughtToFront = false;
    });
    start();
    EXPECT_TRUE(splashShown());
    EXPECT_TRUE(aboutDuring);
    EXPECT_TRUE(mainDuring);
    EXPECT_FALSE(panel.about.Visible);
    EXPECT_TRUE(broughtToFront);
    EXPECT_TRUE(frm.Visible);
    EXPECT_NE(kinovra.Answer, 0);
}

TEST_F(StartUp, keeps_a_single_model_as_the_trial_beside_the_splash)
{
    addData({"walk.cfb"});
    start();
    EXPECT_TRUE(splashShown());
    EXPECT_EQ(kinovra.CurrentTrial, u"walk"_s);
    EXPECT_EQ(kinovra.SelectedFile, u"walk.cfb"_s);
    EXPECT_EQ(frm.lblTrial.Caption.value(), u"WALK"_s);
}

TEST_F(StartUp, makes_the_command_lines_file_the_trial)
{
    addFile(u"C:\\Trials\\run1.dg"_s);
    start(u"C:\\Trials\\run1.dg"_s);
    EXPECT_EQ(kinovra.DataDir, u"C:\\Trials"_s);
    EXPECT_EQ(kinovra.CurrentTrial, u"run1"_s);
    EXPECT_EQ(kinovra.CurrentExtension, u"dg"_s);
    EXPECT_EQ(kinovra.SelectedFile, u"run1.dg"_s);
    EXPECT_EQ(frm.lblTrial.Caption.value(), u"RUN1"_s);
    EXPECT_EQ(frm.lblCommand.Caption.value(), u"C:\\Trials\\run1.dg"_s);
    EXPECT_EQ(kinovra.Answer, 0);
    EXPECT_FALSE(splashShown());
    EXPECT_FALSE(panel.about.Visible);
    EXPECT_TRUE(frm.Visible);
}

TEST_F(StartUp, lets_the_command_lines_file_win_over_a_single_model)
{
    addFile(u"C:\\Trials\\run1.dg"_s);
    addFile(u"C:\\Trials\\walk.cfb"_s);
    start(u"C:\\Trials\\run1.dg"_s);
    EXPECT_EQ(kinovra.CurrentTrial, u"run1"_s);
    EXPECT_EQ(frm.lblTrial.Caption.value(), u"RUN1"_s);
    EXPECT_EQ(kinovra.SelectedFile, u"run1.dg"_s);
    EXPECT_FALSE(splashShown());
}

TEST_F(StartUp, takes_a_bare_command_line_name_as_a_file_of_the_stored_data_directory)
{
    addFile(u"C:\\TRIALS\\run1.dg"_s);
    machine.settings.stored(u"Datadir"_s, u"C:\\TRIALS"_s);
    start(u"run1.dg"_s);
    EXPECT_EQ(kinovra.DataDir, u"C:\\TRIALS"_s);
    EXPECT_EQ(kinovra.CurrentTrial, u"run1"_s);
    EXPECT_FALSE(splashShown());
}

TEST_F(StartUp, does_not_report_a_command_line_file_that_is_missing)
{
    start(u"C:\\DATA\\none.dg"_s);
    EXPECT_TRUE(splashShown());
    EXPECT_THAT(machine.dialogs.messages, IsEmpty());
    EXPECT_EQ(kinovra.CurrentTrial, QString());
    EXPECT_EQ(kinovra.Answer, 53);
    EXPECT_EQ(frm.lblCommand.Caption.value(), u"C:\\DATA\\none.dg"_s);
    EXPECT_EQ(kinovra.SelectedFile, u"none.dg"_s);
}

TEST_F(StartUp, shows_no_splash_for_a_semicolon_or_a_question_mark)
{
    start(u";"_s);
    EXPECT_FALSE(splashShown());
    EXPECT_TRUE(frm.Visible);
    EXPECT_EQ(kinovra.CurrentTrial, QString());
    start(u"?"_s);
    EXPECT_FALSE(splashShown());
    EXPECT_THAT(machine.dialogs.messages, IsEmpty());
    EXPECT_EQ(kinovra.DataDir, u"C:\\DATA"_s);
    EXPECT_EQ(kinovra.SelectedFile, u"?"_s);
    start(u";;"_s);
    EXPECT_TRUE(splashShown());
}

TEST_F(StartUp, keeps_no_directory_in_the_selected_file)
{
    addData({"walk1.dg"});
    start(u"C:\\DATA\\walk1.dg"_s);
    EXPECT_EQ(kinovra.SelectedFile, u"walk1.dg"_s);
    start(u"C:\\DATA\\"_s);
    EXPECT_EQ(kinovra.SelectedFile, QString());
    EXPECT_EQ(kinovra.DataDir, u"C:\\DATA"_s);
    EXPECT_EQ(frm.lblCommand.Caption.value(), u"C:\\DATA\\"_s);
    EXPECT_TRUE(splashShown());
}

TEST_F(StartUp, reads_where_the_programs_were_though_the_environment_decides)
{
    shell::LoadSettings(panel);
    EXPECT_EQ(kinovra.ProgDir, u"C:\\KINOVRA"_s);
    machine.settings.stored(u"Progdir"_s, u"C:\\STORED"_s);
    shell::LoadSettings(panel);
    EXPECT_EQ(kinovra.ProgDir, u"C:\\STORED"_s);
}

TEST(State, begins_empty)
{
    support::RecordingPlatform machine;
    const shell::Panel panel(machine.platform);
    EXPECT_EQ(panel.kinovra.Answer, 0);
    EXPECT_EQ(panel.kinovra.TaskId, 0);
    EXPECT_EQ(panel.kinovra.ListingSwitch, QString());
    EXPECT_EQ(panel.frm.ProgPath, QString());
    EXPECT_EQ(panel.frm.Comm.text(), QString());
    EXPECT_EQ(panel.kinovra.ViewerFile, QString());
}

TEST_F(StartUp, shows_the_state_in_the_labels)
{
    start(u"C:\\DATA\\none.dg"_s);
    EXPECT_EQ(frm.lblTrial.Caption.value(), QString());
    EXPECT_EQ(frm.lblPath.Caption.value(), u"c:\\data"_s);
    EXPECT_EQ(frm.lblOutput.Caption.value(), u"DISK FILE"_s);
    EXPECT_EQ(frm.lblGraphics[0].Caption.value(), u"RUN.GRA"_s);
    EXPECT_EQ(frm.lblGraphics[1].Caption.value(), u"SCREEN"_s);
}

TEST_F(StartUp, checks_the_programs_before_the_first_trial_is_chosen)
{
    machine.files.remove(u"C:\\KINOVRA\\refila.exe"_s);
    machine.dialogs.whileShown = [&](const MessageBox &) {
        EXPECT_FALSE(kinovra.HeaderText.isEmpty());
        EXPECT_FALSE(panel.about.Visible);
    };
    start();
    ASSERT_EQ(machine.dialogs.messages.size(), 1U);
    EXPECT_EQ(machine.dialogs.messages[0].icon, Icon::Critical);
}

TEST_F(StartUp, ends_silently_when_the_window_is_closed_during_the_splash)
{
    machine.clock.duringPause(1, [&] { shell::dispatch(panel, frm.Unload); });
    start();
    EXPECT_TRUE(machine.environment.ended);
    EXPECT_THAT(machine.dialogs.messages, IsEmpty());
    // Nothing of the start-up came after the splash.
    EXPECT_EQ(frm.lblOutput.Caption.value(), u"DISK FILE"_s);
    EXPECT_EQ(frm.lblGraphics[0].Caption.value(), u"GRA file:"_s);
}

TEST_F(StartUp, lets_esc_hide_the_splash_and_nothing_else)
{
    machine.clock.duringPause(1, [&] {
        shell::dispatch(panel, [&] { panel.about.KeyPress(27); });
        EXPECT_FALSE(panel.about.Visible);
        EXPECT_TRUE(frm.Visible);
    });
    start();
    EXPECT_FALSE(machine.environment.ended);
    EXPECT_FALSE(panel.about.Visible);
    EXPECT_EQ(frm.lblGraphics[0].Caption.value(), u"RUN.GRA"_s);
}

class ShutDown : public support::PanelFixture
{
protected:
    void SetUp() override
    {
        machine.files.addDrive(u"d:"_s);
        machine.files.addDirectory(u"D:\\Trials"_s);
        machine.settings.stored(u"Datadir"_s, u"D:\\Trials"_s);
        machine.settings.stored(u"UserLevel"_s, u"1"_s);
        load();
    }
};

TEST_F(ShutDown, by_closing_restores_the_start_directory_and_saves_nothing)
{
    shell::dispatch(panel, frm.Unload);
    EXPECT_EQ(machine.files.currentDirectory(), u"C:\\DATA"_s);
    EXPECT_TRUE(machine.environment.ended);
    EXPECT_THAT(machine.settings.written, IsEmpty());
}

TEST_F(ShutDown, by_the_exit_item_saves_nothing)
{
    click(frm.mnuExit);
    EXPECT_EQ(machine.files.currentDirectory(), u"C:\\DATA"_s);
    EXPECT_TRUE(machine.environment.ended);
    EXPECT_THAT(machine.settings.written, IsEmpty());
}

TEST_F(ShutDown, by_the_exit_button_saves_five_settings_in_order)
{
    frm.CurrentGRA = u"Stick.gra"_s;
    size_t writtenBefore = 0;
    machine.environment.whileEnding = [&] { writtenBefore = machine.settings.written.size(); };
    click(frm.cmdExit);
    EXPECT_EQ(writtenBefore, 5U);
    using Written = support::RecordingSettings::Written;
    EXPECT_THAT(machine.settings.written,
                ElementsAre(Written{u"Kinovra"_s, u"Startup"_s, u"Progdir"_s, u"C:\\KINOVRA"_s},
                            Written{u"Kinovra"_s, u"Startup"_s, u"Datadir"_s, u"D:\\Trials"_s},
                            Written{u"Kinovra"_s, u"Startup"_s, u"LastGRA"_s, u"Stick.gra"_s},
                            Written{u"Kinovra"_s, u"Startup"_s, u"UserLevel"_s, u"1"_s},
                            Written{u"Kinovra"_s, u"Startup"_s, u"Viewer"_s, u"notepad.exe"_s}));
    EXPECT_EQ(machine.files.currentDirectory(), u"C:\\DATA"_s);
    EXPECT_TRUE(machine.environment.ended);
}

TEST_F(ShutDown, ends_the_program_even_where_the_start_directory_is_gone)
{
    machine.files.remove(u"C:\\DATA"_s);
    shell::dispatch(panel, frm.Unload);
    EXPECT_TRUE(machine.environment.ended);
    EXPECT_THAT(machine.dialogs.messages, IsEmpty());
}

TEST_F(ShutDown, lets_no_event_run_afterwards)
{
    shell::dispatch(panel, frm.Unload);
    shell::dispatch(panel, frm.filDatafiles.Click);
    EXPECT_THAT(machine.dialogs.messages, IsEmpty());
}
