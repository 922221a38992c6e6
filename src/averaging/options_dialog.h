#pragma once

#include "shell/panel.h"

namespace averaging {

using shell::Panel;

/// Loading: a list of file names that is empty says so.
void Form_Load(Panel &panel);

/// The dialog has become active: it is compact for adding the chosen binary file, tall for computing where
/// none is.
void Form_Activate(Panel &panel);

/// The file's name cannot be changed here: says where, and shows the list of binary files.
void txtBinary_Click(Panel &panel);

/// Adds the binary file to the running average with the checked options.
void cmdOK_Click(Panel &panel);

/// Computes the ensemble averages with the chosen confidence level.
void cmdAverage_Click(Panel &panel);

/// Sets the options as they are by default.
void cmdDefault_Click(Panel &panel);

/// Shows the text viewer where there is a help text on averaging. It shows the text that was chosen last
/// elsewhere; that is meant.
void cmdHelp_Click(Panel &panel);

/// Hides the dialog; nothing runs.
void cmdCancel_Click(Panel &panel);

/// Hangs the dialog's handlers on its controls. While its own run is in progress its buttons do nothing.
void connectOptionsDialog(Panel &panel);

} // namespace averaging
