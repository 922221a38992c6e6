#pragma once

#include "shell/main_window.h"

#include <functional>
#include <vector>

namespace shell {

/// One row of the menu tree: an item, a menu, or a separator.
struct MenuRow
{
    int depth;       ///< 0 in the menu bar
    QString name;    ///< name of the item or of its array; empty for a separator
    int index;       ///< place in the array, -1 for a single item
    QString caption; ///< with "&" before the access key
    std::function<controls::MenuItem &(frmKinovra &)> item;

    bool isSeparator() const { return name.isEmpty(); }
};

/// The whole menu tree in menu order. A row whose successor is deeper is a menu.
const std::vector<MenuRow> &menuTree();

} // namespace shell
