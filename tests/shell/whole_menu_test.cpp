// Every command of the panel, each on a panel of its own, against a table of what it does.

#include "printing.h"
#include "shell/menu_tree.h"
#include "whole_menu_panel.h"
#include "whole_menu_table.h"

#include <gtest/gtest.h>

#include <algorithm>

using namespace Qt::StringLiterals;
using shell::menuTree;
using whole_menu::FreshPanel;
using whole_menu::nameOf;
using whole_menu::Place;
using whole_menu::Row;

namespace {

bool isMenu(size_t row)
{
    const auto &rows = menuTree();
    return row + 1 < rows.size() && rows[row + 1].depth > rows[row].depth;
}

QStringList namesOf(const std::vector<Row> &rows)
{
    QStringList names;
    for (const Row &row : rows)
        names.append(row.name);
    return names;
}

bool isOneOf(const QString &effect, std::initializer_list<QStringView> words)
{
    return std::find(words.begin(), words.end(), effect.section(u' ', 0, 0)) != words.end();
}

QStringList only(QStringList effects, std::initializer_list<QStringView> words)
{
    effects.removeIf([words](const QString &effect) { return !isOneOf(effect, words); });
    return effects;
}

// What happened, in its order, and then what has changed, in any.
QString comparable(QStringList effects)
{
    const auto happened = [](const QString &effect) {
        return isOneOf(effect, {u"start", u"open", u"Open", u"explore", u"box", u"choose", u"save", u"input",
                                u"printer", u"pause", u"events", u"store", u"end"});
    };
    std::sort(std::stable_partition(effects.begin(), effects.end(), happened), effects.end());
    return effects.join(u'\n');
}

void expectEffects(const std::vector<Row> &rows, Place place)
{
    for (const Row &row : rows) {
        EXPECT_EQ(comparable(FreshPanel(place).effectsOfClick(row.name)), comparable(row.effects))
            << row.name.toStdString();
    }
}

// Of a menu that has opened twice, with all items on before and with all off: an item that is the same now
// was set, any other was left alone.
QString becameOf(QString on, const QString &off)
{
    for (qsizetype i = 0; i < on.size(); ++i) {
        if (on[i] != off[i])
            on[i] = u'.';
    }
    return on;
}

// All effects but those on items, which are told for each array as a whole.
QStringList besideItems(QStringList effects)
{
    effects.removeIf([](const QString &effect) {
        return isOneOf(effect, {u"enable", u"grey", u"check", u"uncheck"});
    });
    return effects;
}

QStringList effectsOfOpening(const QString &menu, Place place)
{
    FreshPanel on(place);
    FreshPanel off(place);
    QStringList effects = besideItems(on.effectsOfOpening(menu, true));
    EXPECT_EQ(besideItems(off.effectsOfOpening(menu, false)), effects) << menu.toStdString();
    QStringList arrays;
    for (const shell::MenuRow &row : menuTree()) {
        if (!row.isSeparator() && !arrays.contains(row.name))
            arrays.append(row.name);
    }
    const auto states = [&](const QString &array, QProperty<bool> controls::MenuItem::*property) {
        return becameOf(on.statesOf(array, property), off.statesOf(array, property));
    };
    for (const QString &array : arrays) {
        const QString enabled = states(array, &controls::MenuItem::Enabled);
        if (enabled.count(u'.') < enabled.size())
            effects.append(array + u' ' + enabled);
        const QString checked = states(array, &controls::MenuItem::Checked);
        if (checked.count(u'.') < checked.size())
            effects.append(u"marks "_s + array + u' ' + checked);
    }
    return effects;
}

void expectEffectsOfOpening(const std::vector<Row> &rows, Place place)
{
    for (const Row &row : rows) {
        EXPECT_EQ(comparable(effectsOfOpening(row.name, place)), comparable(row.effects))
            << row.name.toStdString();
        EXPECT_EQ(FreshPanel(place).asksOnOpening(row.name), !only(row.effects, {u"box"}).isEmpty())
            << row.name.toStdString();
    }
}

} // namespace

