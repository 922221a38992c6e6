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

    /// Leaves "(before)" or -1 in what commands share, as an earlier command may have left something: what a
    /// command must not touch still has it afterwards.
    void mark();

    /// Expects of all that mark() has left that only these have changed, by their names; "lblCommand" for its
    /// caption and visibility.
    void expectMarkedBut(const QStringList &changed);

    /// Of the files `trial` + extension in C:\DATA, those of `present` are there and no other of `all`;
    /// extensions stand between blanks.
    void haveOnly(const QString &trial, const char *all, const char *present);

    /// The index of every item of a menu array that is enabled, "x" for one that is greyed out: "01xx4".
    template <typename Items>
    static QString enabledOf(const Items &items)
    {
        QString result;
        for (size_t i = 0; i < items.size(); ++i)
            result += items[i].Enabled ? QChar(u'0' + static_cast<int>(i)) : u'x';
        return result;
    }

    /// The window comes back from another one.
    void comeBack(const controls::Window &window);

    /// Forgets messages, dialogs, starts, settings written and pauses.
    void forget();

    /// The texts of the messages since the last forget().
    QStringList messages() const;

    RecordingPlatform machine;
    shell::Panel panel{machine.platform};
    shell::Kinovra &kinovra = panel.kinovra;
    shell::frmKinovra &frm = panel.frm;
    shell::frmAbout &about = panel.about;
    shell::frmViewer &viewer = panel.viewer;
    shell::frmNewAverage &newAverage = panel.newAverage;
};

} // namespace support
