#include "browser/file_lists.h"
#include "graphs/printing.h"
#include "panel_fixture.h"
#include "platform/argument_forms.h"
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

namespace {

/// An item of the menu of printers: the switch as it stands, and the whole line for WALK1.PLT.
struct PrinterRow
{
    const char *switchText;
    const char *line;
};

constexpr PrinterRow Printers[]{
    {" /2 ", R"(C:\KINOVRA\Grafow.exe /2 WALK1.PLT)"},
    {" /3 ", R"(C:\KINOVRA\Grafow.exe /3 WALK1.PLT)"},
    {" /4 ", R"(C:\KINOVRA\Grafow.exe /4 WALK1.PLT)"},
    {" /5 ", R"(C:\KINOVRA\Grafow.exe /5 WALK1.PLT)"},
    {" ", R"(C:\KINOVRA\Grafow.exe )"},
};

constexpr size_t SelectPrinter = 4;

/// Names that programs and shells might misread.
constexpr const char16_t *OddNames[]{
    u"-walk.plt",     u"my left walk.plt",      u" walk.plt", u"say \"hi\", 'me'.plt",
    u"a&b;c|d>e.plt", u"$home `id` %path%.plt", u"größe.plt"};

} // namespace

class GraphPrinting : public support::PanelFixture
{
protected:
    void SetUp() override
    {
        addData({"WALK1.PLT", "walk2.plt"});
        load();
    }

    void selectPlot()
    {
        click(frm.filPlots, u"WALK1.PLT"_s);
        forget();
    }

    void print(size_t item) { click(frm.mnuGraphPrint[item]); }

    Start onPrinter(size_t item, const QString &plot) const
    {
        return {QString(), u"C:\\KINOVRA\\Grafow.exe"_s,
                CommandText(Printers[item].switchText) + CommandText::document(plot), u"C:\\DATA"_s,
                Show::Shown};
    }

    bool plotsVisible() const { return frm.filPlots.Visible && frm.lblPlots.Visible; }
    bool plotsHidden() const { return !frm.filPlots.Visible && !frm.lblPlots.Visible; }
    QString said() const { return frm.StatusBar1.Panel1.value(); }

    const MessageBox noGraphs{u"No graphs in this directory."_s, Icon::Exclamation};
    const MessageBox selectFirst{u"First select a graph (.PLT) from the 'Graphs' file list."_s,
                                 Icon::Information};
};

TEST_F(GraphPrinting, starts_the_display_program_with_the_printers_switch)
{
    selectPlot();
    for (size_t item = 0; item < 5; ++item) {
        SCOPED_TRACE(item);
        const QString plot = item == SelectPrinter ? QString() : u"WALK1.PLT"_s;
        frm.filPlots.Visible = false;
        frm.lblPlots.Visible = false;
        machine.programs.nextTask = 61;
        forget();
        mark();
        print(item);
        EXPECT_THAT(machine.programs.started, ElementsAre(onPrinter(item, plot)));
        EXPECT_EQ(machine.programs.started[0].text(), QString(QLatin1String(Printers[item].line)));
        EXPECT_EQ(kinovra.SelectedFile, plot);
        EXPECT_EQ(kinovra.ProgName, u"Grafow"_s);
        EXPECT_EQ(frm.ProgPath, u"C:\\KINOVRA\\Grafow.exe"_s);
        EXPECT_EQ(kinovra.TaskId, 61);
        expectMarkedBut({u"SelectedFile"_s, u"ProgName"_s, u"ProgPath"_s, u"TaskId"_s});
        EXPECT_EQ(frm.SelectedPlot, u"WALK1.PLT"_s);
        EXPECT_TRUE(plotsVisible());
        EXPECT_THAT(machine.dialogs.messages, IsEmpty());
        EXPECT_THAT(machine.files.tested, IsEmpty()) << "the program is not tested";
        EXPECT_THAT(machine.clock.pauses, IsEmpty());
        EXPECT_EQ(said(), QString());
    }
}

