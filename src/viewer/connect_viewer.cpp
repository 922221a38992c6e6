#include "viewer/connect_viewer.h"

#include "shell/connect_items.h"
#include "viewer/text_viewer.h"
#include "viewer/view_commands.h"
#include "viewer/viewer_choice.h"

namespace viewer {

void connect(Panel &panel)
{
    using shell::connectItems;

    shell::frmViewer &viewer = panel.viewer;
    viewer.Load = [&panel] { Form_Load(panel); };
    viewer.Activate = [&panel] { Form_Activate(panel); };
    viewer.Resize = [&panel] { Form_Resize(panel); };
    viewer.Unload = [&panel] { mnuExit_Click(panel); };
    viewer.mnuOpen.Click = [&panel] { mnuOpen_Click(panel); };
    viewer.mnuExit.Click = [&panel] { mnuExit_Click(panel); };
    connectItems(panel, viewer.mnuFontSizesItem, mnuFontSizesItem_Click);
    connectItems(panel, viewer.mnuColours, mnuColours_Click);

    auto &frm = panel.frm;
    connectItems(panel, frm.mnuView, mnuView_Click);
    frm.mnuViews.Opening = [&panel] { mnuViews_Click(panel); };
    connectItems(panel, frm.mnuTextViewer, mnuTextViewer_Click);
    frm.mnuTextViewers.Opening = [&panel] { mnuTextViewers_Click(panel); };
}

} // namespace viewer
