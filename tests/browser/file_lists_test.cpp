#include "browser/file_lists.h"
#include "panel_fixture.h"
#include "platform/runtime_error.h"
#include "printing.h"
#include "shell/dispatch.h"

#include <gmock/gmock.h>

using namespace Qt::StringLiterals;
using platform::Buttons;
using platform::CommandText;
using platform::Icon;
using platform::MessageBox;
using platform::Show;
using platform::Start;
using testing::ElementsAre;
using testing::IsEmpty;

class FileLists : public support::PanelFixture
{
protected:
    void SetUp() override
    {
        addData({"RUN1.DG", "RUN2.DG", "run1.cfb", "run2.cfb", "run1.km", "run1.ks", "run2.en", "run1.dr",
                 "run2.SIM", "Kinemati.out", "walk.plt", "walk.acd", "walk.left.plt", "walk.x.acd"});
        addFile(u"C:\\KINOVRA\\graphs\\STICK.GRA"_s);
        load();
    }

    QStringList shown(const controls::FileList &list) const { return list.Names.value().toList(); }

    Start openDocument(const QString &file) const
    {
        return {u"open"_s, u"notepad.exe"_s, CommandText::document(file), u"C:\\DATA"_s, Show::Normal, 4711,
                true};
    }
};

TEST_F(FileLists, show_their_kinds_of_files)
{
    EXPECT_EQ(shown(frm.filDatafiles), (QStringList{u"RUN1.DG"_s, u"RUN2.DG"_s}));
    EXPECT_EQ(shown(frm.filModels), (QStringList{u"run1.cfb"_s, u"run2.cfb"_s}));
    EXPECT_EQ(shown(frm.filBinaries),
              (QStringList{u"run1.dr"_s, u"run1.km"_s, u"run1.ks"_s, u"run2.en"_s, u"run2.SIM"_s}));
    EXPECT_EQ(shown(frm.filOutputs), QStringList{u"Kinemati.out"_s});
    EXPECT_EQ(shown(frm.filPlots),
              (QStringList{u"walk.acd"_s, u"walk.left.plt"_s, u"walk.plt"_s, u"walk.x.acd"_s}));
    EXPECT_EQ(shown(frm.filGraFiles), (QStringList{u"RUN.GRA"_s, u"STICK.GRA"_s}));
}

// -------------------------------------------------------------------------------------------------------
// refresh

TEST_F(FileLists, refreshed_show_what_is_new)
{
    addData({"NEW.DG", "new.cfb", "new.km", "new.out", "new.plt"});
    addFile(u"C:\\KINOVRA\\graphs\\NEW.GRA"_s);
    machine.files.addDirectory(u"C:\\DATA\\sub"_s);
    machine.files.addDrive(u"e:"_s);
    click(frm.cmdRefresh);
    EXPECT_TRUE(shown(frm.filDatafiles).contains(u"NEW.DG"_s));
    EXPECT_TRUE(shown(frm.filModels).contains(u"new.cfb"_s));
    EXPECT_TRUE(shown(frm.filBinaries).contains(u"new.km"_s));
    EXPECT_TRUE(shown(frm.filOutputs).contains(u"new.out"_s));
    EXPECT_TRUE(shown(frm.filPlots).contains(u"new.plt"_s));
    EXPECT_TRUE(shown(frm.filGraFiles).contains(u"NEW.GRA"_s));
    EXPECT_EQ(frm.dirSelect.RowPath(frm.dirSelect.RowCount() - 1), u"C:\\DATA\\sub"_s);
    EXPECT_TRUE(frm.drvDrives.Drives.value().contains(u"e:"_s));
    EXPECT_EQ(frm.drvDrives.Drive.value(), u"c: [data]"_s);
}

