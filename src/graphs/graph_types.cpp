#include "graphs/graph_types.h"

#include "browser/file_lists.h"
#include "shell/dispatch.h"

using namespace Qt::StringLiterals;

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
    if (!frm.filGraFiles.Visible)
        shell::say(panel, u"\"Refresh File Lists\" brings the graph buttons back."_s);
}

} // namespace graphs
