#include "browser/current_trial.h"

#include "platform/letter_case.h"
#include "platform/runtime_error.h"
#include "shell/dispatch.h"
#include "shell/file_names.h"
#include "shell/stored_settings.h"

using namespace Qt::StringLiterals;

namespace browser {

namespace {

using platform::Icon;
using platform::UCase;
using shell::MsgBox;

// The package's programs are old console programs that accept short (8.3) names only. Whether the user goes
// on with `SelectedFile`; `warning` is the first line of the question.
bool acceptsFileName(Panel &panel, const QString &warning)
{
    auto [kinovra, frm, platform] = panel.parts();

    const QString shortName = shell::ShortName(panel, kinovra.SelectedFile);
    if (UCase(shortName) == UCase(kinovra.SelectedFile))
        return true;
    const QString paragraph = frm.LineBreak + frm.LineBreak;
    const platform::Answer answer = MsgBox(
        panel, {warning + paragraph + u"Filename is: "_s + kinovra.SelectedFile + u"  Short filename is: "_s
                    + shortName + paragraph + u"Press Yes to continue or No to select a different file."_s,
                Icon::Exclamation, platform::Buttons::YesNo, u"Long Filename Detected"_s});
    kinovra.TaskId = answer;
    return answer != platform::No;
}

bool acceptsModelName(Panel &panel)
{
    return acceptsFileName(panel, u"Warning.  This .CFB File has a 'long' filename and cannot be used "
                                  "by the Kinovra system."_s);
}

void chooseModel(Panel &panel)
{
    auto [kinovra, frm, platform] = panel.parts();

    kinovra.CurrentTrial = shell::StripExtension(kinovra.SelectedFile);
    frm.lblTrial.Caption = UCase(kinovra.CurrentTrial);
}

QString titleLine(Panel &panel)
{
    const QString path = shell::inDataDir(panel.kinovra, panel.kinovra.SelectedFile);
    return panel.platform.files.firstLine(path) + u' ';
}

// A .DG file's first line is the trial's title. An Expert who clicks another kind of file gets neither a
// message nor another title.
void showDataTitle(Panel &panel)
{
    auto [kinovra, frm, platform] = panel.parts();

    constexpr qint16 Novice = 0;
    if (UCase(kinovra.CurrentExtension) == u"DG") {
        frm.lblTitle.Caption = titleLine(panel);
    } else if (kinovra.UserLevel == Novice) {
        MsgBox(panel, {u"Use the Convert item in the Data menu to create a .DG file."_s});
        frm.lblTitle.Caption = u" (unknown)"_s;
    }
}

} // namespace

void filDatafiles_Click(Panel &panel)
{
    auto [kinovra, frm, platform] = panel.parts();

    if (frm.filDatafiles.ListCount() == 0) {
        MsgBox(panel, {u"No datafiles (*.DG) in this subdirectory."_s, Icon::Information});
        return;
    }
    if (frm.filDatafiles.ListIndex < 0)
        return;
    kinovra.SelectedFile = frm.filDatafiles.FileName();
    if (!acceptsFileName(panel, u"Warning.  Data file has a 'long' filename and cannot be used by the "
                                "Kinovra system."_s))
        return;
    kinovra.CurrentExtension = shell::GetExtension(kinovra.SelectedFile);
    kinovra.CurrentTrial = shell::StripExtension(kinovra.SelectedFile);
    frm.lblTrial.Caption = UCase(kinovra.CurrentTrial) + u'.' + kinovra.CurrentExtension;
    try {
        showDataTitle(panel);
    } catch (const platform::RuntimeError &) {
        MsgBox(panel, {u"File is empty or unreadable.  Select another file."_s, Icon::Exclamation,
                       platform::Buttons::OKOnly, u"Unreadable File"_s});
        frm.lblTitle.Caption = u"Unreadable or empty file."_s;
    }
}

void filModels_Click(Panel &panel)
{
    auto [kinovra, frm, platform] = panel.parts();

    if (frm.filModels.ListCount() == 0) {
        MsgBox(panel, {u"No models (.CFB) in this subdirectory."_s, Icon::Information});
        return;
    }
    if (frm.filModels.ListIndex < 0)
        return;
    kinovra.SelectedFile = frm.filModels.FileName();
    if (!acceptsModelName(panel))
        return;
    chooseModel(panel);
    shell::StoreDataDir(panel, u"Kinovra"_s);
    try {
        frm.lblTitle.Caption = titleLine(panel);
    } catch (const platform::RuntimeError &) {
        frm.lblTitle.Caption = u" Unreadable or empty file."_s;
    }
}

bool chooseOnlyModel(Panel &panel)
{
    auto &models = panel.frm.filModels;
    panel.kinovra.SelectedFile = models.List(0);
    if (!acceptsModelName(panel))
        return false;
    models.ListIndex = 0;
    chooseModel(panel);
    return true;
}

void chooseTrialOf(Panel &panel, const QString &fileName)
{
    panel.kinovra.CurrentTrial = fileName.section(u'.', 0, 0);
    panel.frm.lblTrial.Caption = UCase(panel.kinovra.CurrentTrial);
}

bool TestTrial(Panel &panel)
{
    auto [kinovra, frm, platform] = panel.parts();

    if (!kinovra.CurrentTrial.isEmpty())
        return false;
    MsgBox(panel, {u"Select a trial from the Data or Model menus first."_s, Icon::Exclamation});
    frm.filDatafiles.Visible = true;
    frm.lblDatafiles.Visible = true;
    frm.filModels.Visible = true;
    frm.lblModels.Visible = true;
    frm.drvDrives.Visible = true;
    frm.dirSelect.Visible = true;
    return true;
}

} // namespace browser