TEST_F(GraphPrinting, gives_no_file_to_a_printer_that_is_yet_to_be_selected)
{
    selectPlot();
    print(SelectPrinter);
    ASSERT_EQ(machine.programs.started.size(), 1U);
    EXPECT_EQ(machine.programs.started[0].parameters.text(), u" "_s);
    EXPECT_EQ(platform::nativeArguments(u"grafow"_s, machine.programs.started[0]), QStringList{u"grafow"_s});
    forget();
    print(0);
    EXPECT_THAT(machine.programs.started, ElementsAre(onPrinter(0, u"WALK1.PLT"_s)))
        << "the selected graph is remembered";
}

TEST_F(GraphPrinting, refreshes_the_graphs_and_keeps_the_selection)
{
    selectPlot();
    EXPECT_EQ(frm.filPlots.ListIndex.value(), 0);
    addData({"a.plt"});
    machine.files.directoriesReadAnew = 0;
    print(0);
    EXPECT_EQ(frm.filPlots.Names.value().toList(), (QStringList{u"a.plt"_s, u"WALK1.PLT"_s, u"walk2.plt"_s}));
    EXPECT_EQ(frm.filPlots.ListIndex.value(), 1);
    EXPECT_EQ(machine.files.directoriesReadAnew, 1);
    EXPECT_THAT(machine.programs.started, ElementsAre(onPrinter(0, u"WALK1.PLT"_s)));
}

TEST_F(GraphPrinting, keeps_the_selection_in_the_root_of_a_drive)
{
    machine.files.addDrive(u"d: [stick]"_s);
    addFile(u"D:\\kick.plt"_s);
    click(frm.cmdRefresh);
    frm.drvDrives.Drive = u"d: [stick]"_s;
    shell::dispatch(panel, frm.drvDrives.Change);
    EXPECT_EQ(kinovra.DataDir, u"d: [stick]"_s);
    click(frm.filPlots, u"kick.plt"_s);
    forget();
    print(1);
    EXPECT_EQ(frm.filPlots.FileName(), u"kick.plt"_s);
    ASSERT_EQ(machine.programs.started.size(), 1U);
    EXPECT_EQ(machine.programs.started[0].text(), u"C:\\KINOVRA\\Grafow.exe /3 kick.plt"_s);
    EXPECT_EQ(machine.programs.started[0].directory, u"d: [stick]"_s);
}

TEST_F(GraphPrinting, points_a_list_that_shows_another_directory_at_the_data_directory)
{
    selectPlot();
    addFile(u"C:\\OTHER\\other.plt"_s);
    browser::pointAt(panel, frm.filPlots, u"C:\\OTHER"_s);
    print(0);
    EXPECT_EQ(frm.filPlots.Path(), u"C:\\DATA"_s);
    EXPECT_EQ(frm.filPlots.ListCount(), 2);
    EXPECT_EQ(frm.filPlots.ListIndex.value(), -1);
    EXPECT_THAT(machine.programs.started, ElementsAre(onPrinter(0, u"WALK1.PLT"_s)));
}

TEST_F(GraphPrinting, counts_the_graphs_of_the_data_directory_alone)
{
    addFile(u"C:\\OTHER\\readme.txt"_s);
    browser::pointAt(panel, frm.filPlots, u"C:\\OTHER"_s);
    EXPECT_EQ(frm.filPlots.ListCount(), 0);
    print(0);
    EXPECT_THAT(machine.dialogs.messages, ElementsAre(selectFirst)) << "there are two";
}

TEST_F(GraphPrinting, refuses_where_there_are_no_graphs_and_hides_their_list)
{
    selectPlot();
    machine.files.remove(u"C:\\DATA\\WALK1.PLT"_s);
    machine.files.remove(u"C:\\DATA\\walk2.plt"_s);
    machine.dialogs.whileShown = [this](const MessageBox &) {
        EXPECT_TRUE(plotsVisible()) << "the message comes first";
    };
    for (size_t item = 0; item < 5; ++item) {
        frm.filPlots.Visible = true;
        frm.lblPlots.Visible = true;
        forget();
        mark();
        print(item);
        EXPECT_THAT(machine.dialogs.messages, ElementsAre(noGraphs)) << item;
        EXPECT_TRUE(plotsHidden());
        EXPECT_THAT(machine.programs.started, IsEmpty());
        expectMarkedBut({});
        EXPECT_EQ(frm.SelectedPlot, u"WALK1.PLT"_s);
    }
}