TEST_F(FileLists, refreshed_let_pending_events_run_at_the_end)
{
    addData({"NEW.DG", "new.cfb", "new.km", "new.out", "new.plt"});
    addFile(u"C:\\KINOVRA\\graphs\\NEW.GRA"_s);
    machine.files.addDirectory(u"C:\\DATA\\sub"_s);
    machine.files.addDrive(u"e:"_s);
    frm.lblBinaries.Visible = false;
    machine.clock.whilePending = [&] {
        EXPECT_TRUE(shown(frm.filDatafiles).contains(u"NEW.DG"_s));
        EXPECT_TRUE(shown(frm.filModels).contains(u"new.cfb"_s));
        EXPECT_TRUE(shown(frm.filBinaries).contains(u"new.km"_s));
        EXPECT_TRUE(shown(frm.filOutputs).contains(u"new.out"_s));
        EXPECT_TRUE(shown(frm.filPlots).contains(u"new.plt"_s));
        EXPECT_TRUE(shown(frm.filGraFiles).contains(u"NEW.GRA"_s));
        EXPECT_EQ(frm.dirSelect.RowPath(frm.dirSelect.RowCount() - 1), u"C:\\DATA\\sub"_s);
        EXPECT_TRUE(frm.drvDrives.Drives.value().contains(u"e:"_s));
        EXPECT_TRUE(frm.lblBinaries.Visible);
    };
    click(frm.cmdRefresh);
    EXPECT_EQ(machine.clock.pendingRuns, 1);
}

TEST_F(FileLists, refreshed_keep_what_is_selected_and_run_no_handler)
{
    click(frm.filDatafiles, u"RUN2.DG"_s);
    forget();
    addData({"RUN0.DG"});
    click(frm.cmdRefresh);
    EXPECT_EQ(frm.filDatafiles.FileName(), u"RUN2.DG"_s);
    EXPECT_EQ(frm.filDatafiles.ListIndex.value(), 2);
    EXPECT_EQ(kinovra.CurrentTrial, u"RUN2"_s);
    EXPECT_THAT(machine.dialogs.messages, IsEmpty());
}

TEST_F(FileLists, refreshed_select_nothing_where_the_selected_file_is_gone)
{
    click(frm.filDatafiles, u"RUN2.DG"_s);
    machine.files.remove(u"C:\\DATA\\RUN2.DG"_s);
    click(frm.cmdRefresh);
    EXPECT_EQ(frm.filDatafiles.ListIndex.value(), -1);
    EXPECT_EQ(kinovra.CurrentTrial, u"RUN2"_s);
}

TEST_F(FileLists, refreshed_come_back_but_for_the_outputs)
{
    const std::initializer_list<controls::Control *> lists{
        &frm.filDatafiles, &frm.lblDatafiles, &frm.filModels,   &frm.lblModels,
        &frm.filPlots,     &frm.lblPlots,     &frm.filBinaries, &frm.lblBinaries};
    for (controls::Control *control : lists)
        control->Visible = false;
    frm.filOutputs.Visible = false;
    frm.lblOutputs.Visible = false;
    click(frm.cmdRefresh);
    for (controls::Control *control : lists)
        EXPECT_TRUE(control->Visible);
    EXPECT_FALSE(frm.filOutputs.Visible);
    EXPECT_FALSE(frm.lblOutputs.Visible);
}

TEST_F(FileLists, refreshed_read_each_directory_once)
{
    machine.files.directoriesReadAnew = 0;
    click(frm.cmdRefresh);
    // The data directory for five lists, again for the directory list (which the host serves from the first
    // reading), and the graph types.
    EXPECT_EQ(machine.files.directoriesRead, 3);
    EXPECT_EQ(machine.files.directoriesReadAnew, 2);
    EXPECT_EQ(machine.clock.pendingRuns, 1);
}

TEST_F(FileLists, refreshed_show_each_its_own_directory)
{
    addFile(u"C:\\Trials\\b.km"_s);
    browser::pointAt(panel, frm.filBinaries, u"C:\\Trials"_s);
    click(frm.cmdRefresh);
    EXPECT_EQ(frm.filBinaries.Path(), u"C:\\Trials"_s);
    EXPECT_EQ(frm.filBinaries.Names.value().toList(), QStringList{u"b.km"_s});
    addFile(u"C:\\Trials\\c.km"_s);
    browser::refreshResultLists(panel);
    EXPECT_EQ(frm.filBinaries.Names.value().toList(), (QStringList{u"b.km"_s, u"c.km"_s}));
}

