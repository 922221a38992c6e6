#include "help/updates.h"

#include "launcher/starting.h"
#include "platform/path_language.h"
#include "shell/dispatch.h"
#include "shell/shut_down.h"

#include <QUrl>

using namespace Qt::StringLiterals;

namespace help {

namespace {

using platform::Buttons;
using platform::Icon;

platform::Answer ask(Panel &panel, const QString &text, Buttons buttons, const QString &title)
{
    const platform::Answer answer = shell::MsgBox(panel, {text, Icon::Question, buttons, title});
    panel.kinovra.TaskId = answer;
    return answer;
}

// The package's software folder, which holds its home page, and in it the file of the program that was run
// last: a name and nothing else, whatever it holds.
QString downloadAddress(const shell::Kinovra &kinovra)
{
    const QString folder = kinovra.WebHome.left(kinovra.WebHome.lastIndexOf(u'/') + 1);
    const QString name = platform::nameOf(kinovra.ProgName);
    const bool isFile = name != u"." && name != u"..";
    return isFile ? folder + QString::fromLatin1(QUrl::toPercentEncoding(name)) : folder;
}

void download(Panel &panel, const QString &exitTitle)
{
    auto [kinovra, frm, platform] = panel.parts();

    const platform::Answer exit = ask(panel,
                                      u"To use the new version you must exit and reload "_s + kinovra.ProgName
                                          + u".\r\n\r\nDo you want to exit now?"_s,
                                      Buttons::YesNo, exitTitle);
    // Whatever the answer; that is meant.
    kinovra.TaskId = launcher::openAddress(panel, downloadAddress(kinovra), kinovra.ProgDir);
    if (exit == platform::Yes)
        shell::Form_Unload(panel);
}

} // namespace

void checkForUpdate(Panel &panel)
{
    auto [kinovra, frm, platform] = panel.parts();

    const platform::Answer answer =
        ask(panel,
            u"The current version of "_s + kinovra.ProgName + u" is "_s + kinovra.VersionText
                + u".\r\n\r\nDo you want download a new version?\r\n\r\n"
                  "Press Yes to download now or No to continue using the current version."_s,
            Buttons::YesNo, u"Update "_s + kinovra.ProgName + u" Yes/No?"_s);
    if (answer == platform::Yes)
        download(panel, u"Exit?"_s);
}

void cmdUpgrade_Click(Panel &panel)
{
    const platform::Answer answer =
        ask(panel,
            u"Do you want download a new version from the web?\r\n\r\n"
            "Press OK to download now or press Cancel to continue using this version ["_s
                + panel.kinovra.VersionText + u"]."_s,
            Buttons::OKCancel, u"Exit or Continue?"_s);
    if (answer == platform::OK)
        download(panel, u"Exit Program?"_s);
}

void cmdWebsite_Click(Panel &panel)
{
    panel.kinovra.TaskId = launcher::openAddress(panel, panel.kinovra.WebHome, QString());
}

} // namespace help
