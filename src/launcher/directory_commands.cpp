#include "launcher/directory_commands.h"

#include "browser/file_lists.h"

using namespace Qt::StringLiterals;

namespace launcher {

void mnuOpen_Click(Panel &panel)
{
    auto &frm = panel.frm;
    // The list takes "*.*" as a file name first, which no model has: none stays selected.
    frm.filModels.ListIndex = -1;
    frm.filModels.Pattern = u"*.cfb"_s;
    browser::refresh(panel, {&frm.filModels});
    frm.drvDrives.Visible = true;
    frm.dirSelect.Visible = true;
    frm.filModels.Visible = true;
    frm.lblModels.Visible = true;
    frm.filDatafiles.Visible = true;
    frm.lblDatafiles.Visible = true;
}

void connectDirectoryCommands(Panel &panel)
{
    panel.frm.mnuOpen[0].Click = [&panel] { mnuOpen_Click(panel); };
}

} // namespace launcher
