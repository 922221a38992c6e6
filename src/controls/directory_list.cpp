#include "controls/directory_list.h"

#include "platform/letter_case.h"
#include "platform/path_language.h"

#include <algorithm>

namespace controls {

QString DirList::RowText(int row) const
{
    if (row == 0)
        return platform::LCase(ancestry_.value(0));
    return row < ancestry_.size() ? platform::nameOf(ancestry_.at(row))
                                  : Folders.value().at(row - static_cast<int>(ancestry_.size()));
}

int DirList::RowLevel(int row) const
{
    return std::min(row, static_cast<int>(ancestry_.size()));
}

QString DirList::RowPath(int row) const
{
    return row < ancestry_.size() ? ancestry_.at(row) : platform::joinPath(path_, RowText(row));
}

void DirList::show(const platform::Directory &directory)
{
    const bool same = directory.path() == path_;
    const int ancestorRow = ListIndex;
    const QString folder = same && ListIndex > OpenedRow() ? RowText(ListIndex) : QString();

    ListIndex = -1;
    path_ = directory.path();
    ancestry_.clear();
    for (QString ancestor = path_;; ancestor = platform::parentOf(ancestor)) {
        ancestry_.prepend(ancestor);
        if (platform::parentOf(ancestor) == ancestor)
            break;
    }
    Folders = directory.folders();

    const int folderRow = folder.isEmpty() ? -1 : Folders.value().indexOf(folder);
    if (folderRow >= 0)
        ListIndex = OpenedRow() + 1 + folderRow;
    else
        ListIndex = same && folder.isEmpty() && ancestorRow >= 0 ? ancestorRow : OpenedRow();
}

void DirList::showGone()
{
    const int row = std::min<int>(ListIndex, OpenedRow());
    ListIndex = -1;
    Folders = platform::FileNames();
    ListIndex = row;
}

} // namespace controls
