#pragma once

#include "panel_fixture.h"
#include "shell/menu_tree.h"

namespace whole_menu {

/// Where a command is tried; the tables say what is in either place.
enum class Place { WithEverything, WithNothing };

/// The name of an item as the tables have it: "mnuExit", "mnuOpen(0)".
QString nameOf(const shell::MenuRow &row);

/// The names of all buttons.
QStringList buttonNames();

/// A panel of its own for one command. It records what the command does, and answers it so that it goes on.
class FreshPanel : public support::PanelFixture
{
public:
    explicit FreshPanel(Place place);

    /// Clicks the item or the button `name`; what that did, as the tables put it.
    QStringList effectsOfClick(const QString &name);

    /// Enables and checks all items, or none; opens the menu `name`; what that did.
    QStringList effectsOfOpening(const QString &name, bool before);

    /// Whether the menu `name` has a handler for its opening.
    bool doesSomethingOnOpening(const QString &name);

    /// Whether the menu `name` says that it would raise a box if it opened now.
    bool asksOnOpening(const QString &name);

    /// Shows all lists and the graph buttons, or none; clicks the item or the button `name`; who is visible
    /// then.
    QString visibleAfterClick(const QString &name, bool shown);

    /// What the items called `name` are, one after the other: + enabled (or checked), x not.
    QString statesOf(const QString &name, QProperty<bool> controls::MenuItem::*property);

    /// Lets every start fail from now on.
    void letStartsFail();

    QString statusBar() const;

private:
    struct State;

    void TestBody() override {}

    void addFiles(const QString &path, const char *names);
    void bringEverything();
    void bringNothing();
    void setShown(bool shown);
    void recordEffects();
    void answer(const platform::MessageBox &box);
    void choose();
    template <typename Records>
    void take(Records &records);
    void takeNews();
    controls::MenuItem &itemCalled(const QString &name);
    const controls::Event &clickOf(const QString &name);
    QStringList effectsOf(const controls::Event &event);
    State state();
    QStringList filesOfDataDirectory();
    void addVisible(QStringList &names) const;
    void addItems(State &state);
    void addVariables(State &state);
    void addChanges(const State &before, const State &after);
    void addDifference(const QString &verb, const QStringList &names, const QStringList &without);

    bool withEverything_;
    QStringList effects_;
};

} // namespace whole_menu
