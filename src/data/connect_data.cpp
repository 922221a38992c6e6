#include "data/connect_data.h"

#include "data/conversion.h"
#include "data/digitized_data.h"
#include "data/editors.h"
#include "data/models.h"
#include "data/new_model.h"
#include "shell/connect_items.h"

namespace data {

using shell::connectItems;

void connect(Panel &panel)
{
    auto &frm = panel.frm;
    connectItems(panel, frm.mnuDatafile, mnuDatafile_Click);
    connectItems(panel, frm.mnuConvert, mnuConvert_Click);
    connectItems(panel, frm.mnuArielType, mnuArielType_Click);
    connectItems(panel, frm.mnuModel, mnuModel_Click);
    frm.mnuDatafiles.Opening = [&panel] { mnuDatafiles_Click(panel); };
    frm.mnuConverts.Opening = [&panel] { mnuConverts_Click(panel); };
    frm.mnuAriel.Opening = [&panel] { mnuAriel_Click(panel); };
    frm.mnuAriel.AsksOnOpening = [&panel] { return mnuAriel_asks(panel); };
    frm.mnuModels.Opening = [&panel] { mnuModels_Click(panel); };
    frm.mnuNewModel.Click = [&panel] { mnuNewModel_Click(panel); };
    frm.cmdEditor.Click = [&panel] { cmdEditor_Click(panel); };
    frm.cmdEditGra.Click = [&panel] { cmdEditGra_Click(panel); };
}

} // namespace data
