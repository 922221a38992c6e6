#include "data/models.h"

#include "browser/current_trial.h"
#include "browser/file_lists.h"
#include "browser/test_file.h"
#include "browser/trial_files.h"
#include "launcher/starting.h"
#include "shell/dispatch.h"

using namespace Qt::StringLiterals;

namespace data {

namespace {

using platform::CommandText;
using platform::Icon;
using platform::Show;

enum Item { Select, CopyData, AddForces, EditModel, ViewInNotepad, MergeForces };

QString ofTrial(const Panel &panel, const char *extension)
{
    return panel.kinovra.CurrentTrial + QLatin1String(extension);
}

// Whether the trial's file is there; the user is told where it is not.
bool hasInput(Panel &panel, const char *extension)
{
    auto [kinovra, frm, platform] = panel.parts();

    kinovra.Answer =
        browser::TestFile(panel, kinovra.DataDir, ofTrial(panel, extension), browser::ShowMessage);
    return kinovra.Answer == 0;
}

bool userAgrees(Panel &panel, const QString &firstLine, const QString &secondLine)
{
    const platform::Answer answer = shell::MsgBox(
        panel, {firstLine + panel.frm.LineBreak + secondLine, Icon::Question, platform::Buttons::YesNo});
    panel.kinovra.Answer = answer;
    return answer == platform::Yes;
}

void run(Panel &panel, const QString &program, const CommandText &parameters)
{
    auto [kinovra, frm, platform] = panel.parts();

    kinovra.ProgName = program;
    frm.ProgPath = launcher::packageProgram(panel, program);
    frm.Comm = parameters;
    launcher::showAndStart(panel, frm.ProgPath, frm.Comm);
}

void viewInNotepad(Panel &panel)
{
    auto [kinovra, frm, platform] = panel.parts();

    kinovra.ProgName = u"Notepad.exe"_s;
    kinovra.SelectedFile = ofTrial(panel, ".cfb");
    kinovra.TaskId = launcher::startDirectly(
        panel, u"Notepad.exe"_s, u" "_s + CommandText::document(kinovra.SelectedFile), Show::Shown);
}

void select(Panel &panel)
{
    auto &frm = panel.frm;
    browser::refresh(panel, {&frm.filModels});
    frm.filModels.Visible = true;
    frm.lblModels.Visible = true;
    if (frm.filModels.ListCount() == 1)
        browser::chooseTrialOf(panel, frm.filModels.List(0));
    else if (frm.filModels.ListCount() == 0
             && userAgrees(panel, u"No models (.CFB files) in this directory."_s,
                           u"Do you want to create a new model (.CFB) file."_s))
        viewInNotepad(panel);
}

void copyData(Panel &panel)
{
    if (hasInput(panel, ".dg")
        && userAgrees(panel, u"Do you want to rewrite the model file with information"_s,
                      u"from the datafile?"_s))
        run(panel, u"DG2CFB"_s, u" /C/M/N/F/G/R "_s + CommandText::document(panel.kinovra.CurrentTrial));
}

void addForces(Panel &panel)
{
    if (hasInput(panel, ".rf"))
        run(panel, u"FPlate"_s, u" /F/R "_s + CommandText::document(panel.kinovra.CurrentTrial));
}

// With the extension, unlike the forces added; that is meant.
void mergeForces(Panel &panel)
{
    if (hasInput(panel, ".rf2"))
        run(panel, u"FPlate"_s, u" /F/M/N "_s + CommandText::document(ofTrial(panel, ".rf2")));
}

} // namespace

void mnuModel_Click(Panel &panel, int index)
{
    switch (index) {
    case Select:
        select(panel);
        break;
    case CopyData:
        copyData(panel);
        break;
    case AddForces:
        addForces(panel);
        break;
    case EditModel:
        panel.kinovra.TaskId =
            launcher::startDirectly(panel, launcher::packageProgram(panel, u"modlex"_s), {}, Show::Normal);
        break;
    case ViewInNotepad:
        viewInNotepad(panel);
        break;
    case MergeForces:
        mergeForces(panel);
        break;
    default:
        break;
    }
}

void mnuModels_Click(Panel &panel)
{
    auto &items = panel.frm.mnuModel;

    panel.frm.mnuNewModel.Enabled = true;
    browser::TrialFiles trial(panel);
    const bool hasModel = trial.hasByAnswer(".cfb");
    for (size_t item = CopyData; item <= MergeForces; ++item)
        items[item].enableUnless(trial.hindrance());
    if (!hasModel)
        return;
    trial.hasByAnswer(".dg");
    items[CopyData].enableUnless(trial.hindrance());
    trial.hasByAnswer(".rf");
    items[AddForces].enableUnless(trial.hindrance());
    trial.hasByAnswer(".rf2");
    items[MergeForces].enableUnless(trial.hindrance());
}

} // namespace data
