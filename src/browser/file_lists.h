#pragma once

#include "shell/panel.h"

#include <initializer_list>

namespace browser {

using controls::FileList;
using shell::Panel;

/// Points `list` at the directory `path`. Raises what the platform raises; the list then stays as it was.
void pointAt(Panel &panel, FileList &list, const QString &path);

/// Points the five file lists of the data directory at it, with one pass over it. Raises as pointAt does.
void pointAtDataDir(Panel &panel);

/// Reads the directory of `lists` anew, once, and shows it in all of them; they must show the same directory.
/// Selected names stay selected, no handler runs. Never raises: a directory that is gone empties the lists
/// and is told in the status bar.
void refresh(Panel &panel, std::initializer_list<FileList *> lists);

/// Shows the open directory's sub-directories as they are now. No handler runs. Never raises.
void refreshDirectoryList(Panel &panel);

/// Refreshes the lists in which results show up: binaries, outputs, plots.
void refreshResultLists(Panel &panel);

/// Says in the status bar which binary file is chosen now: a command has changed it, and not the user's
/// click.
void sayBinaryFile(Panel &panel);

/// Hides the three graph buttons, in whose place the graph types are shown. Where none are shown, the status
/// bar says how the buttons come back.
void hideGraphButtons(Panel &panel);

/// The Refresh button and Ctrl+R: shows and refreshes all lists.
void cmdRefresh_Click(Panel &panel);

/// A click in the graph-type list ends the choice of a graph type.
void filGraFiles_Click(Panel &panel);

/// A released right button (2) cancels the choice of a graph type.
void filGraFiles_MouseUp(Panel &panel, int button);

} // namespace browser
