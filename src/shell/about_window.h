#pragma once

#include "controls/window.h"

namespace shell {

/// What the about window grows by for the contact details, in twips.
constexpr int ContactHeight = 3000;

/// The about window, which is also the splash. The constructor gives it the captions and sizes that it has
/// before it is loaded.
struct frmAbout : controls::Window
{
    frmAbout();

    controls::Label lblAbout;
    controls::Label lblHeader; ///< the banner, at the foot of the picture
    controls::PictureBox picAbout;
    controls::PictureBox picRell; ///< the author's photograph
    controls::Label lblRell;      ///< contact details
    controls::Button cmdSysinfo, cmdUpgrade, cmdWebsite, cmdAuthor;

    std::function<void(int character)> KeyPress; ///< character code; 27 is Esc

    bool ContactShown = false; ///< whether the contact details are shown
};

} // namespace shell
