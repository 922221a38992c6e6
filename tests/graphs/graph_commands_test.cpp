#include "graph_menu_fixture.h"
#include "graphs/graph_commands.h"
#include "platform/argument_forms.h"
#include "printing.h"
#include "shell/dispatch.h"

#include <gmock/gmock.h>

using namespace Qt::StringLiterals;
using graph_tests::GraphMenu;
using graph_tests::NameRow;
using graph_tests::OddNames;
using platform::CommandText;
using platform::MessageBox;
using platform::Show;
using platform::Start;
using testing::ElementsAre;
using testing::IsEmpty;

TEST_F(GraphMenu, does_nothing_by_itself_or_for_an_unknown_item)
{
    EXPECT_FALSE(frm.mnuGraphs.Click);
    EXPECT_FALSE(frm.mnuGraphs.Opening);
    mark();
    const QStringList before = choices();
    choose(Options);
    for (int index : {-1, 6, 7, 100})
        shell::dispatch(panel, [this, index] { graphs::mnuGraph_Click(panel, index); });
    expectMarkedBut({});
    EXPECT_EQ(choices(), before);
    EXPECT_THAT(machine.dialogs.messages, IsEmpty());
    EXPECT_THAT(machine.programs.started, IsEmpty());
    EXPECT_EQ(machine.clock.pendingRuns, 0);
}

TEST_F(GraphMenu, shows_the_binary_files_and_asks_for_a_click)
{
    frm.filBinaries.Visible = false;
    frm.lblBinaries.Visible = false;
    addFile(u"C:\\KINOVRA\\graphs\\new.gra"_s);
    machine.dialogs.whileShown = [this](const MessageBox &) {
        EXPECT_TRUE(frm.filBinaries.Visible && frm.lblBinaries.Visible);
        EXPECT_EQ(frm.filGraFiles.ListCount(), 2) << "the graph types are refreshed afterwards";
    };
    mark();
    const QStringList before = choices();
    choose(SelectBinary);
    EXPECT_THAT(machine.dialogs.messages, ElementsAre(clickBinary));
    EXPECT_EQ(frm.filGraFiles.Names.value().toList(),
              (QStringList{u"new.gra"_s, u"RUN.GRA"_s, u"Stick.gra"_s}));
    EXPECT_EQ(frm.filGraFiles.FileName(), u"Stick.gra"_s);
    expectMarkedBut({});
    EXPECT_EQ(choices(), before);
    EXPECT_THAT(machine.programs.started, IsEmpty());
}

TEST_F(GraphMenu, shows_binary_files_that_have_come_since)
{
    addData({"run3.en"});
    choose(SelectBinary);
    EXPECT_EQ(frm.filBinaries.Names.value().toList(),
              (QStringList{u"Run1.pj"_s, u"run2.km"_s, u"run3.en"_s}));
}

TEST_F(GraphMenu, has_no_hint_of_its_own_where_there_are_no_binary_files)
{
    removeBinaries();
    addFile(u"C:\\KINOVRA\\graphs\\new.gra"_s);
    mark();
    choose(SelectBinary);
    EXPECT_THAT(machine.dialogs.messages, ElementsAre(noBinaries));
    EXPECT_EQ(frm.filGraFiles.ListCount(), 2) << "nor are the graph types refreshed";
    expectMarkedBut({});
}

TEST_F(GraphMenu, tells_of_a_data_directory_that_is_gone)
{
    frm.filBinaries.Visible = false;
    removeDataDirectory();
    choose(SelectBinary);
    EXPECT_THAT(machine.dialogs.messages, ElementsAre(noDataDirectory, clickBinary))
        << "the list still shows what it showed";
    EXPECT_FALSE(frm.filBinaries.Visible);
    EXPECT_EQ(frm.filBinaries.ListCount(), 2);
    forget();
    click(frm.cmdRefresh);
    choose(SelectBinary);
    EXPECT_THAT(machine.dialogs.messages, ElementsAre(noDataDirectory));
}

TEST_F(GraphMenu, shows_the_graph_types_and_asks_for_a_click)
{
    addFile(u"C:\\KINOVRA\\graphs\\new.gra"_s);
    machine.dialogs.whileShown = [this](const MessageBox &) {
        EXPECT_TRUE(frm.filGraFiles.Visible && frm.lblGraFiles.Visible);
        EXPECT_FALSE(frm.cmdGraph.Visible || frm.cmdSelectGra.Visible || frm.cmdEditGra.Visible);
    };
    mark();
    const QStringList before = choices();
    choose(SelectType);
    EXPECT_THAT(machine.dialogs.messages, ElementsAre(clickType));
    EXPECT_EQ(frm.filGraFiles.ListCount(), 3);
    expectMarkedBut({});
    EXPECT_EQ(choices(), before);
    EXPECT_THAT(machine.programs.started, IsEmpty());
}

