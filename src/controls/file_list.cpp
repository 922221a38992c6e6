#include "controls/file_list.h"

namespace controls {

QString FileList::FileName() const
{
    return ListIndex < 0 ? QString() : List(ListIndex);
}

void FileList::show(const platform::Directory &directory)
{
    const platform::FileNames names = directory.files(Pattern);
    if (directory.path() == path_) {
        refresh(names);
        return;
    }
    path_ = directory.path();
    ListIndex = -1;
    Names = names;
}

void FileList::refresh(const platform::FileNames &names)
{
    const QString selected = FileName();
    ListIndex = -1;
    Names = names;
    if (!selected.isEmpty())
        ListIndex = names.indexOf(selected);
}

} // namespace controls
