#include "browser/file_lists.h"
#include "panel_fixture.h"
#include "platform/runtime_error.h"
#include "printing.h"
#include "shell/dispatch.h"
#include "viewer/view_commands.h"

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

class ViewMenu : public support::PanelFixture
{
protected:
    void SetUp() override
    {
        addData({"walk1.dg", "walk1.km"});
        load();
        click(frm.filDatafiles, u"walk1.dg"_s);
        forget();
        for (controls::Control *control : all())
            control->Visible = false;
        mark();
    }

    std::vector<controls::Control *> all()
    {
        return {&frm.filDatafiles, &frm.lblDatafiles, &frm.filModels,  &frm.lblModels,    &frm.filBinaries,
                &frm.lblBinaries,  &frm.filOutputs,   &frm.lblOutputs, &frm.filPlots,     &frm.lblPlots,
                &frm.filGraFiles,  &frm.lblGraFiles,  &frm.cmdGraph,   &frm.cmdSelectGra, &frm.cmdEditGra};
    }

    void expectVisible(const std::vector<controls::Control *> &expected)
    {
        const auto controls = all();
        for (size_t i = 0; i < controls.size(); ++i) {
            const bool isExpected =
                std::find(expected.begin(), expected.end(), controls[i]) != expected.end();
            EXPECT_EQ(controls[i]->Visible.value(), isExpected) << i;
        }
    }

    void view(size_t index, const std::optional<QString> &file)
    {
        machine.dialogs.chosenFiles = {file};
        click(frm.mnuView[index]);
    }

    const MessageBox noBinaries{u"No binary files in this directory."_s, Icon::Exclamation};
};

TEST_F(ViewMenu, shows_the_binary_files)
{
    addData({"walk1.pj"});
    click(frm.mnuView[0]);
    expectVisible({&frm.filBinaries, &frm.lblBinaries});
    EXPECT_EQ(frm.filBinaries.Names.value().toList(), (QStringList{u"walk1.km"_s, u"walk1.pj"_s}));
    EXPECT_THAT(machine.dialogs.messages, IsEmpty());
    expectMarkedBut({});
}

TEST_F(ViewMenu, shows_the_binary_files_of_the_data_directory_alone)
{
    addFile(u"C:\\OTHER\\other.km"_s);
    browser::pointAt(panel, frm.filBinaries, u"C:\\OTHER"_s);
    click(frm.mnuView[0]);
    EXPECT_EQ(frm.filBinaries.Path(), u"C:\\DATA"_s);
    EXPECT_EQ(frm.filBinaries.Names.value().toList(), QStringList{u"walk1.km"_s});
    expectVisible({&frm.filBinaries, &frm.lblBinaries});
}

TEST_F(ViewMenu, keeps_the_chosen_binary_file)
{
    frm.filBinaries.ListIndex = 0;
    click(frm.mnuView[0]);
    EXPECT_EQ(frm.filBinaries.FileName(), u"walk1.km"_s);
}

TEST_F(ViewMenu, says_that_there_are_no_binary_files)
{
    machine.files.remove(u"C:\\DATA\\walk1.km"_s);
    click(frm.mnuView[0]);
    EXPECT_THAT(machine.dialogs.messages, ElementsAre(noBinaries));
    expectVisible({});
    for (controls::Control *control : all())
        control->Visible = true;
    click(frm.mnuView[0]);
    expectVisible(all());
}

TEST_F(ViewMenu, says_that_the_data_directory_is_gone)
{
    machine.files.remove(u"C:\\DATA"_s);
    click(frm.mnuView[0]);
    EXPECT_THAT(machine.dialogs.messages,
                ElementsAre(MessageBox{u"The data directory was not found."_s, Icon::Exclamation}));
    expectVisible({});
    expectMarkedBut({});
}

