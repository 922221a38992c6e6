#include "graphs/graph_types.h"

#include "browser/file_lists.h"

namespace graphs {

void cmdSelectGra_Click(Panel &panel)
{
    auto &frm = panel.frm;
    browser::refresh(panel, {&frm.filGraFiles});
    frm.filGraFiles.Visible = true;
    frm.lblGraFiles.Visible = true;
    hideGraphButtons(panel);
}

void hideGraphButtons(Panel &panel)
{
    auto &frm = panel.frm;
    frm.cmdGraph.Visible = false;
    frm.cmdSelectGra.Visible = false;
    frm.cmdEditGra.Visible = false;
}

} // namespace graphs
