#include "help/about_window.h"

using namespace Qt::StringLiterals;

namespace help {

namespace {

constexpr int Escape = 27;

void Form_Load(shell::Panel &panel)
{
    panel.about.Caption = u"About "_s + QLatin1String(shell::ApplicationTitle);
}

void Form_Activate(shell::Panel &panel)
{
    panel.about.lblHeader.Caption = panel.kinovra.HeaderText;
}

void Form_KeyPress(shell::Panel &panel, int character)
{
    if (character == Escape)
        panel.about.Visible = false;
}

} // namespace

void showAbout(shell::Panel &panel)
{
    panel.about.Visible = true;
    if (panel.about.ToFront)
        panel.about.ToFront();
}

void connect(shell::Panel &panel)
{
    shell::frmAbout &about = panel.about;
    about.Load = [&panel] { Form_Load(panel); };
    about.Activate = [&panel] { Form_Activate(panel); };
    about.KeyPress = [&panel](int character) { Form_KeyPress(panel, character); };
    about.Click = [&panel] { panel.about.Visible = false; };
    about.Unload = [&panel] { panel.about.Visible = false; };
}

} // namespace help
