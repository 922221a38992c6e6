#include "graphs/graph_options.h"

namespace graphs {

void mnuGraphOptions_Click(Panel &panel, int index)
{
    auto &options = panel.frm.mnuGraphOptions;
    if (index == ResetDefaults) {
        for (size_t i = BlackOnWhite; i <= BatchMode; ++i)
            options[i].Checked = false;
        return;
    }
    if (index < BlackOnWhite || index > BatchMode)
        return;
    auto &option = options[static_cast<size_t>(index)];
    option.Checked = !option.Checked;
    if (!options[BlackOnWhite].Checked || !options[WhiteOnBlack].Checked)
        return;
    if (index == BlackOnWhite)
        options[WhiteOnBlack].Checked = false;
    else if (index == WhiteOnBlack)
        options[BlackOnWhite].Checked = false;
}

} // namespace graphs
