#pragma once

#include "controls/menu_item.h"
#include "controls/window.h"

namespace shell {

/// The text viewer's window: its controls and menus. The constructor gives it the captions and sizes that it
/// has before it is loaded.
struct frmViewer : controls::Window
{
    frmViewer();

    controls::TextPage txtViewer;
    controls::CommonDialog dlgViewer;

    controls::MenuItem mnuFile, mnuOpen, mnuExit;
    controls::MenuItem mnuColour;
    controls::MenuArray<3> mnuColours; ///< 0 background, 1 foreground, 2 reset
    controls::MenuItem mnuFonts;
    controls::MenuArray<6> mnuFontSizesItem;
};

} // namespace shell