TEST_F(GraphPrinting, asks_for_a_graph_to_be_selected_first)
{
    for (size_t item = 0; item < 5; ++item) {
        frm.filPlots.Visible = false;
        frm.lblPlots.Visible = false;
        machine.dialogs.whileShown = [this](const MessageBox &) {
            EXPECT_TRUE(plotsVisible()) << "the list is there to be clicked";
        };
        forget();
        mark();
        print(item);
        EXPECT_THAT(machine.dialogs.messages, ElementsAre(selectFirst)) << item;
        EXPECT_TRUE(plotsVisible());
        EXPECT_THAT(machine.programs.started, IsEmpty());
        expectMarkedBut({});
    }
}

TEST_F(GraphPrinting, prints_the_graph_that_was_clicked_last)
{
    selectPlot();
    frm.filPlots.ListIndex = -1;
    kinovra.SelectedFile = u"run1.dg"_s;
    print(2);
    EXPECT_THAT(machine.programs.started, ElementsAre(onPrinter(2, u"WALK1.PLT"_s)));
    EXPECT_EQ(kinovra.SelectedFile, u"WALK1.PLT"_s);
}

TEST_F(GraphPrinting, knows_no_other_printer)
{
    selectPlot();
    addData({"a.plt"});
    frm.filPlots.Visible = false;
    frm.lblPlots.Visible = false;
    mark();
    for (int index : {-1, 5, 6, 100})
        shell::dispatch(panel, [this, index] { graphs::mnuGraphPrint_Click(panel, index); });
    EXPECT_THAT(machine.dialogs.messages, IsEmpty());
    EXPECT_THAT(machine.programs.started, IsEmpty());
    EXPECT_TRUE(plotsHidden());
    EXPECT_EQ(frm.filPlots.ListCount(), 2) << "nor is the list refreshed";
    expectMarkedBut({});
}

TEST_F(GraphPrinting, takes_the_program_directory_as_it_is_spelled)
{
    selectPlot();
    kinovra.ProgDir = u"C:\\Kinovra"_s;
    print(3);
    EXPECT_EQ(frm.ProgPath, u"C:\\Kinovra\\Grafow.exe"_s);
    ASSERT_EQ(machine.programs.started.size(), 1U);
    EXPECT_EQ(machine.programs.started[0].file, u"C:\\Kinovra\\Grafow.exe"_s);
}

TEST_F(GraphPrinting, hands_over_every_name_as_one_argument)
{
    const QString numbers[]{u"/2"_s, u"/3"_s, u"/4"_s, u"/5"_s};
    for (const char16_t *odd : OddNames) {
        const QString name = QString::fromUtf16(odd);
        addFile(u"C:\\DATA\\"_s + name);
        click(frm.cmdRefresh);
        click(frm.filPlots, name);
        for (size_t item = 0; item < 4; ++item) {
            forget();
            print(item);
            ASSERT_EQ(machine.programs.started.size(), 1U);
            EXPECT_EQ(platform::nativeArguments(u"grafow"_s, machine.programs.started[0]),
                      (QStringList{u"grafow"_s, numbers[item], name}));
        }
    }
}

TEST_F(GraphPrinting, says_why_the_program_did_not_start)
{
    selectPlot();
    machine.programs.failure = u"it was not found"_s;
    print(0);
    EXPECT_EQ(kinovra.TaskId, 0);
    EXPECT_EQ(said(), u"Grafow.exe was not started: it was not found."_s);
    EXPECT_THAT(machine.dialogs.messages, IsEmpty());
}

TEST_F(GraphPrinting, starts_nothing_in_a_data_directory_that_is_gone)
{
    selectPlot();
    machine.files.remove(u"C:\\DATA"_s);
    mark();
    print(0);
    EXPECT_EQ(messages(), QStringList(u"No graphs in this directory."_s));
    EXPECT_FALSE(frm.filPlots.Visible);
    EXPECT_EQ(said(), u"DATA cannot be read: path not found."_s);
    EXPECT_THAT(machine.programs.started, IsEmpty());
    EXPECT_EQ(frm.filPlots.ListCount(), 0);
    expectMarkedBut({});
}

