#pragma once

#include "platform/event_loop_clock.h"
#include "platform/linux/ini_settings.h"
#include "platform/linux/linux_environment.h"
#include "platform/linux/linux_file_system.h"
#include "platform/linux/linux_programs.h"
#include "platform/linux/linux_registry.h"
#include "shell/panel.h"

namespace bench {

/// Answers every box at once, so that nothing waits.
class SilentDialogs : public platform::Dialogs
{
public:
    platform::Answer message(const platform::MessageBox &box) override;
    std::optional<QString> input(const platform::InputBox &box) override;
    std::optional<QString> openFile(const platform::OpenFileRequest &request) override;
    std::optional<QString> saveFile(const platform::SaveFileRequest &request) override;
    std::optional<platform::Colour> chooseColour(platform::Colour initial) override;
    bool setUpPrinter() override;
};

/// A panel on the real host, with settings of its own.
class BenchPanel
{
public:
    /// `settings` is the directory of the settings.
    explicit BenchPanel(const QString &settings);

    shell::Panel &panel() { return panel_; }
    platform::host::LinuxFileSystem &files() { return files_; }

private:
    platform::host::LinuxFileSystem files_{QByteArray()};
    platform::host::IniSettings settings_;
    platform::host::LinuxEnvironment environment_{{}, files_};
    platform::host::LinuxPrograms programs_{files_, QByteArray()};
    SilentDialogs dialogs_;
    platform::EventLoopClock clock_;
    platform::host::LinuxRegistry registry_;
    platform::Platform machine_{settings_, environment_, files_, programs_, dialogs_, clock_, registry_};
    shell::Panel panel_{machine_};
};

} // namespace bench