TEST_F(ViewMenu, shows_the_graph_types_in_place_of_the_buttons)
{
    addFile(u"C:\\KINOVRA\\graphs\\STICK.GRA"_s);
    for (auto *button : {&frm.cmdGraph, &frm.cmdSelectGra, &frm.cmdEditGra})
        button->Visible = true;
    click(frm.mnuView[2]);
    expectVisible({&frm.filGraFiles, &frm.lblGraFiles});
    EXPECT_EQ(frm.StatusBar1.Panel1.value(), QString());
    EXPECT_EQ(frm.filGraFiles.Names.value().toList(), (QStringList{u"RUN.GRA"_s, u"STICK.GRA"_s}));
    EXPECT_THAT(machine.dialogs.messages, IsEmpty());
    expectMarkedBut({});
}

TEST_F(ViewMenu, hides_types_and_buttons_where_there_are_no_types)
{
    machine.files.remove(u"C:\\KINOVRA\\graphs\\RUN.GRA"_s);
    for (controls::Control *control :
         {static_cast<controls::Control *>(&frm.filGraFiles),
          static_cast<controls::Control *>(&frm.lblGraFiles), static_cast<controls::Control *>(&frm.cmdGraph),
          static_cast<controls::Control *>(&frm.cmdSelectGra),
          static_cast<controls::Control *>(&frm.cmdEditGra)})
        control->Visible = true;
    click(frm.mnuView[2]);
    EXPECT_THAT(
        machine.dialogs.messages,
        ElementsAre(MessageBox{u"No .GRA files were found in the program directory."_s, Icon::Exclamation}));
    expectVisible({});
    EXPECT_EQ(frm.StatusBar1.Panel1.value(), u"\"Refresh File Lists\" brings the graph buttons back."_s);
    click(frm.cmdRefresh);
    EXPECT_TRUE(frm.cmdGraph.Visible);
}

TEST_F(ViewMenu, says_that_the_graphs_folder_is_gone)
{
    machine.files.remove(u"C:\\KINOVRA\\graphs"_s);
    frm.cmdGraph.Visible = true;
    frm.cmdEditGra.Visible = true;
    click(frm.mnuView[2]);
    EXPECT_THAT(machine.dialogs.messages,
                ElementsAre(MessageBox{u"The \\GRAPHS subdirectory was not found."_s, Icon::Exclamation}));
    expectVisible({&frm.cmdGraph, &frm.cmdEditGra});
    expectMarkedBut({});
}

TEST_F(ViewMenu, lets_the_user_choose_a_plot)
{
    frm.dlgOpen.InitDir = u"C:\\"_s;
    view(1, u"C:\\DATA\\-a & \"b\".plt"_s);
    EXPECT_THAT(
        machine.dialogs.requests,
        ElementsAre(OpenFileRequest{
            .initialDirectory = u"C:\\DATA"_s,
            .fileName = u"*.plt"_s,
            .filter =
                u"Plotter files (*.plt)|*.plt|HPGL files (*.plt;*.pgl;*.hpg)|*.plt;*.pgl;*.hpg|Bitmaps (*.pcx;*.bmp)|*.pcx;*.bmp|All files (*.*)|*.*"_s,
            .title = u"Select graph to view"_s,
            .filterIndex = 1}));
    EXPECT_THAT(machine.programs.started,
                ElementsAre(Start{QString(), u"C:\\KINOVRA\\GrafoW.exe"_s,
                                  u" "_s + CommandText::document(u"C:\\DATA\\-a & \"b\".plt"_s),
                                  u"C:\\DATA"_s, Show::Shown}));
    EXPECT_EQ(machine.programs.started[0].text(), u"C:\\KINOVRA\\GrafoW.exe C:\\DATA\\-a & \"b\".plt"_s);
    EXPECT_EQ(kinovra.ProgName, u"GrafoW"_s);
    EXPECT_EQ(frm.ProgPath, u"C:\\KINOVRA\\GrafoW.exe"_s);
    EXPECT_EQ(frm.lblCommand.Caption.value(), u"C:\\KINOVRA\\GrafoW.exe C:\\DATA\\-a & \"b\".plt"_s);
    EXPECT_TRUE(frm.lblCommand.Visible);
    EXPECT_EQ(kinovra.TaskId, 51);
    EXPECT_EQ(frm.dlgOpen.InitDir, u"C:\\DATA"_s);
    // The selected file stays.
    expectMarkedBut({u"ProgName"_s, u"ProgPath"_s, u"TaskId"_s, u"lblCommand"_s});
    EXPECT_THAT(machine.dialogs.messages, IsEmpty());
    expectVisible({});
}

