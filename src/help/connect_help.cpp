#include "help/connect_help.h"

#include "help/about_window.h"
#include "help/help_menu.h"
#include "help/manuals.h"
#include "shell/connect_items.h"

namespace help {

void connect(shell::Panel &panel)
{
    using shell::connectItems;

    auto &frm = panel.frm;
    connectItems(panel, frm.mnuHelpItem, mnuHelpItem_Click);
    connectItems(panel, frm.mnuAbout, mnuAbout_Click);
    connectItems(panel, frm.mnuManual, mnuManual_Click);
    frm.mnuHelp.Opening = [&panel] { mnuHelp_Click(panel); };
    frm.mnuManuals.Opening = [&panel] { mnuManuals_Click(panel); };
    frm.cmdGuide.Click = [&panel] { cmdGuide_Click(panel); };
    frm.cmdManual.Click = [&panel] { cmdManual_Click(panel); };
    connectAboutWindow(panel);
}

} // namespace help
