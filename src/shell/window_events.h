#pragma once

#include "shell/panel.h"

namespace shell {

/// Undoes a change of the window's width, keeps its least height, and gives the directory list what height is
/// left.
void Form_Resize(Panel &panel);

/// Keys of the whole window, seen before its controls: F1, Help and "?" show the about window, Ctrl+R
/// refreshes the lists. `shift` is 1 for Shift, 2 for Ctrl, 4 for Alt, added up.
void Form_KeyUp(Panel &panel, int keyCode, int shift);

/// A double-click on the background shows the about window.
void Form_DblClick(Panel &panel);

/// The window has become active: from now on it sees keys before its controls.
void Form_Activate(Panel &panel);

/// Chooses the user level: 0 Novice, 1 Expert. Nothing is shown or hidden here.
void mnuUser_Click(Panel &panel, int index);

/// Hangs the shell's handlers on the controls.
void connect(Panel &panel);

} // namespace shell
