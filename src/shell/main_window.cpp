#include "shell/main_window.h"

#include "shell/kinovra.h"
#include "shell/menu_tree.h"

using namespace Qt::StringLiterals;

namespace shell {

namespace {

using controls::Button;
using controls::FileList;
using controls::Label;
using Form = frmKinovra;

struct ButtonRow
{
    Button Form::*button;
    const char *caption;
    const char *toolTip;
};

// Four buttons carry the control file editor's tool tip; that is meant.
constexpr ButtonRow Buttons[]{
    {&Form::cmdEditGra, "&Edit .GRA File", "Start Control File Editor program"},
    {&Form::cmdSelectGra, "&Select Type of  Graph", "Start Control File Editor program"},
    {&Form::cmdGraph, "&Create Graph(s)", "Start Control File Editor program"},
    {&Form::cmdForces, "Force Plate &Analysis", "Start Force Analysis program"},
    {&Form::cmdGuide, "&Guide", "Click to view Quick Reference Guide"},
    {&Form::cmdSkelvo, "&Skelvo", "Start Skelvo program"},
    {&Form::cmdOndex, "Ond&ex2", "Start Ondex program"},
    {&Form::cmdEditor, ".CFB &Editor", "Start Control File Editor program"},
    {&Form::cmdRefresh, "Refresh &File Lists", "Click to show and refresh the file lists"},
    {&Form::cmdExit, "E&xit", "Click to exit"},
    {&Form::cmdManual, "Man&ual", "Click to view User's Manual"},
};

struct ListRow
{
    FileList Form::*list;
    Label Form::*label;
    const char *caption;
    const char *pattern;
    const char *toolTip;
};

constexpr ListRow Lists[]{
    {&Form::filPlots, &Form::lblPlots, "Graphs (.PLT)", "*.plt;*.hpg;*.pgl;*.hpgl;*.acd",
     "Click to select a graph for printing or double-click to view a graph"},
    {&Form::filOutputs, &Form::lblOutputs, "Output files", "*.out", "Double-click to view program output"},
    {&Form::filBinaries, &Form::lblBinaries, "Binary files",
     "*.av;*.dr;*.en;*.fo;*.fr;*.jp;*.ks;*.km;*.mm;*.mu;*.pj;*.ps;*.ra;*.sim",
     "Click to select file for graphing or averaging"},
    {&Form::filGraFiles, &Form::lblGraFiles, "Graph Types (.GRA)", "*.gra",
     "Click to select type of graph. Right-click to cancel selection."},
    {&Form::filModels, &Form::lblModels, "Models (.CFB)", "*.cfb", "Click to select a model"},
    {&Form::filDatafiles, &Form::lblDatafiles, "Data files",
     "*.dg;*.1t;*.2t;*.3t;*.4t;*.5t;*.6t;*.7t;*.8t;*.9t;*.3d;*.cda", "Click to select motion data"},
};

} // namespace

frmKinovra::frmKinovra()
{
    Caption = QLatin1String(ApplicationTitle);
    Width = MainWindowWidth;
    Height = MainWindowLeastHeight;

    for (const ButtonRow &row : Buttons) {
        (this->*row.button).Caption = QLatin1String(row.caption);
        (this->*row.button).ToolTip = QLatin1String(row.toolTip);
    }
    for (const ListRow &row : Lists) {
        (this->*row.list).Pattern = QLatin1String(row.pattern);
        (this->*row.list).ToolTip = QLatin1String(row.toolTip);
        (this->*row.label).Caption = QLatin1String(row.caption);
    }
    dirSelect.ToolTip = u"Select the data directory"_s;
    drvDrives.ToolTip = u"Select drive with data files"_s;

    lblPath.Caption = u"Path:"_s;
    lblGraphics[0].Caption = u"GRA file:"_s;
    lblGraphics[1].Caption = u"SCREEN"_s;
    lblTitle.Caption = u" (unknown)"_s;
    lblCommand.Caption = u"(none)"_s;
    lblOutput.Caption = u"DISK FILE"_s;
    lblTrial.Caption = u"Trial: "_s;

    for (const MenuRow &row : menuTree()) {
        if (!row.isSeparator())
            row.item(*this).Caption = row.caption;
    }

    // The graph types take the place of the three graph buttons while one is being chosen.
    filGraFiles.Visible = false;
    lblGraFiles.Visible = false;
    // Enabled once their manuals are found.
    cmdGuide.Enabled = false;
    cmdManual.Enabled = false;
    // The Programs menu's own rules enable these; "Create A New Simulation" is always possible.
    for (size_t i = 0; i < 12; ++i)
        mnuProg[i].Enabled = false;
    mnuOptions.Enabled = false;
    mnuListing[0].Checked = true;
    mnuGraphics[0].Checked = true;
    mnuPrompt.Checked = true;
}

} // namespace shell