TEST_F(FileLists, show_what_has_changed_when_the_user_comes_back)
{
    click(frm.filDatafiles, u"RUN1.DG"_s);
    forget();
    addData({"new.dg", "new.cfb", "new.km", "new.plt", "new.out"});
    addFile(u"C:\\KINOVRA\\graphs\\NEW.GRA"_s);
    addFile(u"C:\\DATA\\Below\\x.txt"_s);
    mark();
    const std::initializer_list<controls::FileList *> lists{&frm.filDatafiles, &frm.filModels,
                                                            &frm.filBinaries,  &frm.filPlots,
                                                            &frm.filOutputs,   &frm.filGraFiles};
    for (controls::FileList *list : lists)
        list->Click = [] { ADD_FAILURE() << "no handler runs"; };
    shell::dispatch(panel, frm.Returned);
    for (controls::FileList *list : lists)
        EXPECT_GE(list->Names.value().toList().filter(u"new."_s, Qt::CaseInsensitive).size(), 1);
    EXPECT_EQ(frm.dirSelect.RowText(frm.dirSelect.RowCount() - 1), u"Below"_s);
    EXPECT_EQ(frm.filDatafiles.FileName(), u"RUN1.DG"_s);
    expectMarkedBut({});
    EXPECT_THAT(messages(), IsEmpty());
}

TEST_F(FileLists, are_empty_when_the_user_comes_back_to_a_directory_that_is_gone)
{
    machine.files.remove(u"C:\\DATA"_s);
    shell::dispatch(panel, frm.Returned);
    EXPECT_EQ(frm.filDatafiles.ListCount(), 0);
    EXPECT_EQ(frm.StatusBar1.Panel1.value(), u"DATA cannot be read: path not found."_s);
    EXPECT_THAT(messages(), IsEmpty());
}

TEST_F(FileLists, refreshed_bring_the_graph_buttons_back_while_no_graph_type_is_being_chosen)
{
    for (auto *button : {&frm.cmdGraph, &frm.cmdSelectGra, &frm.cmdEditGra})
        button->Visible = false;
    click(frm.cmdRefresh);
    for (auto *button : {&frm.cmdGraph, &frm.cmdSelectGra, &frm.cmdEditGra})
        EXPECT_TRUE(button->Visible);
}

TEST_F(FileLists, refreshed_leave_the_choice_of_a_graph_type_alone)
{
    click(frm.cmdSelectGra);
    click(frm.cmdRefresh);
    EXPECT_TRUE(frm.filGraFiles.Visible);
    EXPECT_TRUE(frm.lblGraFiles.Visible);
    EXPECT_FALSE(frm.cmdGraph.Visible);
}

TEST_F(FileLists, of_a_directory_that_is_gone_are_empty_and_the_status_bar_says_why)
{
    click(frm.filDatafiles, u"RUN1.DG"_s);
    forget();
    machine.files.remove(u"C:\\DATA"_s);
    click(frm.cmdRefresh);
    EXPECT_EQ(frm.filDatafiles.ListCount(), 0);
    EXPECT_EQ(frm.filOutputs.ListCount(), 0);
    EXPECT_EQ(frm.StatusBar1.Panel1.value(), u"DATA cannot be read: path not found."_s);
    EXPECT_THAT(machine.dialogs.messages, IsEmpty());
    EXPECT_EQ(kinovra.CurrentTrial, u"RUN1"_s);

    machine.files.addDirectory(u"C:\\DATA"_s);
    click(frm.cmdRefresh);
    EXPECT_EQ(frm.StatusBar1.Panel1.value(), QString()) << "it can be read again";
}

