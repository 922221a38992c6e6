#include "browser/result_files.h"

#include "graphs/graph_options.h"
#include "launcher/starting.h"
#include "platform/letter_case.h"
#include "shell/dispatch.h"
#include "shell/file_names.h"

using namespace Qt::StringLiterals;

namespace browser {

namespace {

using platform::CommandText;
using platform::Icon;
using platform::Show;
using platform::UCase;
using shell::MsgBox;

bool isEmpty(Panel &panel, const controls::FileList &list, const QString &message)
{
    if (list.ListCount() > 0)
        return false;
    MsgBox(panel, {message, Icon::Information});
    return true;
}

void openSelectedFile(Panel &panel)
{
    auto [kinovra, frm, platform] = panel.parts();

    if (!kinovra.SelectedFile.isEmpty()) {
        launcher::openInTextViewer(panel, kinovra.SelectedFile, kinovra.DataDir, Show::Normal);
    }
}

QString behindFirstDot(const QString &name)
{
    return name.mid(name.indexOf(u'.') + 1);
}

bool chooseBinary(Panel &panel)
{
    auto [kinovra, frm, platform] = panel.parts();

    if (isEmpty(panel, frm.filBinaries, u"No binaries for this trial."_s))
        return false;
    if (frm.filBinaries.ListIndex >= 0) {
        frm.filBinaries.Visible = true;
        frm.lblBinaries.Visible = true;
    }
    kinovra.BinaryFile = frm.filBinaries.FileName();
    return true;
}

bool choosePlot(Panel &panel)
{
    auto [kinovra, frm, platform] = panel.parts();

    if (isEmpty(panel, frm.filPlots, u"No graphs in this directory."_s))
        return false;
    kinovra.SelectedFile = frm.filPlots.FileName();
    return true;
}

} // namespace

void filBinaries_Click(Panel &panel)
{
    chooseBinary(panel);
}

void filBinaries_DblClick(Panel &panel)
{
    auto [kinovra, frm, platform] = panel.parts();

    if (!chooseBinary(panel))
        return;
    kinovra.CurrentExtension = shell::GetExtension(kinovra.BinaryFile);
    const QString kind = UCase(kinovra.CurrentExtension);
    if (kind != u"DR" && kind != u"SIM") {
        MsgBox(panel, {u"Cannot view binary files with Notepad."_s, Icon::Information,
                       platform::Buttons::OKOnly, u"Cannot View File"_s});
        return;
    }
    kinovra.SelectedFile = kinovra.BinaryFile;
    const platform::Answer answer =
        MsgBox(panel, {u"Press OK to open this file. It is not normally edited manually."_s, Icon::Question,
                       platform::Buttons::OKCancel, u"OK to Edit?"_s});
    kinovra.TaskId = answer;
    if (answer != platform::Cancel)
        openSelectedFile(panel);
}

void filOutputs_DblClick(Panel &panel)
{
    auto [kinovra, frm, platform] = panel.parts();

    if (isEmpty(panel, frm.filOutputs, u"No output files in this directory."_s))
        return;
    kinovra.SelectedFile = frm.filOutputs.FileName();
    openSelectedFile(panel);
}

void filPlots_Click(Panel &panel)
{
    if (choosePlot(panel))
        panel.frm.SelectedPlot = panel.kinovra.SelectedFile;
}

void filPlots_DblClick(Panel &panel)
{
    auto [kinovra, frm, platform] = panel.parts();

    if (!choosePlot(panel) || kinovra.SelectedFile.isEmpty())
        return;
    const CommandText plot = CommandText::document(kinovra.SelectedFile);
    if (UCase(behindFirstDot(kinovra.SelectedFile)) == u"ACD")
        kinovra.TaskId = launcher::startDirectly(panel, kinovra.ProgDir + u"\\acrospin.exe"_s, u" "_s + plot,
                                                 Show::Normal);
    else if (frm.mnuGraphOptions[graphs::FullScreenPreview].Checked)
        kinovra.TaskId = launcher::startDirectly(panel, kinovra.ProgDir + u"\\grafod.exe"_s, u" /1 "_s + plot,
                                                 Show::Normal);
    else
        kinovra.TaskId = launcher::startDirectly(panel, kinovra.ProgDir + u"\\grafow.exe"_s, u" /1 "_s + plot,
                                                 Show::Normal);
}

} // namespace browser
