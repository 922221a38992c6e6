#include "graphs/printing.h"

#include "browser/file_lists.h"
#include "launcher/starting.h"
#include "platform/runtime_error.h"
#include "shell/dispatch.h"

using namespace Qt::StringLiterals;

namespace graphs {

namespace {

using platform::CommandText;
using platform::Icon;
using platform::Show;
using shell::MsgBox;

// In menu order. The last one names no printer, and so no graph: the display program asks.
constexpr std::array<const char *, 5> PrinterSwitches{" /2 ", " /3 ", " /4 ", " /5 ", " "};
constexpr int SelectPrinter = 4;

} // namespace

void mnuGraphPrint_Click(Panel &panel, int index)
{
    auto [kinovra, frm, platform] = panel.parts();

    if (index < 0 || static_cast<size_t>(index) >= PrinterSwitches.size())
        return;
    browser::refresh(panel, {&frm.filPlots});
    try {
        browser::pointAt(panel, frm.filPlots, kinovra.DataDir);
    } catch (const platform::RuntimeError &error) {
        frm.filPlots.refresh({});
        browser::sayUnreadable(panel, kinovra.DataDir, error);
    }
    if (frm.filPlots.ListCount() == 0) {
        MsgBox(panel, {u"No graphs in this directory."_s, Icon::Exclamation});
        frm.lblPlots.Visible = false;
        frm.filPlots.Visible = false;
        return;
    }
    frm.lblPlots.Visible = true;
    frm.filPlots.Visible = true;
    if (frm.SelectedPlot.isEmpty()) {
        MsgBox(panel, {u"First select a graph (.PLT) from the 'Graphs' file list."_s, Icon::Information});
        return;
    }
    kinovra.SelectedFile = index == SelectPrinter ? QString() : frm.SelectedPlot;
    kinovra.ProgName = u"Grafow"_s;
    frm.ProgPath = launcher::packageProgram(panel, kinovra.ProgName);
    kinovra.TaskId = launcher::startDirectly(panel, frm.ProgPath,
                                             CommandText(PrinterSwitches[static_cast<size_t>(index)])
                                                 + CommandText::document(kinovra.SelectedFile),
                                             Show::Shown);
}

void mnuPrint_Click(Panel &panel)
{
    auto [kinovra, frm, platform] = panel.parts();

    const platform::Answer answer = MsgBox(
        panel, {u"Press OK to open Notepad and use its print routine to send the results to a printer."_s,
                Icon::Question, platform::Buttons::OKCancel, u"Print saved data"_s});
    if (answer != platform::OK)
        return;
    launcher::openWithSystem(panel, u"notepad.exe"_s, CommandText::document(kinovra.SelectedFile),
                             kinovra.DataDir, Show::Normal);
}

void mnuPrintSetup_Click(Panel &panel)
{
    if (!shell::setUpPrinter(panel))
        MsgBox(panel, {u"No printer was found on this computer."_s, Icon::Information});
}

} // namespace graphs
