#pragma once

#include "shell/panel.h"

namespace help {

using shell::Panel;

/// Loading: the title, and a place in the middle of the screen.
void Form_Load(Panel &panel);

/// The window has become active: it shows the banner and, where they were asked for, the contact details.
void Form_Activate(Panel &panel);

/// A key's character: Esc (27) closes the window.
void Form_KeyPress(Panel &panel, int character);

/// Closes the window, which forgets that the contact details were shown: a click on the title, the picture or
/// the contact details, Esc, and the close box.
void closeAbout(Panel &panel);

/// Hides the photograph alone.
void picRell_Click(Panel &panel);

/// Shows or hides the contact details, for which the window grows or shrinks.
void cmdAuthor_Click(Panel &panel);

/// Hangs the about window's handlers on its controls.
void connectAboutWindow(Panel &panel);

} // namespace help
