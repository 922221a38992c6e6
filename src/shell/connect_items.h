#pragma once

#include "shell/panel.h"

namespace shell {

/// Hangs one handler on all items of a menu array; it is told the index of the one that was clicked.
template <typename Items>
void connectItems(Panel &panel, Items &items, void (*click)(Panel &, int))
{
    for (int i = 0; i < static_cast<int>(items.size()); ++i)
        items[static_cast<size_t>(i)].Click = [&panel, click, i] { click(panel, i); };
}

} // namespace shell
