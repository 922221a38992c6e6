#include "shell/about_window.h"

using namespace Qt::StringLiterals;

namespace shell {

frmAbout::frmAbout()
{
    Caption = u"About the Kinovra Motion Analysis System"_s;
    Width = 8100;
    Height = 6600;
    lblAbout.Caption = u"About Kinovra for Windows"_s;
    picAbout.ToolTip = u"Click here to return to main window."_s;
    picRell.Visible = false;
    lblRell.Visible = false;
    lblRell.ToolTip = u"Contact information."_s;
    cmdSysinfo.Caption = u"System Information"_s;
    cmdUpgrade.Caption = u"&Update"_s;
    cmdUpgrade.ToolTip = u"Click here to download latest version from the internet."_s;
    cmdWebsite.Caption = u"&Website"_s;
    cmdWebsite.ToolTip = u"Click here to access software website."_s;
    cmdAuthor.Caption = u"&Contact"_s;
    cmdAuthor.ToolTip = u"Click here for contact information and website."_s;
}

} // namespace shell
