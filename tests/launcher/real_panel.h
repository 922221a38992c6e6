#pragma once

#include "platform/linux/linux_environment.h"
#include "platform/linux/linux_programs.h"
#include "platform/linux/linux_registry.h"
#include "recording_platform.h"
#include "shell/panel.h"

#include <vector>

namespace launcher_tests {

/// The host's starter, which also keeps what became of every start.
class KeptPrograms : public platform::host::LinuxPrograms
{
public:
    using LinuxPrograms::LinuxPrograms;

    platform::StartResult start(const platform::Start &start) override;

    std::vector<platform::StartResult> results;
};

/// A panel on the host and its user. Files, programs and environment are real; the dialogs, the clock and the
/// settings are recording ones.
class RealPanel
{
public:
    /// Starts the panel with the host's arguments.
    explicit RealPanel(const QList<QByteArray> &commandLine);

    /// Does what a sentence says: "choose (captions of a menu and its item)", "look at (caption of a menu)",
    /// "press (caption of a button)", "tick" and "clear" (caption of a box), "click" and "double-click (name)
    /// in (caption of a list)", "open (a directory below)". Fails the test where the user could not.
    void act(const QString &sentence);

    void click(const QString &name, const QString &list);
    void doubleClick(const QString &name, const QString &list);
    void open(const QString &directory);

    /// The user will choose this file of the host in the next dialog.
    void willChoose(const QByteArray &directory, const QByteArray &name);

    /// Waits until all started programs have ended.
    void waitForEnds() const;

    platform::host::LinuxFileSystem files{QByteArray()};
    platform::host::LinuxEnvironment environment;
    KeptPrograms programs{files, QByteArray()};
    platform::host::LinuxRegistry registry;
    support::RecordingSettings settings;
    support::RecordingDialogs dialogs;
    support::RecordingClock clock;
    platform::Platform machine{settings, environment, files, programs, dialogs, clock, registry};
    shell::Panel panel{machine};

private:
    const controls::MenuItem *openTheWayTo(const QStringList &captions);
    void choose(const QStringList &captions);
    void press(const QString &caption);
    void tick(const QString &caption, bool value);
    controls::FileList *select(const QString &name, const QString &list);
};

} // namespace launcher_tests
