#include "views/event_runner.h"

#include "shell/dispatch.h"

namespace views {

void EventRunner::run(const controls::Event &event)
{
    runPending();
    shell::dispatch(panel_, event);
}

void EventRunner::runMeanwhile(const controls::Event &event)
{
    shell::dispatch(panel_, event);
}

void EventRunner::runPending()
{
    for (const auto &runHeldBack : holders_)
        runHeldBack();
}

} // namespace views
