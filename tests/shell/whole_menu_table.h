#pragma once

#include <QStringList>

#include <vector>

// What every command of the panel does, written out.
//
// A row is the name of an item or a button, and then its effects with "; " between them, on the same line or
// on indented lines below. What happens comes in its order:
//
//     start FILE |PARAMETERS| in DIRECTORY, SHOW
//         A direct start, documents in <>. With "open", "Open" or "explore" in its place, the operating
//         system's own.
//     box ICON BUTTONS [TITLE] TEXT
//         A message. No title is the application's; ^ is a line feed, ~ a carriage return.
//     choose NAME in DIRECTORY [TITLE] INDEX of FILTER
//         A dialog for a file; "save" for a new one.
//     input [TITLE] PROMPT
//         A box for a text.
//     store ADDRESS "VALUE", pause SECONDS, events, printer, end
//         A setting, the pause of a run, pending events let run, the printer's set-up, the program's end.
//
// What changes for good comes in any order: show, hide, check, uncheck, enable and grey; add and remove
// (files of the data directory); refresh (lists that now show what is new); variables with their new values.
// "nothing" is a command without any effect. Three words stand for more:
//
//     runs NAME |PARAMETERS|
//         The program runner starts that program of the package, and its listing goes to a file.
//     offers NAME
//         The runner offers that program's listing, and the user looks at it.
//     missing PATH
//         The box of a file that is not there.

namespace whole_menu {

/// One row of a table.
struct Row
{
    QString name;
    QStringList effects;
};

/// Every item, where a trial is chosen and all that the items need is there; all questions are answered so
/// that the command goes on, and dialogs choose a file.
std::vector<Row> itemsWithEverything();
/// Every item, where the data directory and the program directory are empty; dialogs are cancelled.
std::vector<Row> itemsWithNothing();

/// The buttons in the same two places.
std::vector<Row> buttonsWithEverything();
std::vector<Row> buttonsWithNothing();

/// The menus that do something when they open, in the same two places. Of each array of items there is what
/// becomes of every item: + is enabled, x is greyed, . is left as it was; "marks" the same of check marks.
std::vector<Row> menusWithEverything();
std::vector<Row> menusWithNothing();

/// Who is visible after a command: D data files, M models, B binary files, O outputs, P plots, T graph types;
/// of the graph buttons C create, S select the type, E edit it.
struct Visibility
{
    const char *command;
    const char *everythingFromAllShown;
    const char *everythingFromAllHidden;
    const char *nothingFromAllShown;
    const char *nothingFromAllHidden;
};

/// What the commands leave visible that show and hide lists, or could.
std::vector<Visibility> visibilities();

} // namespace whole_menu
