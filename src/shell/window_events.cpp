#include "shell/window_events.h"

#include "browser/file_lists.h"
#include "help/help_menu.h"
#include "shell/connect_items.h"
#include "shell/shut_down.h"
#include "shell/start_up.h"

#include <algorithm>

namespace shell {

namespace {

constexpr int HelpKey = 47;
constexpr int QuestionMark = 63;
constexpr int KeyR = 82;
constexpr int F1 = 112;
constexpr int SlashKey = 191;
constexpr int ShiftHeld = 1;
constexpr int CtrlHeld = 2;

} // namespace

void Form_Resize(Panel &panel)
{
    frmKinovra &frm = panel.frm;
    frm.Width = MainWindowWidth;
    frm.Height = std::max<int>(frm.Height, MainWindowLeastHeight);
    frm.dirSelect.Height = frm.Height - HeightBesideDirectoryList;
}

void Form_KeyUp(Panel &panel, int keyCode, int shift)
{
    if (keyCode == SlashKey && shift == ShiftHeld)
        keyCode = QuestionMark;
    if (keyCode == HelpKey || keyCode == F1 || keyCode == QuestionMark)
        help::showAbout(panel);
    else if (keyCode == KeyR && shift == CtrlHeld)
        browser::cmdRefresh_Click(panel);
}

void Form_DblClick(Panel &panel)
{
    help::showAbout(panel);
}

void Form_Activate(Panel &panel)
{
    panel.frm.KeyPreview = true;
}

void mnuUser_Click(Panel &panel, int index)
{
    auto &items = panel.frm.mnuUser;
    items[0].Checked = false;
    items[1].Checked = false;
    if (index == 0 || index == 1) {
        panel.kinovra.UserLevel = static_cast<qint16>(index);
        items[static_cast<size_t>(index)].Checked = true;
    }
}

void connect(Panel &panel)
{
    frmKinovra &frm = panel.frm;
    frm.Load = [&panel] { Form_Load(panel); };
    frm.Unload = [&panel] { Form_Unload(panel); };
    frm.Resize = [&panel] { Form_Resize(panel); };
    frm.Activate = [&panel] { Form_Activate(panel); };
    frm.DblClick = [&panel] { Form_DblClick(panel); };
    frm.KeyUp = [&panel](int keyCode, int shift) { Form_KeyUp(panel, keyCode, shift); };
    frm.cmdExit.Click = [&panel] { cmdExit_Click(panel); };
    frm.mnuExit.Click = [&panel] { mnuExit_Click(panel); };
    connectItems(panel, frm.mnuUser, mnuUser_Click);
}

} // namespace shell
