#include "graphs/graph_types.h"

#include "browser/file_lists.h"
#include "graphs/output_devices.h"

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
    for (int i = 0; i < 4; ++i) {
        frm.mnuListing[static_cast<size_t>(i)].Click = [&panel, i] { mnuListing_Click(panel, i); };
        frm.mnuGraphics[static_cast<size_t>(i)].Click = [&panel, i] { mnuGraphics_Click(panel, i); };
    }
}

} // namespace graphs