TEST_F(FileLists, of_a_directory_that_fails_keep_the_capitals_of_the_reason)
{
    machine.files.forbid(u"C:\\DATA"_s, platform::ErrorNumber::DeviceError);
    click(frm.cmdRefresh);
    EXPECT_EQ(frm.StatusBar1.Panel1.value(), u"DATA cannot be read: device I/O error."_s);
}

TEST_F(FileLists, are_read_on_return_only_where_the_directory_has_changed)
{
    const int before = machine.files.directoriesReadAnew;
    shell::dispatch(panel, frm.Returned);
    EXPECT_EQ(machine.files.directoriesReadAnew, before);
}

TEST_F(FileLists, refreshed_leave_what_the_status_bar_says_of_something_else)
{
    frm.StatusBar1.Panel1 = u"DATA2 cannot be read: path not found."_s;
    click(frm.cmdRefresh);
    EXPECT_EQ(frm.StatusBar1.Panel1.value(), u"DATA2 cannot be read: path not found."_s);
}

TEST_F(FileLists, that_have_shown_no_directory_yet_are_left_alone)
{
    support::RecordingPlatform another;
    shell::Panel notLoaded(another.platform);
    browser::refresh(notLoaded, {&notLoaded.frm.filGraFiles, &notLoaded.frm.filModels});
    EXPECT_EQ(another.files.directoriesRead, 0);
    EXPECT_EQ(notLoaded.frm.StatusBar1.Panel1.value(), QString());
    EXPECT_THAT(another.dialogs.messages, IsEmpty());
}

TEST_F(FileLists, re_read_their_directory_on_getting_the_focus)
{
    addData({"NEW.KM", "NEW.PLT", "NEW.DG"});
    shell::dispatch(panel, frm.filBinaries.GotFocus);
    EXPECT_TRUE(shown(frm.filBinaries).contains(u"NEW.KM"_s));
    EXPECT_FALSE(shown(frm.filPlots).contains(u"NEW.PLT"_s));
    shell::dispatch(panel, frm.filPlots.GotFocus);
    EXPECT_TRUE(shown(frm.filPlots).contains(u"NEW.PLT"_s));
    EXPECT_FALSE(shown(frm.filDatafiles).contains(u"NEW.DG"_s));
    EXPECT_FALSE(frm.filDatafiles.GotFocus);
    EXPECT_FALSE(frm.filModels.GotFocus);
    EXPECT_FALSE(frm.filOutputs.GotFocus);
}

// ------------------------------------------------------------------------------------------------------
// binaries

TEST_F(FileLists, binaries_clicked_are_chosen)
{
    frm.filBinaries.Visible = false;
    frm.lblBinaries.Visible = false;
    click(frm.filBinaries, u"run1.km"_s);
    EXPECT_EQ(kinovra.BinaryFile, u"run1.km"_s);
    EXPECT_TRUE(frm.filBinaries.Visible);
    EXPECT_TRUE(frm.lblBinaries.Visible);
    EXPECT_THAT(machine.dialogs.messages, IsEmpty());
}

TEST_F(FileLists, binaries_without_a_selection_are_forgotten)
{
    click(frm.filBinaries, u"run1.km"_s);
    frm.filBinaries.ListIndex = -1;
    shell::dispatch(panel, frm.filBinaries.Click);
    EXPECT_EQ(kinovra.BinaryFile, QString());
}

TEST_F(FileLists, binaries_without_a_selection_cannot_be_viewed)
{
    click(frm.filBinaries, u"run2.en"_s);
    frm.filBinaries.ListIndex = -1;
    shell::dispatch(panel, frm.filBinaries.DblClick);
    EXPECT_EQ(kinovra.BinaryFile, QString());
    EXPECT_EQ(kinovra.CurrentExtension, QString());
    EXPECT_EQ(messages(), QStringList{u"Cannot view binary files with Notepad."_s});
    EXPECT_THAT(machine.programs.started, IsEmpty());
}

