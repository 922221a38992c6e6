#pragma once

#include "platform/command_text.h"
#include "shell/panel.h"

namespace launcher {

using shell::Panel;

/// Starts the program `prog` with the arguments `Comm` in the data directory without waiting for it, and
/// offers its listing where `List` is not 0. `ProgName` names the listing. 0 when the start was requested, 1
/// when the program file cannot be opened.
qint16 RunProgram(Panel &panel, const QString &prog, const platform::CommandText &Comm, qint16 List);

/// Toggles "Pause after running DOS program". The menu of analysis programs reads it; the runner does not.
void mnuPause_Click(Panel &panel);

/// Toggles "Prompt to View Output".
void mnuPrompt_Click(Panel &panel);

/// Puts both output devices back to their first choice, as if the user had chosen these two items.
void mnuReset_Click(Panel &panel);

} // namespace launcher
