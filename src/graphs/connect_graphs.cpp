#include "graphs/connect_graphs.h"

#include "graphs/graph_commands.h"
#include "graphs/graph_options.h"
#include "graphs/output_devices.h"
#include "graphs/printing.h"
#include "shell/connect_items.h"

namespace graphs {

void connect(Panel &panel)
{
    using shell::connectItems;

    auto &frm = panel.frm;
    connectItems(panel, frm.mnuGraph, mnuGraph_Click);
    connectItems(panel, frm.mnuGraphOptions, mnuGraphOptions_Click);
    connectItems(panel, frm.mnuGraphPrint, mnuGraphPrint_Click);
    connectItems(panel, frm.mnuListing, mnuListing_Click);
    connectItems(panel, frm.mnuGraphics, mnuGraphics_Click);
    frm.mnuPrint.Click = [&panel] { mnuPrint_Click(panel); };
    frm.mnuPrintSetup.Click = [&panel] { mnuPrintSetup_Click(panel); };
    frm.cmdGraph.Click = [&panel] { cmdGraph_Click(panel); };
    frm.cmdSelectGra.Click = [&panel] { cmdSelectGra_Click(panel); };
}

} // namespace graphs
