#pragma once

#include "controls/control.h"
#include "platform/directory.h"

namespace controls {

/// A list of the files of one directory that match a pattern.
struct FileList : Control
{
    QString Pattern;
    QProperty<platform::FileNames> Names;
    QProperty<int> ListIndex{-1}; ///< the selected row, -1 for none

    Event Click;
    Event DblClick;
    Event GotFocus;
    std::function<void(int button)> MouseUp; ///< button 1 left, 2 right

    QString Path() const { return path_; }
    int ListCount() const { return Names.value().count(); }

    /// The name in row `row`.
    QString List(int row) const { return Names.value().at(row); }

    /// The selected name; empty where none is selected.
    QString FileName() const;

    /// Shows what `directory` holds. A new directory selects nothing; the same one again is a refresh.
    void show(const platform::Directory &directory);

    /// Shows `names` of the same directory. The selected name stays selected while it is still there; no
    /// event runs.
    void refresh(const platform::FileNames &names);

private:
    QString path_;
};

} // namespace controls
