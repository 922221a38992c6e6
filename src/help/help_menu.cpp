#include "help/help_menu.h"

#include "browser/hindrances.h"
#include "browser/test_file.h"
#include "help/updates.h"
#include "launcher/starting.h"

#include <array>

using namespace Qt::StringLiterals;

namespace help {

namespace {

enum AboutItem { About, SystemHelp, Update, Website };

struct Topic
{
    const char *tested; ///< when the menu opens
    const char *shown;
};

// "Energy" shows the text on forces and "Force" the one on energy; that is meant.
constexpr std::array<Topic, 19> Topics{{
    {"overview.txt", "Overview.txt"}, {"average.txt", "Average.txt"}, {"ondex.txt", "Ondex.txt"},
    {"refila.txt", "Refila.txt"},     {"dg_file.txt", "DG_file.txt"}, {"force.txt", "Force.txt"},
    {"energy.txt", "Energy.txt"},     {"fplate.txt", "FPlate.txt"},   {"skelvo.txt", "Skelvo.txt"},
    {"kinemati.txt", "Kinemati.txt"}, {"muscle.txt", "Muscle.txt"},   {"momentum.txt", "Momentum.txt"},
    {"options.txt", "Options.txt"},   {"powers.txt", "Powers.txt"},   {"readme.txt", "Readme.txt"},
    {"simulate.txt", "Simulate.txt"}, {"torque.txt", "Torque.txt"},   {"updatekv.txt", "UpdateKV.txt"},
    {"work.txt", "Work.txt"},
}};

} // namespace

void mnuHelp_Click(Panel &panel)
{
    auto [kinovra, frm, platform] = panel.parts();

    for (size_t i = 0; i < Topics.size(); ++i) {
        const QString topic = QLatin1String(Topics[i].tested);
        kinovra.Answer = browser::TestFile(panel, kinovra.ProgDir, topic, browser::Silent);
        frm.mnuHelpItem[i].enableUnless(
            browser::fileHindrance(topic, u"the program directory"_s, kinovra.Answer));
    }
}

void mnuHelpItem_Click(Panel &panel, int index)
{
    auto [kinovra, frm, platform] = panel.parts();

    const auto topic = static_cast<size_t>(index);
    const QString name = topic < Topics.size() ? QString(QLatin1String(Topics[topic].shown)) : QString();
    kinovra.ViewerFile = kinovra.ProgDir + u'\\' + name;
    kinovra.Answer = browser::TestFile(panel, kinovra.ProgDir, name, browser::ShowMessage);
    if (kinovra.Answer == 0)
        panel.viewer.show();
}

void mnuAbout_Click(Panel &panel, int index)
{
    auto [kinovra, frm, platform] = panel.parts();

    switch (index) {
    case About:
        showAbout(panel);
        break;
    case SystemHelp:
        launcher::startDirectly(panel, u"WinHlp32.EXE"_s, {}, platform::Show::Normal);
        break;
    case Update:
        checkForUpdate(panel);
        break;
    case Website:
        kinovra.TaskId = launcher::openAddress(panel, kinovra.WebHome, QString());
        break;
    default:
        break;
    }
}

void showAbout(Panel &panel)
{
    panel.about.show();
}

} // namespace help
