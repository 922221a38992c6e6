#include "shell/shut_down.h"

#include "platform/runtime_error.h"
#include "shell/stored_settings.h"

namespace shell {

void Form_Unload(Panel &panel)
{
    auto [kinovra, frm, platform] = panel.parts();

    panel.unloading = true;
    try {
        platform.files.changeDrive(frm.StartDir);
        platform.files.changeDirectory(frm.StartDir);
    } catch (const platform::RuntimeError &) {
        // The directory of the start is gone; the program ends all the same.
    }
    platform.environment.endProgram();
}

void cmdExit_Click(Panel &panel)
{
    SaveSettings(panel);
    Form_Unload(panel);
}

void mnuExit_Click(Panel &panel)
{
    Form_Unload(panel);
}

} // namespace shell
