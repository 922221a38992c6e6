#pragma once

#include "controls/window.h"

namespace shell {

/// The about window, which is also the splash.
struct frmAbout : controls::Window
{
    controls::Label lblHeader; ///< the banner

    controls::Event Click;                       ///< on the window or anything in it
    std::function<void(int character)> KeyPress; ///< character code; 27 is Esc
};

} // namespace shell