TEST_F(GraphMenu, has_no_hint_of_its_own_where_there_are_no_graph_types)
{
    removeTypes();
    mark();
    const QStringList before = choices();
    choose(SelectType);
    EXPECT_THAT(machine.dialogs.messages, ElementsAre(noTypes));
    expectMarkedBut({});
    EXPECT_EQ(choices(), before);
}

TEST_F(GraphMenu, tells_of_a_graphs_folder_that_is_gone)
{
    removeGraphsFolder();
    choose(SelectType);
    EXPECT_THAT(machine.dialogs.messages, ElementsAre(noGraphsFolder, clickType))
        << "the list still shows what it showed";
    forget();
    click(frm.cmdRefresh);
    EXPECT_EQ(frm.filGraFiles.ListCount(), 0);
    choose(SelectType);
    EXPECT_THAT(machine.dialogs.messages, ElementsAre(noGraphsFolder));
    EXPECT_FALSE(frm.cmdGraph.Visible);
}

TEST_F(GraphMenu, finds_the_graph_types_in_the_program_directory_again)
{
    removeGraphsFolder();
    addData({"own.gra"});
    start();
    EXPECT_EQ(frm.filGraFiles.Names.value().toList(), QStringList{u"own.gra"_s});
    forget();
    addFile(u"C:\\KINOVRA\\graphs\\Stick.gra"_s);
    choose(SelectType);
    EXPECT_EQ(frm.filGraFiles.Path(), u"C:\\KINOVRA\\graphs"_s);
    EXPECT_EQ(frm.filGraFiles.Names.value().toList(), QStringList{u"Stick.gra"_s});
    EXPECT_EQ(frm.filGraFiles.ListIndex.value(), -1);
    EXPECT_THAT(machine.dialogs.messages, ElementsAre(clickType));
}

TEST_F(GraphMenu, button_shows_the_graph_types_without_a_word)
{
    addFile(u"C:\\KINOVRA\\graphs\\new.gra"_s);
    mark();
    const QStringList before = choices();
    click(frm.cmdSelectGra);
    EXPECT_EQ(frm.filGraFiles.ListCount(), 3);
    EXPECT_EQ(frm.filGraFiles.FileName(), u"Stick.gra"_s);
    expectMarkedBut({});
    EXPECT_EQ(choices(), before);

    removeGraphsFolder();
    click(frm.cmdSelectGra);
    EXPECT_EQ(frm.filGraFiles.ListCount(), 0);
    EXPECT_TRUE(frm.filGraFiles.Visible);
    EXPECT_EQ(said(), u"graphs cannot be read: path not found."_s);
    EXPECT_THAT(machine.dialogs.messages, IsEmpty());
}

class GraphDisplay : public GraphMenu
{
protected:
    struct DisplayRow
    {
        Item item;
        const char *program;
    };
    static constexpr std::array Displays{DisplayRow{Display, R"(C:\KINOVRA\grafow.exe)"},
                                         DisplayRow{DisplayFullScreen, R"(C:\KINOVRA\grafod.exe)"}};
};

TEST_F(GraphDisplay, starts_on_the_selected_graph)
{
    click(frm.filPlots, u"Walk1.plt"_s);
    for (bool fullScreenPreview : {false, true}) {
        frm.mnuGraphOptions[2].Checked = fullScreenPreview;
        for (const auto &[item, program] : Displays) {
            machine.programs.nextTask = 61;
            forget();
            mark();
            const QStringList before = choices();
            choose(item);
            EXPECT_THAT(
                machine.programs.started,
                ElementsAre(Start{QString(), text(program), u" "_s + CommandText::document(u"Walk1.plt"_s),
                                  u"C:\\DATA"_s, Show::Normal}));
            EXPECT_EQ(kinovra.SelectedFile, u"Walk1.plt"_s);
            EXPECT_EQ(kinovra.TaskId, 61);
            expectMarkedBut({u"SelectedFile"_s, u"TaskId"_s});
            EXPECT_EQ(choices(), before);
            EXPECT_EQ(frm.filPlots.FileName(), u"Walk1.plt"_s);
            EXPECT_THAT(machine.dialogs.messages, IsEmpty());
            EXPECT_THAT(machine.files.tested, IsEmpty());
            EXPECT_EQ(machine.files.directoriesRead, 0);
            EXPECT_THAT(machine.clock.pauses, IsEmpty());
        }
    }
}

TEST_F(GraphDisplay, spells_the_command_out)
{
    click(frm.filPlots, u"Walk1.plt"_s);
    choose(Display);
    choose(DisplayFullScreen);
    ASSERT_EQ(machine.programs.started.size(), 2U);
    EXPECT_EQ(machine.programs.started[0].text(), u"C:\\KINOVRA\\grafow.exe Walk1.plt"_s);
    EXPECT_EQ(machine.programs.started[1].text(), u"C:\\KINOVRA\\grafod.exe Walk1.plt"_s);
}

TEST_F(GraphDisplay, shows_the_graph_that_was_clicked_last)
{
    click(frm.filPlots, u"Walk1.plt"_s);
    frm.filPlots.ListIndex = 1;
    choose(Display);
    ASSERT_EQ(machine.programs.started.size(), 1U);
    EXPECT_EQ(machine.programs.started[0].text(), u"C:\\KINOVRA\\grafow.exe Walk1.plt"_s);
}

