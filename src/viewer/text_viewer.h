#pragma once

#include "shell/panel.h"

namespace viewer {

using shell::Panel;

/// What the text viewer can complain of.
enum ViewerError : qint16 { OpeningFailed = 0, NotFound = 1, ReadingFailed = 2, NoFileName = 3 };

/// The most that the text viewer shows, in bytes of the file; a larger one goes to Notepad.
constexpr qsizetype TextBoxCapacity = qsizetype(16) * 1024 * 1024;

/// Loading: the small font, the desktop's colours, and a place that is in the middle of the screen for the
/// width that the window has before it is widened; that order is meant.
void Form_Load(Panel &panel);

/// The window has become active: it shows what `ViewerFile` names. A file that cannot be read goes to
/// Notepad.
void Form_Activate(Panel &panel);

/// Fits the text box into the window, unless that is minimized.
void Form_Resize(Panel &panel);

/// Lets the user choose another file and shows it.
void mnuOpen_Click(Panel &panel);

/// Hides the window, which keeps its font and colours, and makes the data directory the current one.
void mnuExit_Click(Panel &panel);

/// Chooses the font's size; the text is bold from then on, and that is meant.
void mnuFontSizesItem_Click(Panel &panel, int index);

/// Chooses the background, the text's colour, or the classic black on white. A colour in which the text would
/// vanish is not taken.
void mnuColours_Click(Panel &panel, int index);

/// Says what went wrong and hides the viewer.
void ReportViewerError(Panel &panel, qint16 index);

} // namespace viewer
