#include "help/about_window.h"

#include "help/system_information.h"
#include "help/updates.h"
#include "shell/build_values.h"

using namespace Qt::StringLiterals;

namespace help {

namespace {

constexpr int Escape = 27;

QString contactLines(const Panel &panel)
{
    QStringList lines;
    for (const char16_t *line : shell::build::Contact)
        lines.append(u"  "_s + QString::fromUtf16(line));
    lines.append(u"  Email: "_s + QString::fromUtf16(shell::build::ContactEmail));
    lines.append(u"  "_s + panel.kinovra.WebHome);
    return lines.join(panel.frm.LineBreak);
}

void showContact(shell::frmAbout &about)
{
    about.picRell.Visible = about.ContactShown;
    about.lblRell.Visible = about.ContactShown;
}

void setContactShown(shell::frmAbout &about, bool shown)
{
    if (about.ContactShown == shown)
        return;
    about.ContactShown = shown;
    about.Height = about.Height + (shown ? shell::ContactHeight : -shell::ContactHeight);
    showContact(about);
}

} // namespace

void Form_Load(Panel &panel)
{
    shell::frmAbout &about = panel.about;
    about.Caption = u"About "_s + QLatin1String(shell::ApplicationTitle);
    about.Left = (panel.screen.Width - about.Width) / 2;
    about.Top = (panel.screen.Height - about.Height) / 2;
}

void Form_Activate(Panel &panel)
{
    panel.about.lblHeader.Caption = panel.kinovra.HeaderText;
    panel.about.lblRell.Caption = contactLines(panel);
    showContact(panel.about);
}

void Form_KeyPress(Panel &panel, int character)
{
    if (character == Escape)
        closeAbout(panel);
}

void closeAbout(Panel &panel)
{
    panel.about.unload();
    setContactShown(panel.about, false);
}

void picRell_Click(Panel &panel)
{
    panel.about.picRell.Visible = false;
}

void cmdAuthor_Click(Panel &panel)
{
    setContactShown(panel.about, !panel.about.ContactShown);
}

void connectAboutWindow(Panel &panel)
{
    shell::frmAbout &about = panel.about;
    about.Load = [&panel] { Form_Load(panel); };
    about.Activate = [&panel] { Form_Activate(panel); };
    about.KeyPress = [&panel](int character) { Form_KeyPress(panel, character); };
    about.Unload = [&panel] { closeAbout(panel); };
    about.lblAbout.Click = [&panel] { closeAbout(panel); };
    about.lblRell.Click = [&panel] { closeAbout(panel); };
    about.picAbout.Click = [&panel] { closeAbout(panel); };
    about.picRell.Click = [&panel] { picRell_Click(panel); };
    about.cmdAuthor.Click = [&panel] { cmdAuthor_Click(panel); };
    about.cmdSysinfo.Click = [&panel] { StartSysInfo(panel); };
    about.cmdUpgrade.Click = [&panel] { cmdUpgrade_Click(panel); };
    about.cmdWebsite.Click = [&panel] { cmdWebsite_Click(panel); };
}

} // namespace help
