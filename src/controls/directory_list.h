#pragma once

#include "controls/control.h"
#include "platform/directory.h"

#include <QStringList>

namespace controls {

/// A directory list: every ancestor, each a level deeper, then the open directory, then its sub-directories.
/// One click highlights a row; opening a row is the command's to decide.
struct DirList : Control
{
    QProperty<platform::FileNames> Folders; ///< the sub-directories of the open directory
    QProperty<int> ListIndex{-1};           ///< the highlighted row
    QProperty<int> Height{3500};            ///< twips

    std::function<void(int row)> OpenRow; ///< a row was double-clicked, or chosen with Enter

    /// The open directory; a trailing backslash only at a root.
    QString Path() const { return path_; }

    int RowCount() const { return static_cast<int>(ancestry_.size()) + Folders.value().count(); }
    QString RowText(int row) const;
    int RowLevel(int row) const;
    QString RowPath(int row) const;

    /// The row of the open directory.
    int OpenedRow() const { return static_cast<int>(ancestry_.size()) - 1; }

    /// Shows `directory` as the open one and highlights its row; again the same one, keeps the highlighted
    /// row.
    void show(const platform::Directory &directory);

    /// Shows the open directory without its sub-directories: it can no longer be read.
    void showGone();

private:
    QString path_;
    QStringList ancestry_; ///< paths from the root to the open directory
};

} // namespace controls