TEST_F(FileLists, binaries_that_are_none_are_told)
{
    kinovra.BinaryFile = u"old.km"_s;
    frm.filBinaries.refresh({});
    shell::dispatch(panel, frm.filBinaries.Click);
    shell::dispatch(panel, frm.filBinaries.DblClick);
    const MessageBox none{u"No binaries for this trial."_s, Icon::Information};
    EXPECT_THAT(machine.dialogs.messages, ElementsAre(none, none));
    EXPECT_EQ(kinovra.BinaryFile, u"old.km"_s);
}

TEST_F(FileLists, binaries_cannot_be_viewed)
{
    doubleClick(frm.filBinaries, u"run2.en"_s);
    EXPECT_THAT(machine.dialogs.messages,
                ElementsAre(MessageBox{u"Cannot view binary files with Notepad."_s, Icon::Information,
                                       Buttons::OKOnly, u"Cannot View File"_s}));
    EXPECT_THAT(machine.programs.started, IsEmpty());
    EXPECT_EQ(kinovra.BinaryFile, u"run2.en"_s);
    EXPECT_EQ(kinovra.CurrentExtension, u"en"_s);
}

TEST_F(FileLists, binaries_that_are_text_open_after_a_warning)
{
    for (const QString &name : {u"run1.dr"_s, u"run2.SIM"_s}) {
        forget();
        machine.dialogs.answers = {platform::OK};
        doubleClick(frm.filBinaries, name);
        EXPECT_THAT(
            machine.dialogs.messages,
            ElementsAre(MessageBox{u"Press OK to open this file. It is not normally edited manually."_s,
                                   Icon::Question, Buttons::OKCancel, u"OK to Edit?"_s}));
        EXPECT_THAT(machine.programs.started, ElementsAre(openDocument(name)));
        EXPECT_EQ(kinovra.SelectedFile, name);
        EXPECT_EQ(kinovra.TaskId, 1);
    }
}

TEST_F(FileLists, binaries_that_are_text_do_not_open_on_cancel)
{
    machine.dialogs.answers = {platform::Cancel};
    doubleClick(frm.filBinaries, u"run1.dr"_s);
    EXPECT_THAT(machine.programs.started, IsEmpty());
    EXPECT_EQ(kinovra.TaskId, 2);
}

// -------------------------------------------------------------------------------------------------------
// outputs

TEST_F(FileLists, outputs_open_in_the_text_viewer)
{
    doubleClick(frm.filOutputs, u"Kinemati.out"_s);
    EXPECT_THAT(machine.programs.started, ElementsAre(openDocument(u"Kinemati.out"_s)));
    EXPECT_EQ(kinovra.SelectedFile, u"Kinemati.out"_s);
    EXPECT_THAT(machine.dialogs.messages, IsEmpty());
}

TEST_F(FileLists, outputs_that_are_none_are_told)
{
    frm.filOutputs.refresh({});
    shell::dispatch(panel, frm.filOutputs.DblClick);
    EXPECT_THAT(machine.dialogs.messages,
                ElementsAre(MessageBox{u"No output files in this directory."_s, Icon::Information}));
    EXPECT_THAT(machine.programs.started, IsEmpty());
}

TEST_F(FileLists, outputs_without_a_selection_open_nothing)
{
    shell::dispatch(panel, frm.filOutputs.DblClick);
    EXPECT_EQ(kinovra.SelectedFile, QString());
    EXPECT_THAT(machine.programs.started, IsEmpty());
}

TEST_F(FileLists, that_fail_to_open_a_file_say_so_in_the_status_bar)
{
    machine.programs.failure = u"it was not found"_s;
    doubleClick(frm.filOutputs, u"Kinemati.out"_s);
    EXPECT_EQ(frm.StatusBar1.Panel1.value(), u"notepad.exe was not started: it was not found."_s);
    EXPECT_THAT(machine.dialogs.messages, IsEmpty());
}

// ---------------------------------------------------------------------------------------------------------
// plots