TEST(WholeMenu, has_a_row_in_the_table_for_every_command_and_every_menu_that_does_something)
{
    FreshPanel fresh(Place::WithNothing);
    QStringList items;
    QStringList menus;
    const auto &rows = menuTree();
    for (size_t i = 0; i < rows.size(); ++i) {
        if (rows[i].isSeparator())
            continue;
        if (!isMenu(i))
            items.append(nameOf(rows[i]));
        if (fresh.doesSomethingOnOpening(nameOf(rows[i])))
            menus.append(nameOf(rows[i]));
    }
    EXPECT_EQ(namesOf(whole_menu::itemsWithEverything()), items);
    EXPECT_EQ(namesOf(whole_menu::itemsWithNothing()), items);
    EXPECT_EQ(namesOf(whole_menu::menusWithEverything()), menus);
    EXPECT_EQ(namesOf(whole_menu::menusWithNothing()), menus);
    EXPECT_EQ(namesOf(whole_menu::buttonsWithEverything()), whole_menu::buttonNames());
    EXPECT_EQ(namesOf(whole_menu::buttonsWithNothing()), whole_menu::buttonNames());
}

TEST(WholeMenu, items_do_what_they_are_for_where_everything_is_there)
{
    expectEffects(whole_menu::itemsWithEverything(), Place::WithEverything);
}

TEST(WholeMenu, items_do_what_they_can_where_nothing_is_there)
{
    expectEffects(whole_menu::itemsWithNothing(), Place::WithNothing);
}

TEST(WholeMenu, buttons_do_what_they_are_for_where_everything_is_there)
{
    expectEffects(whole_menu::buttonsWithEverything(), Place::WithEverything);
}

TEST(WholeMenu, buttons_do_what_they_can_where_nothing_is_there)
{
    expectEffects(whole_menu::buttonsWithNothing(), Place::WithNothing);
}

TEST(WholeMenu, menus_enable_what_is_there_as_they_open)
{
    expectEffectsOfOpening(whole_menu::menusWithEverything(), Place::WithEverything);
}

TEST(WholeMenu, menus_grey_what_is_not_there_as_they_open)
{
    expectEffectsOfOpening(whole_menu::menusWithNothing(), Place::WithNothing);
}

TEST(WholeMenu, commands_tell_of_a_failed_start_in_the_status_bar_alone)
{
    std::vector<Row> rows = whole_menu::itemsWithEverything();
    for (const Row &row : whole_menu::buttonsWithEverything())
        rows.push_back(row);
    for (const Row &row : rows) {
        FreshPanel fresh(Place::WithEverything);
        fresh.letStartsFail();
        EXPECT_EQ(only(fresh.effectsOfClick(row.name), {u"box"}), only(row.effects, {u"box"}))
            << row.name.toStdString();
        const bool starts = !only(row.effects, {u"start", u"open", u"Open", u"explore"}).isEmpty();
        EXPECT_EQ(fresh.statusBar().contains(u"it was not found"), starts) << row.name.toStdString();
    }
}

TEST(WholeMenu, commands_show_and_hide_the_lists_and_graph_buttons_as_the_table_says)
{
    for (const auto &row : whole_menu::visibilities()) {
        const auto visible = [&row](Place place, bool shown) {
            return FreshPanel(place).visibleAfterClick(QLatin1String(row.command), shown);
        };
        EXPECT_EQ(visible(Place::WithEverything, true), QLatin1String(row.everythingFromAllShown))
            << row.command;
        EXPECT_EQ(visible(Place::WithEverything, false), QLatin1String(row.everythingFromAllHidden))
            << row.command;
        EXPECT_EQ(visible(Place::WithNothing, true), QLatin1String(row.nothingFromAllShown)) << row.command;
        EXPECT_EQ(visible(Place::WithNothing, false), QLatin1String(row.nothingFromAllHidden)) << row.command;
    }
}
