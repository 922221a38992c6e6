#pragma once

#include "platform/runtime_error.h"
#include "shell/panel.h"

#include <initializer_list>

namespace browser {

using controls::FileList;
using shell::Panel;

/// Points `list` at the directory `path`. Raises what the platform raises; the list then stays as it was.
void pointAt(Panel &panel, FileList &list, const QString &path);

/// Points the five file lists of the data directory at it, with one pass over it. Raises as pointAt does.
void pointAtDataDir(Panel &panel);

/// Reads the directories of `lists`, each once, and shows them. Selected names stay selected, no handler
/// runs. Never raises: a directory that is gone empties its lists and is told in the status bar.
void refresh(Panel &panel, std::initializer_list<FileList *> lists,
             platform::Reading reading = platform::Reading::Anew);

/// Reads again what has changed while another window was active: the directories of all lists, and the
/// directory list. Selected names stay selected, no handler runs. Never raises.
void readChangedDirectories(Panel &panel);

/// Says in the status bar that the directory `path` cannot be read, because of `error`.
void sayUnreadable(Panel &panel, const QString &path, const platform::RuntimeError &error);

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