TEST_F(FileLists, plots_clicked_are_remembered)
{
    click(frm.filPlots, u"walk.left.plt"_s);
    EXPECT_EQ(kinovra.SelectedFile, u"walk.left.plt"_s);
    EXPECT_EQ(frm.SelectedPlot, u"walk.left.plt"_s);
}

TEST_F(FileLists, plots_without_a_selection_are_forgotten)
{
    click(frm.filPlots, u"walk.left.plt"_s);
    frm.filPlots.ListIndex = -1;
    shell::dispatch(panel, frm.filPlots.Click);
    EXPECT_EQ(kinovra.SelectedFile, QString());
    EXPECT_EQ(frm.SelectedPlot, QString());
}

TEST_F(FileLists, plots_that_are_none_are_told)
{
    frm.SelectedPlot = u"old.plt"_s;
    frm.filPlots.refresh({});
    shell::dispatch(panel, frm.filPlots.Click);
    shell::dispatch(panel, frm.filPlots.DblClick);
    const MessageBox none{u"No graphs in this directory."_s, Icon::Information};
    EXPECT_THAT(machine.dialogs.messages, ElementsAre(none, none));
    EXPECT_EQ(frm.SelectedPlot, u"old.plt"_s);
    EXPECT_THAT(machine.programs.started, IsEmpty());
}

TEST_F(FileLists, plots_are_displayed_windowed)
{
    doubleClick(frm.filPlots, u"walk.plt"_s);
    EXPECT_THAT(machine.programs.started, ElementsAre(Start{QString(), u"C:\\KINOVRA\\grafow.exe"_s,
                                                            u" /1 "_s + CommandText::document(u"walk.plt"_s),
                                                            u"C:\\DATA"_s, Show::Normal}));
    EXPECT_EQ(machine.programs.started[0].text(), u"C:\\KINOVRA\\grafow.exe /1 walk.plt"_s);
    EXPECT_EQ(kinovra.TaskId, 51);
}

TEST_F(FileLists, plots_are_displayed_full_screen_where_the_option_says_so)
{
    frm.mnuGraphOptions[2].Checked = true;
    doubleClick(frm.filPlots, u"walk.plt"_s);
    ASSERT_EQ(machine.programs.started.size(), 1U);
    EXPECT_EQ(machine.programs.started[0].text(), u"C:\\KINOVRA\\grafod.exe /1 walk.plt"_s);
    EXPECT_EQ(machine.programs.started[0].show, Show::Normal);
}

TEST_F(FileLists, plots_of_acrospin_are_its_own)
{
    frm.mnuGraphOptions[2].Checked = true;
    doubleClick(frm.filPlots, u"walk.acd"_s);
    ASSERT_EQ(machine.programs.started.size(), 1U);
    EXPECT_EQ(machine.programs.started[0].text(), u"C:\\KINOVRA\\acrospin.exe walk.acd"_s);
}

TEST_F(FileLists, plots_have_the_extension_behind_their_first_dot)
{
    doubleClick(frm.filPlots, u"walk.x.acd"_s);
    ASSERT_EQ(machine.programs.started.size(), 1U);
    EXPECT_EQ(machine.programs.started[0].text(), u"C:\\KINOVRA\\grafow.exe /1 walk.x.acd"_s);
}

TEST_F(FileLists, plots_without_a_selection_display_nothing)
{
    shell::dispatch(panel, frm.filPlots.DblClick);
    EXPECT_THAT(machine.programs.started, IsEmpty());
}

// --------------------------------------------------------------------------------------------------- graph
// types

TEST_F(FileLists, graph_types_take_the_place_of_the_buttons)
{
    addFile(u"C:\\KINOVRA\\graphs\\NEW.GRA"_s);
    click(frm.cmdSelectGra);
    EXPECT_TRUE(frm.filGraFiles.Visible);
    EXPECT_TRUE(frm.lblGraFiles.Visible);
    EXPECT_FALSE(frm.cmdGraph.Visible);
    EXPECT_FALSE(frm.cmdSelectGra.Visible);
    EXPECT_FALSE(frm.cmdEditGra.Visible);
    EXPECT_TRUE(shown(frm.filGraFiles).contains(u"NEW.GRA"_s));
    EXPECT_THAT(machine.dialogs.messages, IsEmpty());
}

