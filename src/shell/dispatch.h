#pragma once

#include "shell/panel.h"

#include <exception>

namespace shell {

/// Raised inside a handler that was waiting when the main window was closed. It ends the handler silently.
class Unloaded : public std::exception
{
public:
    const char *what() const noexcept override { return "the main window was closed"; }
};

/// Runs a handler for an event. Errors that the handler does not catch itself are shown, and the panel goes
/// on: nothing ever escapes from here. An event without a handler does nothing, nor does any event once the
/// panel is unloading.
void dispatch(Panel &panel, const controls::Event &handler);

/// Lets window events run for `seconds`. Raises Unloaded when the main window is closed meanwhile.
void pause(Panel &panel, double seconds);

/// Lets the window events that are pending now run. Raises Unloaded when the main window is closed meanwhile.
void letPendingEventsRun(Panel &panel);

/// Lets the user choose a file; nothing when the dialog was cancelled. Raises Unloaded when the main window
/// is closed meanwhile.
std::optional<QString> askForFile(Panel &panel, const platform::OpenFileRequest &request);

/// Lets the user name a file to be written; nothing when the dialog was cancelled. Raises as askForFile does.
std::optional<QString> askForNewFile(Panel &panel, const platform::SaveFileRequest &request);

/// Lets the user choose a colour, `initial` being shown first; nothing when the dialog was cancelled. Raises
/// as askForFile does.
std::optional<platform::Colour> askForColour(Panel &panel, platform::Colour initial);

/// Shows a message box and gives its answer. Raises Unloaded when the main window is closed meanwhile.
platform::Answer MsgBox(Panel &panel, const platform::MessageBox &box);

/// Shows a box for a text and gives what was typed, empty when it was cancelled. Raises as MsgBox does.
QString InputBox(Panel &panel, const platform::InputBox &box);

/// Shows the box in which a printer is set up; false where the machine has no printer. Raises as MsgBox does.
bool setUpPrinter(Panel &panel);

/// Says `text` in the status bar's first panel: it never interrupts and takes no answer.
void say(Panel &panel, const QString &text);

/// The same beside what is said already, which is still worth reading.
void sayToo(Panel &panel, const QString &text);

} // namespace shell
