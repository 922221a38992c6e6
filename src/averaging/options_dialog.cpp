#include "averaging/options_dialog.h"

#include "averaging/averaging_steps.h"
#include "launcher/program_runner.h"
#include "shell/dispatch.h"

#include <QScopedValueRollback>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace averaging {

namespace {

using platform::CommandText;
using shell::frmNewAverage;

struct SwitchBox
{
    controls::CheckBox frmNewAverage::*box;
    const char *text;
};

constexpr std::array<SwitchBox, 5> AddingSwitches{{
    {&frmNewAverage::chkAVall, "/A "},
    {&frmNewAverage::chkAVtoMass, "/M "},
    {&frmNewAverage::chkAVpercentage, "/P "},
    {&frmNewAverage::chkAVecho, "/E "},
    {&frmNewAverage::chkAVwait, "/W "},
}};

// "other" adds nothing.
constexpr std::array<const char *, 5> ConfidenceSwitches{"/5 ", "/9 ", "/1 ", "/2 ", ""};

void run(Panel &panel, const QString &switches)
{
    auto [kinovra, frm, platform] = panel.parts();
    frmNewAverage &dialog = panel.newAverage;

    const QScopedValueRollback running(dialog.isRunning, true);
    dialog.AverageCommand = kinovra.ListingSwitch + switches + CommandText::document(kinovra.BinaryFile);
    kinovra.Answer = launcher::RunProgram(panel, dialog.AverageProgram, dialog.AverageCommand, 1);
    dialog.Visible = false;
}

} // namespace

void Form_Load(Panel &panel)
{
    auto &filenames = panel.newAverage.comFilenames;
    if (filenames.ListCount() == 0)
        filenames.AddItem(u"Not Available"_s);
}

void Form_Activate(Panel &panel)
{
    frmNewAverage &dialog = panel.newAverage;
    const QString &file = panel.kinovra.BinaryFile;

    if (!file.isEmpty()) {
        dialog.txtBinary.Text = file;
        dialog.comFilenames.Clear();
        dialog.comFilenames.AddItem(u"Click to View"_s);
        dialog.comFilenames.AddItem(file);
        dialog.Height = shell::CompactAverageHeight;
    } else {
        dialog.Height = shell::FullAverageHeight;
        // Nothing enables it again; that is meant.
        dialog.cmdOK.Enabled = false;
        dialog.txtBinary.Text = u"Average.av"_s;
    }
    dialog.comFilenames.ListIndex = 0;
}

void txtBinary_Click(Panel &panel)
{
    auto [kinovra, frm, platform] = panel.parts();

    panel.newAverage.txtBinary.Text = kinovra.BinaryFile;
    shell::MsgBox(panel, {u"To change the input data file press the Cancel button and"_s + frm.LineBreak
                              + u"select a file from the Binary output list."_s,
                          platform::Icon::Information});
    showBinaryFiles(panel);
}

void cmdOK_Click(Panel &panel)
{
    QString switches = u"/I "_s;
    for (const SwitchBox &row : AddingSwitches) {
        if ((panel.newAverage.*row.box).Value)
            switches += QLatin1String(row.text);
    }
    panel.newAverage.AverageProgram = chooseAverage(panel);
    const DefaultBinaryFile file(panel);
    run(panel, switches);
    file.tell();
}

void cmdAverage_Click(Panel &panel)
{
    const auto &options = panel.newAverage.optCI;

    // No blank behind it: a name may follow at once, and that is meant.
    QString switches = u" /C"_s;
    const auto chosen =
        std::find_if(options.begin(), options.end(),
                     [](const controls::OptionButton &option) { return option.Value.value(); });
    if (chosen != options.end())
        switches += QLatin1String(ConfidenceSwitches[static_cast<size_t>(chosen - options.begin())]);
    if (panel.newAverage.chkAVrow.Value)
        switches += u"/R ";
    panel.newAverage.AverageProgram = chooseAverage(panel);
    run(panel, switches);
}

void cmdDefault_Click(Panel &panel)
{
    panel.newAverage.setDefaults();
}

void cmdHelp_Click(Panel &panel)
{
    panel.kinovra.SelectedFile = panel.kinovra.ProgDir + u'\\' + QString::fromUtf16(HelpText);
    if (hasHelpText(panel))
        panel.viewer.show();
}

void cmdCancel_Click(Panel &panel)
{
    panel.newAverage.Visible = false;
}

void connectOptionsDialog(Panel &panel)
{
    frmNewAverage &dialog = panel.newAverage;
    const auto unlessRunning = [&panel](void (*click)(Panel &)) {
        return [&panel, click] {
            if (!panel.newAverage.isRunning)
                click(panel);
        };
    };
    dialog.Load = [&panel] { Form_Load(panel); };
    dialog.Activate = [&panel] { Form_Activate(panel); };
    dialog.Unload = unlessRunning(cmdCancel_Click);
    dialog.txtBinary.Click = [&panel] { txtBinary_Click(panel); };
    dialog.cmdOK.Click = unlessRunning(cmdOK_Click);
    dialog.cmdAverage.Click = unlessRunning(cmdAverage_Click);
    dialog.cmdDefault.Click = unlessRunning(cmdDefault_Click);
    dialog.cmdHelp.Click = unlessRunning(cmdHelp_Click);
    dialog.cmdCancel.Click = unlessRunning(cmdCancel_Click);
}

} // namespace averaging