TEST_F(FileLists, graph_types_clicked_are_chosen)
{
    click(frm.cmdSelectGra);
    frm.cmdEditGra.Enabled = false;
    frm.filGraFiles.ListIndex = 1;
    shell::dispatch(panel, frm.filGraFiles.Click);
    EXPECT_EQ(frm.CurrentGRA, u"STICK.GRA"_s);
    EXPECT_EQ(frm.lblGraphics[0].Caption.value(), u"STICK.GRA"_s);
    EXPECT_TRUE(frm.cmdEditGra.Enabled);
    EXPECT_FALSE(frm.filGraFiles.Visible);
    EXPECT_FALSE(frm.lblGraFiles.Visible);
    EXPECT_TRUE(frm.cmdGraph.Visible);
    EXPECT_TRUE(frm.cmdSelectGra.Visible);
    EXPECT_TRUE(frm.cmdEditGra.Visible);
}

TEST_F(FileLists, graph_types_are_shown_in_upper_case)
{
    addFile(u"C:\\KINOVRA\\graphs\\zoom.gra"_s);
    click(frm.cmdSelectGra);
    click(frm.filGraFiles, u"zoom.gra"_s);
    EXPECT_EQ(frm.CurrentGRA, u"zoom.gra"_s);
    EXPECT_EQ(frm.lblGraphics[0].Caption.value(), u"ZOOM.GRA"_s);
}

TEST_F(FileLists, graph_types_that_are_none_are_told_and_cannot_be_edited)
{
    click(frm.cmdSelectGra);
    frm.filGraFiles.refresh({});
    frm.lblGraphics[0].Caption = u"?"_s;
    machine.dialogs.whileShown = [&](const MessageBox &) {
        EXPECT_FALSE(frm.filGraFiles.Visible) << "the choice is over before the box is shown";
        EXPECT_TRUE(frm.cmdGraph.Visible && frm.cmdSelectGra.Visible && frm.cmdEditGra.Visible);
    };
    shell::dispatch(panel, frm.filGraFiles.Click);
    EXPECT_THAT(
        machine.dialogs.messages,
        ElementsAre(MessageBox{u"No .GRA files were found in the program directory."_s, Icon::Exclamation}));
    EXPECT_EQ(frm.lblGraphics[0].Caption.value(), u"RUN.GRA"_s);
    EXPECT_FALSE(frm.cmdEditGra.Enabled);
    EXPECT_EQ(frm.CurrentGRA, u"RUN.GRA"_s);
    EXPECT_TRUE(frm.cmdGraph.Visible);
    EXPECT_FALSE(frm.filGraFiles.Visible);
}

TEST_F(FileLists, graph_types_are_cancelled_by_the_right_button)
{
    click(frm.cmdSelectGra);
    frm.filGraFiles.ListIndex = 1;
    shell::dispatch(panel, [&] { frm.filGraFiles.MouseUp(1); });
    EXPECT_TRUE(frm.filGraFiles.Visible);
    shell::dispatch(panel, [&] { frm.filGraFiles.MouseUp(2); });
    EXPECT_FALSE(frm.filGraFiles.Visible);
    EXPECT_FALSE(frm.lblGraFiles.Visible);
    EXPECT_TRUE(frm.cmdGraph.Visible);
    EXPECT_TRUE(frm.cmdSelectGra.Visible);
    EXPECT_TRUE(frm.cmdEditGra.Visible);
    EXPECT_EQ(frm.CurrentGRA, u"RUN.GRA"_s);
    EXPECT_EQ(frm.filGraFiles.ListIndex.value(), 1) << "the right button neither selects nor clicks";
}
