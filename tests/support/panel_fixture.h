#pragma once

#include "recording_platform.h"
#include "shell/panel.h"

#include <gtest/gtest.h>

#include <initializer_list>

namespace support {

/// A panel on the recording platform: the package is in C:\KINOVRA, the current directory is C:\DATA, the
/// screen is 1024 by 768 pixels, and all handlers are connected. A test sets up files, clicks, and reads.
class PanelFixture : public testing::Test
{
protected:
    PanelFixture();

    /// Loads the main window as a start with the given command line does.
    void start(const QString &commandLine = {});

    /// The same, then forgets what was recorded.
    void load(const QString &commandLine = {});

    /// Adds a file anywhere.
    void addFile(const QString &path, const QByteArray &content = "x")
    {
        machine.files.addFile(path, content);
    }

    /// Adds empty files to C:\DATA.
    void addData(std::initializer_list<const char *> names);

    /// Opens a directory as the user does.
    void open(const QString &path);

    /// Selects the row of `name` and clicks it. Fails the test where the list does not show it.
    void click(controls::FileList &list, const QString &name);
    void doubleClick(controls::FileList &list, const QString &name);

    void click(const controls::Button &button);
    void click(const controls::MenuItem &item);
    void openMenu(const controls::MenuItem &menu);

    /// Forgets messages, dialogs, starts, settings written and pauses.
    void forget();

    /// The texts of the messages since the last forget().
    QStringList messages() const;

    RecordingPlatform machine;
    shell::Panel panel{machine.platform};
    shell::Kinovra &kinovra = panel.kinovra;
    shell::frmKinovra &frm = panel.frm;
};

} // namespace support