TEST_F(GraphPrinting, shows_no_graphs_of_another_directory_where_the_data_directory_is_gone)
{
    selectPlot();
    addFile(u"C:\\OTHER\\other.plt"_s);
    browser::pointAt(panel, frm.filPlots, u"C:\\OTHER"_s);
    ASSERT_EQ(frm.filPlots.ListCount(), 1);
    machine.files.remove(u"C:\\DATA"_s);
    mark();
    print(0);
    EXPECT_THAT(machine.dialogs.messages, ElementsAre(noGraphs));
    EXPECT_TRUE(plotsHidden());
    EXPECT_EQ(frm.filPlots.ListCount(), 0);
    EXPECT_EQ(said(), u"DATA cannot be read: path not found."_s);
    EXPECT_THAT(machine.programs.started, IsEmpty());
    expectMarkedBut({});
}

TEST_F(GraphPrinting, ends_silently_when_the_window_is_closed_during_a_message)
{
    machine.dialogs.whileShown = [this](const MessageBox &) { shell::dispatch(panel, frm.Unload); };
    print(0);
    EXPECT_THAT(machine.dialogs.messages, ElementsAre(selectFirst));
    EXPECT_THAT(machine.programs.started, IsEmpty());

    panel.unloading = false;
    machine.files.remove(u"C:\\DATA\\WALK1.PLT"_s);
    machine.files.remove(u"C:\\DATA\\walk2.plt"_s);
    forget();
    print(0);
    EXPECT_THAT(machine.dialogs.messages, ElementsAre(noGraphs));
    EXPECT_TRUE(plotsVisible());
}

class ResultPrinting : public support::PanelFixture
{
protected:
    void SetUp() override
    {
        addData({"Run1.dg", "Kinemati.out"});
        load();
    }

    Start inNotepad(const QString &file) const
    {
        return {u"open"_s, u"notepad.exe"_s, CommandText::document(file), u"C:\\DATA"_s, Show::Normal, 4711};
    }

    const MessageBox question{
        u"Press OK to open Notepad and use its print routine to send the results to a printer."_s,
        Icon::Question, Buttons::OKCancel, u"Print saved data"_s};
};

TEST_F(ResultPrinting, opens_the_selected_file_in_notepad)
{
    kinovra.TextViewer = u"C:\\tools\\reader.exe"_s;
    for (const QString &file : {u"Run1.dg"_s, u"C:\\DATA\\Kinemati.out"_s, u"d: [stick]\\Kinemati.out"_s}) {
        forget();
        mark();
        kinovra.SelectedFile = file;
        machine.dialogs.answers = {platform::OK};
        click(frm.mnuPrint);
        EXPECT_THAT(machine.dialogs.messages, ElementsAre(question));
        EXPECT_THAT(machine.programs.started, ElementsAre(inNotepad(file)));
        EXPECT_EQ(kinovra.SelectedFile, file);
        kinovra.SelectedFile = u"(before)"_s;
        expectMarkedBut({});
        EXPECT_THAT(machine.files.tested, IsEmpty());
    }
}

TEST_F(ResultPrinting, opens_the_file_that_was_clicked)
{
    click(frm.filDatafiles, u"Run1.dg"_s);
    forget();
    machine.dialogs.answers = {platform::OK};
    click(frm.mnuPrint);
    EXPECT_THAT(machine.programs.started, ElementsAre(inNotepad(u"Run1.dg"_s)));
}

TEST_F(ResultPrinting, opens_notepad_without_a_file_where_none_is_selected)
{
    kinovra.SelectedFile.clear();
    machine.dialogs.answers = {platform::OK};
    click(frm.mnuPrint);
    EXPECT_THAT(machine.dialogs.messages, ElementsAre(question));
    EXPECT_THAT(machine.programs.started, ElementsAre(inNotepad(QString())));
    EXPECT_EQ(machine.programs.started[0].text(), u"notepad.exe"_s);
    EXPECT_EQ(platform::nativeArguments(u"notepad"_s, machine.programs.started[0]),
              QStringList{u"notepad"_s});
}

