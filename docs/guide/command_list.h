#pragma once

#include <QString>
#include <QStringList>

namespace guide {

/// The guide's tables of commands, and what keeps them from being complete.
struct CommandTables
{
    QString text; ///< in Markdown
    QStringList problems;
};

/// The menus and buttons as tables, with the descriptions of commands.txt: a line each, of the item's name,
/// what it does and what it needs, between bars.
CommandTables commandTables(const QString &descriptions);

} // namespace guide
