#include "shell/viewer_window.h"

using namespace Qt::StringLiterals;

namespace shell {

frmViewer::frmViewer()
{
    Caption = u"Text Viewer"_s;
    Width = 9000;
    Height = 7800;
    mnuFile.Caption = u"&File"_s;
    mnuOpen.Caption = u"&Open"_s;
    mnuExit.Caption = u"E&xit"_s;
    mnuColour.Caption = u"&Colours"_s;
    mnuColours[0].Caption = u"&Background"_s;
    mnuColours[1].Caption = u"&Foreground"_s;
    mnuColours[2].Caption = u"&Reset"_s;
    mnuFonts.Caption = u"&Font"_s;
    constexpr const char *Sizes[]{"&tiny", "&small", "&normal", "&large", "&very large", "default"};
    for (size_t i = 0; i < mnuFontSizesItem.size(); ++i)
        mnuFontSizesItem[i].Caption = QLatin1String(Sizes[i]);
}

} // namespace shell