TEST_F(GraphDisplay, refuses_where_there_are_no_graphs)
{
    click(frm.filPlots, u"Walk1.plt"_s);
    removePlots();
    for (const auto &[item, program] : Displays) {
        forget();
        mark();
        const QStringList before = choices();
        choose(item);
        EXPECT_THAT(machine.dialogs.messages, ElementsAre(noPlots)) << program;
        EXPECT_THAT(machine.programs.started, IsEmpty());
        expectMarkedBut({});
        EXPECT_EQ(choices(), before);
    }
}

TEST_F(GraphDisplay, refuses_where_none_is_selected)
{
    click(frm.filPlots, u"Walk1.plt"_s);
    frm.filPlots.ListIndex = -1;
    for (const auto &[item, program] : Displays) {
        forget();
        mark();
        const QStringList before = choices();
        choose(item);
        EXPECT_THAT(machine.dialogs.messages, ElementsAre(clickPlot)) << program;
        EXPECT_THAT(machine.programs.started, IsEmpty());
        expectMarkedBut({});
        EXPECT_EQ(choices(), before);
    }
}

TEST_F(GraphDisplay, takes_the_list_as_it_stands)
{
    click(frm.filPlots, u"Walk1.plt"_s);
    removeDataDirectory();
    for (const auto &[item, program] : Displays) {
        forget();
        choose(item);
        EXPECT_THAT(machine.dialogs.messages, IsEmpty());
        EXPECT_EQ(machine.programs.started.size(), 1U) << program;
    }
}

TEST_F(GraphDisplay, says_why_it_did_not_start)
{
    click(frm.filPlots, u"Walk1.plt"_s);
    failToStart();
    choose(Display);
    EXPECT_EQ(said(), u"grafow.exe was not started: it was not found."_s);
    choose(DisplayFullScreen);
    EXPECT_EQ(said(), u"grafod.exe was not started: it was not found."_s);
    EXPECT_EQ(kinovra.TaskId, 0);
    EXPECT_THAT(machine.dialogs.messages, IsEmpty());
}

TEST_F(GraphDisplay, hands_over_every_name_as_one_argument)
{
    for (const NameRow &row : OddNames) {
        const QString name = QString::fromUtf16(row.name) + u".plt"_s;
        if (name.contains(u'/'))
            continue; // no name of a file
        addFile(u"C:\\DATA\\"_s + name);
        click(frm.cmdRefresh);
        click(frm.filPlots, name);
        for (const auto &[item, program] : Displays) {
            forget();
            choose(item);
            ASSERT_EQ(machine.programs.started.size(), 1U);
            EXPECT_EQ(platform::nativeArguments(text(program), machine.programs.started[0]),
                      (QStringList{text(program), name}));
        }
    }
}

TEST_F(GraphDisplay, opens_without_a_graph)
{
    click(frm.filPlots, u"Walk1.plt"_s);
    kinovra.ProgDir = u"C:\\Kinovra"_s;
    kinovra.DataDir = u"C:\\Data"_s;
    mark();
    const QStringList before = choices();
    choose(RunDisplay);
    EXPECT_THAT(machine.programs.started,
                ElementsAre(Start{u"open"_s, u"C:\\KINOVRA\\GRAFOW.EXE"_s, CommandText(), u"C:\\DATA"_s,
                                  Show::Normal, 4711}));
    EXPECT_EQ(kinovra.ProgName, u"Grafow"_s);
    EXPECT_EQ(frm.ProgPath, u"C:\\Kinovra\\Grafow.exe"_s);
    EXPECT_EQ(kinovra.TaskId, 42);
    expectMarkedBut({u"ProgName"_s, u"ProgPath"_s, u"TaskId"_s});
    EXPECT_EQ(choices(), before);
    EXPECT_THAT(machine.files.tested, IsEmpty());
    EXPECT_THAT(machine.dialogs.messages, IsEmpty());
}

TEST_F(GraphDisplay, opens_without_a_graph_whatever_there_is)
{
    kinovra.CurrentTrial.clear();
    frm.CurrentGRA.clear();
    removePlots();
    machine.files.addDrive(u"d: [stick]"_s);
    kinovra.DataDir = u"d: [stick]"_s;
    forget();
    choose(RunDisplay);
    EXPECT_THAT(machine.programs.started,
                ElementsAre(Start{u"open"_s, u"C:\\KINOVRA\\GRAFOW.EXE"_s, CommandText(), u"D: [STICK]"_s,
                                  Show::Normal, 4711}));
    failToStart();
    choose(RunDisplay);
    EXPECT_EQ(kinovra.TaskId, 2);
    EXPECT_EQ(said(), u"GRAFOW.EXE was not started: it was not found."_s);
    EXPECT_THAT(machine.dialogs.messages, IsEmpty());
}
