#include "averaging/connect_averaging.h"

#include "averaging/averaging_menu.h"
#include "averaging/options_dialog.h"
#include "shell/connect_items.h"

namespace averaging {

void connect(shell::Panel &panel)
{
    panel.frm.mnuAverages.Opening = [&panel] { enableAveraging(panel); };
    shell::connectItems(panel, panel.frm.mnuAverage, mnuAverage_Click);
    connectOptionsDialog(panel);
}

} // namespace averaging