TEST_F(ViewMenu, lets_the_user_choose_a_text_for_notepad)
{
    kinovra.TextViewer = u"C:\\KINOVRA\\notepad.exe"_s;
    view(3, u"C:\\DATA\\my list.out"_s);
    EXPECT_THAT(
        machine.dialogs.requests,
        ElementsAre(OpenFileRequest{
            .initialDirectory = u"C:\\DATA"_s,
            .fileName = u"*.out"_s,
            .filter =
                u"Text files (*.txt)|*.txt|Output files (*.out)|*.out|Listings (*.lst)|*.lst|All files (*.*)|*.*"_s,
            .title = u"Select ASCII file to view"_s,
            .filterIndex = 2}));
    EXPECT_THAT(machine.programs.started,
                ElementsAre(Start{QString(), u"notepad.exe"_s,
                                  u" "_s + CommandText::document(u"C:\\DATA\\my list.out"_s), u"C:\\DATA"_s,
                                  Show::Normal}));
    EXPECT_EQ(kinovra.SelectedFile, u"C:\\DATA\\my list.out"_s);
    EXPECT_EQ(kinovra.TaskId, 51);
    EXPECT_EQ(kinovra.Answer, 53);
    expectMarkedBut({u"SelectedFile"_s, u"TaskId"_s, u"Answer"_s});
    EXPECT_THAT(machine.dialogs.messages, IsEmpty());
}

TEST_F(ViewMenu, proposes_the_listing_of_the_program_run_last)
{
    kinovra.ProgName = u"Graph"_s;
    addData({"graph.OUT"});
    view(3, std::nullopt);
    EXPECT_EQ(machine.dialogs.requests.at(0).fileName, u"Graph.out"_s);
    EXPECT_EQ(kinovra.Answer, 0);
    EXPECT_THAT(machine.files.tested, ElementsAre(u"C:\\DATA\\GRAPH.OUT"_s));
    machine.files.remove(u"C:\\DATA\\graph.OUT"_s);
    view(3, std::nullopt);
    EXPECT_EQ(machine.dialogs.requests.at(1).fileName, u"*.out"_s);
    EXPECT_EQ(kinovra.Answer, 53);
    // After "Run a program" the name is a full path, and no listing is called so.
    kinovra.ProgName = u"C:\\TOOLS\\A.EXE"_s;
    view(3, std::nullopt);
    EXPECT_EQ(machine.dialogs.requests.at(2).fileName, u"*.out"_s);
    EXPECT_EQ(kinovra.Answer, 52);
}

TEST_F(ViewMenu, lets_the_user_choose_a_film)
{
    view(4, u"C:\\DATA\\- my film.avi"_s);
    EXPECT_THAT(
        machine.dialogs.requests,
        ElementsAre(OpenFileRequest{
            .initialDirectory = u"C:\\DATA"_s,
            .fileName = QString(),
            .filter = u"AVI && MPEG files (*.avi;*.mpg)|*.avi;*.mpg;*.mpe;*.mpeg|All files (*.*)|*.*"_s,
            .title = u"Select multimedia file to view"_s,
            .filterIndex = 1}));
    EXPECT_THAT(machine.programs.started,
                ElementsAre(Start{QString(), u"mplayer.exe"_s,
                                  u" "_s + CommandText::document(u"C:\\DATA\\- my film.avi"_s), u"C:\\DATA"_s,
                                  Show::Normal}));
    EXPECT_EQ(kinovra.SelectedFile, u"C:\\DATA\\- my film.avi"_s);
    expectMarkedBut({u"SelectedFile"_s, u"TaskId"_s});
    EXPECT_EQ(kinovra.TaskId, 51);
}

TEST_F(ViewMenu, cancelled_ends_silently)
{
    for (size_t index : {1, 3, 4}) {
        mark();
        view(index, std::nullopt);
        EXPECT_THAT(machine.programs.started, IsEmpty());
        EXPECT_THAT(machine.dialogs.messages, IsEmpty());
        expectMarkedBut(index == 3 ? QStringList(u"Answer"_s) : QStringList());
    }
}

