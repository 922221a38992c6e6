#include "graphs/graph_commands.h"

#include "browser/current_trial.h"
#include "browser/file_lists.h"
#include "graphs/graph_options.h"
#include "launcher/program_runner.h"
#include "launcher/starting.h"
#include "platform/letter_case.h"
#include "shell/dispatch.h"
#include "viewer/view_commands.h"

using namespace Qt::StringLiterals;

namespace graphs {

namespace {

using platform::CommandText;
using platform::Icon;
using platform::UCase;
using shell::MsgBox;

enum Item { SelectBinary, SelectType, Create, Display, DisplayFullScreen, RunDisplay };

void selectBinary(Panel &panel)
{
    auto &frm = panel.frm;
    viewer::mnuView_Click(panel, viewer::BinaryFiles);
    if (frm.filBinaries.ListCount() == 0)
        return;
    MsgBox(panel,
           {u"Click on a binary file (usually .PJ) from the 'Binary files' list."_s, Icon::Information});
    browser::refresh(panel, {&frm.filGraFiles});
}

void selectType(Panel &panel)
{
    viewer::mnuView_Click(panel, viewer::GraphTypes);
    browser::hideGraphButtons(panel);
    if (panel.frm.filGraFiles.ListCount() == 0)
        return;
    MsgBox(panel, {u"Click on a .GRA file from the 'Graph (.GRA) types' list."_s, Icon::Information});
}

// False where the user stops, or goes to choose a graph type first.
bool goesOnWithoutType(Panel &panel)
{
    const QString lineBreak = panel.frm.LineBreak;
    panel.kinovra.Answer =
        MsgBox(panel, {u"Warning.  No .GRA file was selected."_s + lineBreak
                           + u"Press Yes to select one from the GRAph menu or "_s + lineBreak
                           + u"Press No to select one during program execution."_s,
                       Icon::Question, platform::Buttons::YesNoCancel});
    if (panel.kinovra.Answer == platform::Yes)
        viewer::mnuView_Click(panel, viewer::GraphTypes);
    return panel.kinovra.Answer == platform::No;
}

QString optionSwitches(const shell::frmKinovra &frm)
{
    const auto &options = frm.mnuGraphOptions;
    QString switches;
    // White on black adds no switch of its own; it only leaves out the one for colours, and that is meant.
    if (!options[BlackOnWhite].Checked && !options[WhiteOnBlack].Checked)
        switches = u"/C "_s;
    if (options[BlackOnWhite].Checked)
        switches += u"/M "_s;
    if (options[DebuggingInformation].Checked)
        switches += u"/D "_s;
    if (options[BatchMode].Checked)
        switches += u"/B "_s;
    return switches;
}

void create(Panel &panel)
{
    auto [kinovra, frm, platform] = panel.parts();

    if (browser::TestTrial(panel))
        return;
    if (frm.CurrentGRA.isEmpty() && !goesOnWithoutType(panel))
        return;
    kinovra.ProgName = u"Graph"_s;
    frm.ProgPath = launcher::packageProgram(panel, kinovra.ProgName);
    const QString trial = kinovra.CurrentTrial;
    const bool isNew = kinovra.BinaryFile != trial;
    kinovra.BinaryFile = trial;
    frm.Comm = optionSwitches(frm) + kinovra.ListingSwitch + frm.GraphicsSwitch
               + CommandText::document(kinovra.BinaryFile) + u" "_s + CommandText::document(frm.CurrentGRA);
    frm.lblCommand.Caption = frm.Comm.text();
    // What the user wants to see of a graph is the graph: no listing is offered.
    kinovra.Answer = launcher::RunProgram(panel, frm.ProgPath, frm.Comm, 0);
    if (isNew && kinovra.BinaryFile == trial)
        browser::sayBinaryFile(panel);
    shell::letPendingEventsRun(panel);
}

void display(Panel &panel, const QString &program)
{
    auto [kinovra, frm, platform] = panel.parts();

    if (frm.filPlots.ListCount() == 0) {
        MsgBox(panel, {u"No graphs in this directory."_s, Icon::Exclamation});
        return;
    }
    if (frm.filPlots.ListIndex < 0) {
        MsgBox(panel, {u"Click or double-click on a graph (.PLT) from the 'Graphs' file list first."_s,
                       Icon::Information});
        return;
    }
    kinovra.SelectedFile = frm.SelectedPlot;
    kinovra.TaskId =
        launcher::startDirectly(panel, kinovra.ProgDir + u'\\' + program,
                                u" "_s + CommandText::document(kinovra.SelectedFile), platform::Show::Normal);
}

void runDisplay(Panel &panel)
{
    auto [kinovra, frm, platform] = panel.parts();

    kinovra.ProgName = u"Grafow"_s;
    frm.ProgPath = launcher::packageProgram(panel, kinovra.ProgName);
    kinovra.TaskId = launcher::openWithSystem(panel, UCase(frm.ProgPath), {}, UCase(kinovra.DataDir),
                                              platform::Show::Normal);
}

} // namespace

void mnuGraph_Click(Panel &panel, int index)
{
    switch (index) {
    case SelectBinary:
        selectBinary(panel);
        break;
    case SelectType:
        selectType(panel);
        break;
    case Create:
        create(panel);
        break;
    case Display:
        display(panel, u"grafow.exe"_s);
        break;
    case DisplayFullScreen:
        display(panel, u"grafod.exe"_s);
        break;
    case RunDisplay:
        runDisplay(panel);
        break;
    default:
        break;
    }
}

void cmdGraph_Click(Panel &panel)
{
    mnuGraph_Click(panel, Create);
}

void cmdSelectGra_Click(Panel &panel)
{
    auto &frm = panel.frm;
    browser::refresh(panel, {&frm.filGraFiles});
    frm.filGraFiles.Visible = true;
    frm.lblGraFiles.Visible = true;
    browser::hideGraphButtons(panel);
}

} // namespace graphs
