#include "data/editors.h"

#include "browser/trial_files.h"
#include "launcher/starting.h"
#include "shell/stored_settings.h"

using namespace Qt::StringLiterals;

namespace data {

using platform::CommandText;
using platform::Show;

void cmdEditor_Click(Panel &panel)
{
    auto [kinovra, frm, platform] = panel.parts();

    shell::StoreDataDir(panel, u"Kinovra"_s);
    CommandText parameters = u" ;"_s;
    if (!kinovra.CurrentTrial.isEmpty() && browser::TrialFiles(panel).hasByAnswer(".cfb"))
        parameters = u" "_s + CommandText::document(kinovra.CurrentTrial + u".cfb"_s);
    kinovra.TaskId = launcher::startDirectly(panel, launcher::packageProgram(panel, u"modlex"_s), parameters,
                                             Show::Normal);
}

void cmdEditGra_Click(Panel &panel)
{
    auto [kinovra, frm, platform] = panel.parts();

    const QString file = kinovra.ProgDir + u"\\graphs\\"_s + frm.CurrentGRA;
    kinovra.TaskId =
        launcher::startDirectly(panel, u"notepad.exe"_s, u" "_s + CommandText::document(file), Show::Normal);
}

} // namespace data