TEST_F(ViewMenu, starts_nothing_without_a_name)
{
    for (size_t index : {1, 3, 4}) {
        mark();
        view(index, QString());
        EXPECT_THAT(machine.programs.started, IsEmpty());
        EXPECT_EQ(kinovra.SelectedFile, index == 1 ? u"(before)"_s : QString());
        if (index == 1)
            expectMarkedBut({});
        else if (index == 3)
            expectMarkedBut({u"SelectedFile"_s, u"Answer"_s});
        else
            expectMarkedBut({u"SelectedFile"_s});
    }
}

TEST_F(ViewMenu, tells_every_other_error_of_the_dialog)
{
    machine.dialogs.whileChoosing = [] { throw RuntimeError(ErrorNumber::DeviceUnavailable); };
    const MessageBox failed{u"Error opening file: \n\n#68 is:\"Device unavailable\""_s, Icon::Exclamation};
    for (size_t index : {1, 3, 4}) {
        mark();
        view(index, u"C:\\DATA\\a.out"_s);
        EXPECT_THAT(machine.dialogs.messages, ElementsAre(failed));
        EXPECT_THAT(machine.programs.started, IsEmpty());
        expectMarkedBut(index == 3 ? QStringList(u"Answer"_s) : QStringList());
        forget();
    }
}

TEST_F(ViewMenu, tells_an_error_behind_the_dialog_with_the_files_name)
{
    machine.programs.whileStarting = [] { throw RuntimeError(ErrorNumber::PermissionDenied); };
    for (size_t index : {1, 3, 4}) {
        view(index, u"C:\\DATA\\a.out"_s);
        EXPECT_EQ(messages(),
                  QStringList(u"Error opening file: C:\\DATA\\a.out\n\n#70 is:\"Permission denied\""_s));
        forget();
    }
}

TEST_F(ViewMenu, says_in_the_status_bar_alone_that_a_viewer_did_not_start)
{
    machine.programs.failure = u"this desktop has no media player installed"_s;
    view(4, u"C:\\DATA\\a.avi"_s);
    EXPECT_EQ(frm.StatusBar1.Panel1.value(),
              u"mplayer.exe was not started: this desktop has no media player installed."_s);
    EXPECT_THAT(machine.dialogs.messages, IsEmpty());
    EXPECT_EQ(kinovra.TaskId, 0);
}

TEST_F(ViewMenu, has_five_items)
{
    for (int index : {-1, 5}) {
        viewer::mnuView_Click(panel, index);
        EXPECT_THAT(
            machine.dialogs.messages,
            ElementsAre(MessageBox{u"Program error.  Invalid case in mnuView."_s, Icon::Exclamation}));
        forget();
    }
    expectMarkedBut({});
    expectVisible({});
}

TEST_F(ViewMenu, enables_the_force_commands_by_the_reduced_force_file)
{
    openMenu(frm.mnuViews);
    EXPECT_EQ(enabledOf(frm.mnuForce), u"xxxx"_s);
    EXPECT_EQ(kinovra.Answer, 53);
    EXPECT_THAT(machine.files.tested, ElementsAre(u"C:\\DATA\\WALK1.RF"_s));
    addData({"Walk1.RF"});
    openMenu(frm.mnuViews);
    EXPECT_EQ(enabledOf(frm.mnuForce), u"0123"_s);
    EXPECT_EQ(kinovra.Answer, 0);
    kinovra.CurrentTrial.clear();
    openMenu(frm.mnuViews);
    EXPECT_EQ(enabledOf(frm.mnuForce), u"xxxx"_s);
    EXPECT_THAT(machine.dialogs.messages, IsEmpty());
    expectMarkedBut({u"Answer"_s});
}

TEST_F(ViewMenu, starts_nothing_when_the_window_is_closed_meanwhile)
{
    machine.dialogs.whileChoosing = [&] { panel.unloading = true; };
    for (size_t index : {1, 3, 4}) {
        view(index, u"C:\\DATA\\a.out"_s);
        panel.unloading = false;
    }
    EXPECT_THAT(machine.programs.started, IsEmpty());
    EXPECT_THAT(machine.dialogs.messages, IsEmpty());
}
