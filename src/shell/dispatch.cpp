#include "shell/dispatch.h"

#include "platform/runtime_error.h"

using namespace Qt::StringLiterals;

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

// Events have run: nothing that was known before need be so still.
void goOn(const Panel &panel)
{
    if (panel.unloading)
        throw Unloaded();
    panel.platform.files.nextMoment();
}

/// The moment of a handler.
class HandlersMoment
{
public:
    explicit HandlersMoment(platform::FileSystem &files) : files_(files) { files_.beginMoment(); }
    ~HandlersMoment() { files_.endMoment(); }
    HandlersMoment(const HandlersMoment &) = delete;
    HandlersMoment &operator=(const HandlersMoment &) = delete;

private:
    platform::FileSystem &files_;
};

} // namespace

void dispatch(Panel &panel, const controls::Event &handler)
{
    if (!handler || panel.unloading)
        return;
    const HandlersMoment moment(panel.platform.files);
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
    goOn(panel);
}

void letPendingEventsRun(Panel &panel)
{
    panel.platform.clock.letPendingEventsRun();
    goOn(panel);
}

platform::Answer MsgBox(Panel &panel, const platform::MessageBox &box)
{
    const platform::Answer answer = panel.platform.dialogs.message(box);
    goOn(panel);
    return answer;
}

QString InputBox(Panel &panel, const platform::InputBox &box)
{
    const auto typed = panel.platform.dialogs.input(box);
    goOn(panel);
    return typed.value_or(QString());
}

bool setUpPrinter(Panel &panel)
{
    const bool wasShown = panel.platform.dialogs.setUpPrinter();
    goOn(panel);
    return wasShown;
}

std::optional<QString> askForFile(Panel &panel, const platform::OpenFileRequest &request)
{
    auto chosen = panel.platform.dialogs.openFile(request);
    goOn(panel);
    return chosen;
}

std::optional<QString> askForNewFile(Panel &panel, const platform::SaveFileRequest &request)
{
    auto chosen = panel.platform.dialogs.saveFile(request);
    goOn(panel);
    return chosen;
}

std::optional<platform::Colour> askForColour(Panel &panel, platform::Colour initial)
{
    auto chosen = panel.platform.dialogs.chooseColour(initial);
    goOn(panel);
    return chosen;
}

void say(Panel &panel, const QString &text)
{
    panel.frm.StatusBar1.Panel1 = text;
}

void sayToo(Panel &panel, const QString &text)
{
    const QString said = panel.frm.StatusBar1.Panel1;
    const QString between = said.endsWith(u'.') ? u" "_s : u". "_s;
    say(panel, said.isEmpty() ? text : said + between + text);
}

} // namespace shell
