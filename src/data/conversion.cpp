#include "data/conversion.h"

#include "browser/current_trial.h"
#include "browser/test_file.h"
#include "browser/trial_files.h"
#include "launcher/starting.h"
#include "platform/letter_case.h"
#include "shell/dispatch.h"
#include "shell/file_names.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace data {

namespace {

using platform::CommandText;
using platform::Icon;
using platform::UCase;
using shell::MsgBox;

constexpr int TextFile = 5;
constexpr int Vicon = 6;

// By index of mnuArielType.
constexpr std::array<const char *, 10> ApasExtensions{".3d", ".1t", ".2t", ".3t", ".4t",
                                                      ".5t", ".6t", ".7t", ".8t", ".9t"};

void convert(Panel &panel, const QString &program, const CommandText &parameters)
{
    panel.kinovra.ProgName = program;
    panel.kinovra.TaskId = launcher::startDirectly(panel, launcher::packageProgram(panel, program),
                                                   parameters, platform::Show::Shown);
}

// Whether the trial has any APAS file.
bool enableApasTypes(Panel &panel)
{
    browser::TrialFiles trial(panel);
    bool any = false;
    for (size_t type = 0; type < ApasExtensions.size(); ++type) {
        const bool has = trial.hasByAnswer(ApasExtensions[type]);
        panel.frm.mnuArielType[type].enableUnless(trial.hindrance());
        any = any || has;
    }
    return any;
}

bool hasCommonFile(Panel &panel)
{
    auto [kinovra, frm, platform] = panel.parts();

    kinovra.Answer =
        browser::TestFile(panel, kinovra.DataDir, kinovra.CurrentTrial + u".cf"_s, browser::Silent);
    if (kinovra.Answer == 0)
        return true;
    MsgBox(panel,
           {u"The Common File '"_s + UCase(kinovra.CurrentTrial) + u".CF' is missing."_s, Icon::Exclamation});
    return false;
}

// The old converter takes short (8.3) names only. Of a file that is gone the short name is empty, and so
// ".DG" is passed; that is meant.
QString nameToPass(Panel &panel, const QString &file)
{
    const QString &lineBreak = panel.frm.LineBreak;
    QString shortName = shell::ShortName(panel, file);
    if (UCase(shortName) == UCase(file))
        return shortName;
    QString name = shell::StripExtension(shortName) + u".DG"_s;
    MsgBox(panel,
           {u"Warning.  The converted file will have a different filename then the original."_s + lineBreak
                + lineBreak + u"The converted file will use the short filename (8.3 format): "_s + name
                + lineBreak + u"The original filename was: "_s + file,
            Icon::Exclamation, platform::Buttons::OKOnly, u"Change of Filename"_s});
    return name;
}

} // namespace

void mnuConvert_Click(Panel &panel, int index)
{
    auto [kinovra, frm, platform] = panel.parts();

    switch (index) {
    case PeakPerformance:
        convert(panel, u"Skelvo"_s, u" /A "_s + CommandText::document(kinovra.CurrentTrial + u".cda"_s));
        break;
    case TextFile:
        convert(panel, u"Conv2DG"_s,
                u" "_s + CommandText::document(kinovra.CurrentTrial + u'.' + kinovra.CurrentExtension));
        break;
    case Vicon:
        break;
    default:
        MsgBox(panel, {u"Not yet implemented!"_s, Icon::Exclamation, platform::Buttons::OKOnly, u"Skelvo"_s});
    }
}

void mnuConverts_Click(Panel &panel)
{
    enableApasTypes(panel);
}

void mnuAriel_Click(Panel &panel)
{
    auto &frm = panel.frm;
    if (browser::TestTrial(panel) || enableApasTypes(panel))
        return;
    MsgBox(panel, {u"Select an APAS file (.1T/.3D) from Data menu first."_s, Icon::Exclamation});
    frm.filDatafiles.Visible = true;
    frm.lblDatafiles.Visible = true;
}

bool mnuAriel_asks(Panel &panel)
{
    browser::TrialFiles trial(panel);
    return panel.kinovra.CurrentTrial.isEmpty()
           || std::none_of(ApasExtensions.begin(), ApasExtensions.end(),
                           [&trial](const char *extension) { return trial.has(extension); });
}

void mnuArielType_Click(Panel &panel, int index)
{
    auto [kinovra, frm, platform] = panel.parts();

    const QString file = kinovra.CurrentTrial + QLatin1String(ApasExtensions.at(static_cast<size_t>(index)));
    if (!hasCommonFile(panel))
        return;
    kinovra.ProgName = u"Skelvo"_s;
    const QString program = launcher::packageProgram(panel, kinovra.ProgName);
    launcher::showAndStart(panel, program, u" /A "_s + CommandText::document(nameToPass(panel, file)));
}

} // namespace data
