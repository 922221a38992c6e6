#include "averaging/averaging_menu.h"

#include "averaging/averaging_steps.h"
#include "browser/file_lists.h"
#include "browser/test_file.h"
#include "launcher/program_runner.h"
#include "launcher/starting.h"
#include "shell/dispatch.h"

using namespace Qt::StringLiterals;

namespace averaging {

namespace {

using platform::CommandText;

enum Item { NewAverage, AddTrial, ComputeAverages, SubtractTrial, Help, ProgramOptions };

bool showHelp(Panel &panel)
{
    if (!hasHelpText(panel))
        return false;
    panel.kinovra.ViewerFile = panel.kinovra.ProgDir + u'\\' + QString::fromUtf16(HelpText);
    panel.viewer.show();
    return true;
}

// False where the user wants to choose another file.
bool acceptsBinaryFile(Panel &panel)
{
    auto [kinovra, frm, platform] = panel.parts();

    if (!kinovra.BinaryFile.isEmpty())
        return true;
    const QString title = u"Binary data file not selected"_s;
    const platform::Answer answer = shell::MsgBox(
        panel, {u"No binary data file was selected.  Press Yes to use default (.pj), No to select "
                "another file or Cancel to quit."_s,
                platform::Icon::Question, platform::Buttons::YesNoCancel, title});
    kinovra.TaskId = answer;
    if (answer == platform::Yes)
        return true;
    shell::MsgBox(panel, {u"Select binary data file from Binary output listbox."_s, platform::Icon::None,
                          platform::Buttons::OKOnly, title});
    showBinaryFiles(panel);
    return false;
}

void runOnBinaryFile(Panel &panel, int index)
{
    auto [kinovra, frm, platform] = panel.parts();

    if (!acceptsBinaryFile(panel))
        return;
    const DefaultBinaryFile file(panel);
    if (index == AddTrial)
        panel.newAverage.comFilenames.AddItem(kinovra.BinaryFile);
    frm.ProgPath = chooseAverage(panel);
    frm.Comm = kinovra.ListingSwitch + CommandText(index == SubtractTrial ? "/S " : "")
               + CommandText::document(kinovra.BinaryFile);
    kinovra.Answer = launcher::RunProgram(panel, frm.ProgPath, frm.Comm, 1);
    file.tell();
}

void computeAverages(Panel &panel)
{
    const bool wasChosen = !panel.kinovra.BinaryFile.isEmpty();
    panel.kinovra.BinaryFile.clear();
    if (wasChosen)
        browser::sayBinaryFile(panel);
    panel.newAverage.show();
}

} // namespace

void enableAveraging(Panel &panel)
{
    auto [kinovra, frm, platform] = panel.parts();

    const qint16 error = browser::TestFile(panel, kinovra.DataDir, u"average.sss"_s, browser::Silent);
    const QString noAverage = error == 0 ? QString() : u"Needs an average: begin a new one first"_s;
    const QString noBinary =
        kinovra.BinaryFile.isEmpty() ? u"Needs a binary file: click on one in the list"_s : QString();
    const QString neither = noBinary.isEmpty() ? noAverage : noBinary;
    frm.mnuAverage[NewAverage].enableUnless(noBinary);
    frm.mnuAverage[AddTrial].enableUnless(neither);
    frm.mnuAverage[ComputeAverages].enableUnless(noAverage);
    frm.mnuAverage[SubtractTrial].enableUnless(neither);
}

void mnuAverage_Click(Panel &panel, int index)
{
    switch (index) {
    case NewAverage:
        panel.newAverage.show();
        break;
    case ComputeAverages:
        computeAverages(panel);
        break;
    case ProgramOptions:
        // The program's name stays that of the last one, and so does the listing that is offered; that is
        // meant.
        panel.kinovra.Answer =
            launcher::RunProgram(panel, launcher::packageProgram(panel, u"average"_s), u" /?"_s, 1);
        break;
    case Help:
        if (!showHelp(panel))
            runOnBinaryFile(panel, index);
        break;
    default:
        runOnBinaryFile(panel, index);
        break;
    }
}

} // namespace averaging
