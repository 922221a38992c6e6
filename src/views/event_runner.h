#pragma once

#include "controls/control.h"
#include "shell/panel.h"

#include <functional>
#include <vector>

namespace views {

/// Hands the events of widgets to the panel, in the order in which the user meant them: a click that a list
/// still holds back (an arrow key that has not come to rest) runs before anything else does.
class EventRunner
{
public:
    explicit EventRunner(shell::Panel &panel) : panel_(panel) {}

    /// Runs what is held back, then `event`.
    void run(const controls::Event &event);

    /// Runs `event` and leaves what is held back waiting: for what happens while the user is still choosing.
    void runMeanwhile(const controls::Event &event);

    /// Runs what is held back.
    void runPending();

    /// Registers a widget that may hold back a click.
    void addHolder(std::function<void()> runHeldBack) { holders_.push_back(std::move(runHeldBack)); }

    shell::Panel &panel() { return panel_; }

private:
    shell::Panel &panel_;
    std::vector<std::function<void()>> holders_;
};

} // namespace views
