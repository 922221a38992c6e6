#pragma once

#include "controls/window.h"
#include "platform/platform.h"
#include "shell/about_window.h"
#include "shell/average_window.h"
#include "shell/kinovra.h"
#include "shell/main_window.h"
#include "shell/viewer_window.h"

#include <vector>

namespace shell {

/// A program that the panel has started and has not seen end.
struct RunningProgram
{
    double value;    ///< what its start gave
    QString name;    ///< as the user knows it, such as "KINEMATI"
    bool isProgram;  ///< it was started itself, and not for a document or a web address
    QString listing; ///< full path of the listing it may write; empty for none
    std::optional<platform::FileStamp> listingBefore; ///< the listing at the moment of the start
};

/// Everything that a command works on: plain state and the machine. Every handler takes it.
struct Panel
{
    explicit Panel(platform::Platform &machine) : platform(machine) {}

    Kinovra kinovra;
    frmKinovra frm;
    frmAbout about;
    frmViewer viewer;
    frmNewAverage newAverage;
    controls::Screen screen;
    std::vector<RunningProgram> running;
    bool unloading = false; ///< the main window has been closed: every waiting handler ends silently
    platform::Platform &platform;

    struct Parts
    {
        Kinovra &kinovra;
        frmKinovra &frm;
        platform::Platform &platform;
    };

    /// What most handlers need, for a structured binding.
    Parts parts() { return {kinovra, frm, platform}; }
};

} // namespace shell