TEST_F(ResultPrinting, opens_nothing_on_cancel)
{
    machine.dialogs.answers = {platform::Cancel};
    mark();
    click(frm.mnuPrint);
    EXPECT_THAT(machine.dialogs.messages, ElementsAre(question));
    EXPECT_THAT(machine.programs.started, IsEmpty());
    expectMarkedBut({});
}

TEST_F(ResultPrinting, hands_over_every_name_as_one_argument)
{
    for (const char16_t *odd : OddNames) {
        forget();
        kinovra.SelectedFile = QString::fromUtf16(odd);
        machine.dialogs.answers = {platform::OK};
        click(frm.mnuPrint);
        ASSERT_EQ(machine.programs.started.size(), 1U);
        EXPECT_EQ(platform::nativeArguments(u"notepad"_s, machine.programs.started[0]),
                  (QStringList{u"notepad"_s, QString::fromUtf16(odd)}));
    }
}

TEST_F(ResultPrinting, says_why_notepad_did_not_open)
{
    machine.programs.failure = u"this desktop has no text editor installed"_s;
    machine.dialogs.answers = {platform::OK};
    mark();
    click(frm.mnuPrint);
    EXPECT_EQ(frm.StatusBar1.Panel1.value(),
              u"notepad.exe was not started: this desktop has no text editor installed."_s);
    EXPECT_THAT(machine.dialogs.messages, ElementsAre(question)) << "no box says it";
    expectMarkedBut({});
}

TEST_F(ResultPrinting, opens_nothing_when_the_window_is_closed_during_the_question)
{
    machine.dialogs.answers = {platform::OK};
    machine.dialogs.whileShown = [this](const MessageBox &) { shell::dispatch(panel, frm.Unload); };
    click(frm.mnuPrint);
    EXPECT_TRUE(machine.environment.ended);
    EXPECT_THAT(machine.programs.started, IsEmpty());
}

TEST_F(ResultPrinting, does_not_mind_a_data_directory_that_is_gone)
{
    kinovra.SelectedFile = u"Run1.dg"_s;
    machine.files.remove(u"C:\\DATA"_s);
    machine.dialogs.answers = {platform::OK};
    click(frm.mnuPrint);
    EXPECT_THAT(machine.dialogs.messages, ElementsAre(question));
    EXPECT_THAT(machine.programs.started, ElementsAre(inNotepad(u"Run1.dg"_s)));
}

class PrinterSetUp : public support::PanelFixture
{
protected:
    void SetUp() override { load(); }
};

TEST_F(PrinterSetUp, is_the_desktops_own)
{
    mark();
    click(frm.mnuPrintSetup);
    EXPECT_EQ(machine.dialogs.printerSetUps, 1);
    EXPECT_THAT(machine.dialogs.messages, IsEmpty());
    EXPECT_THAT(machine.programs.started, IsEmpty());
    EXPECT_THAT(machine.settings.written, IsEmpty());
    expectMarkedBut({});
}

TEST_F(PrinterSetUp, says_that_there_is_no_printer)
{
    machine.dialogs.hasPrinter = false;
    mark();
    click(frm.mnuPrintSetup);
    EXPECT_EQ(machine.dialogs.printerSetUps, 1);
    EXPECT_THAT(machine.dialogs.messages,
                ElementsAre(MessageBox{u"No printer was found on this computer."_s, Icon::Information}));
    expectMarkedBut({});
}

TEST_F(PrinterSetUp, says_nothing_once_the_window_is_closed)
{
    machine.dialogs.hasPrinter = false;
    machine.dialogs.whileChoosing = [this] { shell::dispatch(panel, frm.Unload); };
    click(frm.mnuPrintSetup);
    EXPECT_EQ(machine.dialogs.printerSetUps, 1);
    EXPECT_THAT(machine.dialogs.messages, IsEmpty());
}
