// Whether the guide's tables of commands are those of the menus, and how they are made.

#include "command_list.h"
#include "printing.h"

#include <QFile>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

QString textIn(const QString &name)
{
    QFile file(QStringLiteral(KINOVRA_SOURCES "/docs/guide/") + name);
    EXPECT_TRUE(file.open(QFile::ReadOnly)) << name.toStdString();
    return QString::fromUtf8(file.readAll()).remove(u'\r');
}

// As on the way into the file, without the problems of all that is not described here.
QString tablesOf(const QString &descriptions)
{
    return guide::commandTables(descriptions).text;
}

QStringList problemsWith(const QString &lines)
{
    return guide::commandTables(textIn(u"commands.txt"_s) + lines).problems;
}

} // namespace

TEST(GuideCommands, are_those_of_the_menus_and_of_commands_txt)
{
    const guide::CommandTables tables = guide::commandTables(textIn(u"commands.txt"_s));
    EXPECT_EQ(tables.problems, QStringList());
    // cmake --build ... --target guide_commands writes it anew.
    EXPECT_TRUE(tables.text == textIn(u"commands.md"_s)) << "docs/guide/commands.md is not up to date";
}

TEST(GuideCommands, show_captions_without_access_keys)
{
    const QString tables = tablesOf(u"mnuOpen(0) | Opens. | A disk\nmnuOpen(3) | Explores.\n"_s);
    EXPECT_TRUE(tables.startsWith(u"### File (Alt+F)\n"));
    EXPECT_TRUE(tables.contains(u"| Open a directory | O | Opens. | A disk |\n"));
    EXPECT_TRUE(tables.contains(u"| Explore current directory |  | Explores. |  |\n"));
    EXPECT_TRUE(tables.contains(u"| AVI & MPEG files | A |"));
    EXPECT_TRUE(tables.contains(u"| › to B&W HP Deskjet (5) | B |"));
    EXPECT_TRUE(tables.contains(u"### Settings (Alt+S)\n"));
}

TEST(GuideCommands, mark_menus_their_levels_and_keys_that_items_share)
{
    const QString tables = tablesOf(QString());
    EXPECT_TRUE(tables.contains(u"### Model (Alt+M*)\n"));
    EXPECT_TRUE(tables.contains(u"| Explorer | E* |"));
    EXPECT_TRUE(tables.contains(u"| **Convert data ...** | C |"));
    EXPECT_TRUE(tables.contains(u"| › **Ariel Dynamics ...** | A |"));
    EXPECT_TRUE(tables.contains(u"| › › 3D | D |"));
}

TEST(GuideCommands, give_buttons_the_keys_that_no_menu_has)
{
    const QString tables = tablesOf(u"cmdExit | Ends.\n"_s);
    EXPECT_TRUE(tables.endsWith(u"| Exit | X | Ends. |  |\n"));
    EXPECT_TRUE(tables.contains(u"| .CFB Editor | E* |"));
    EXPECT_TRUE(tables.contains(u"| Refresh File Lists |  |"));
    EXPECT_TRUE(tables.contains(u"| Select Type of Graph |  |"));
}

TEST(GuideCommands, are_refused_with_an_item_that_nothing_describes)
{
    QString descriptions = textIn(u"commands.txt"_s);
    descriptions.replace(u"\nmnuExit |"_s, u"\n# mnuExit |"_s);
    EXPECT_EQ(guide::commandTables(descriptions).problems, QStringList(u"mnuExit has no description."_s));
}

TEST(GuideCommands, are_refused_with_a_description_of_nothing)
{
    EXPECT_EQ(problemsWith(u"mnuOpen(4) | Opens another one.\n"_s),
              QStringList(u"There is no mnuOpen(4) to describe."_s));
}

TEST(GuideCommands, are_refused_with_lines_that_are_none)
{
    EXPECT_EQ(
        problemsWith(u"mnuRun | Runs. | Legs\nmnuRun\nmnuRun | | Legs\nmnuRun | Runs. | Legs | Shoes\n"_s),
        (QStringList{
            u"mnuRun is described twice."_s, u"This is not a name, what it does and what it needs: mnuRun"_s,
            u"This is not a name, what it does and what it needs: mnuRun | | Legs"_s,
            u"This is not a name, what it does and what it needs: mnuRun | Runs. | Legs | Shoes"_s}));
}
