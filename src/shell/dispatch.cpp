#include "shell/dispatch.h"

#include "platform/runtime_error.h"

namespace shell {

namespace {

void report(Panel &panel, const QString &description) noexcept
{
    try {
        MsgBox(panel, {description, platform::Icon::Exclamation});
    } catch (...) {
        // The box itself has failed, or the panel is ending: there is nobody left to tell.
    }
}

void endIfUnloading(const Panel &panel)
{
    if (panel.unloading)
        throw Unloaded();
}

} // namespace

void dispatch(Panel &panel, const controls::Event &handler)
{
    if (!handler || panel.unloading)
        return;
    try {
        handler();
    } catch (const Unloaded &) {
        // Closing the window ends every waiting handler without a word.
    } catch (const platform::RuntimeError &error) {
        report(panel, error.Description);
    } catch (const std::exception &error) {
        report(panel, QString::fromUtf8(error.what()));
    }
}

void pause(Panel &panel, double seconds)
{
    platform::Clock &clock = panel.platform.clock;
    clock.letEventsRunUntil(clock.seconds() + seconds);
    endIfUnloading(panel);
}

platform::Answer MsgBox(Panel &panel, const platform::MessageBox &box)
{
    const platform::Answer answer = panel.platform.dialogs.message(box);
    endIfUnloading(panel);
    return answer;
}

void say(Panel &panel, const QString &text)
{
    panel.frm.StatusBar1.Panel1 = text;
}

} // namespace shell
