#include "graphs/graph_types.h"

#include "browser/file_lists.h"
#include "graphs/output_devices.h"
#include "shell/connect_items.h"

namespace graphs {

void cmdSelectGra_Click(shell::Panel &panel)
{
    auto &frm = panel.frm;
    browser::refresh(panel, {&frm.filGraFiles});
    frm.filGraFiles.Visible = true;
    frm.lblGraFiles.Visible = true;
    frm.cmdGraph.Visible = false;
    frm.cmdSelectGra.Visible = false;
    frm.cmdEditGra.Visible = false;
}

void connect(shell::Panel &panel)
{
    auto &frm = panel.frm;
    frm.cmdSelectGra.Click = [&panel] { cmdSelectGra_Click(panel); };
    shell::connectItems(panel, frm.mnuListing, mnuListing_Click);
    shell::connectItems(panel, frm.mnuGraphics, mnuGraphics_Click);
}

} // namespace graphs
