#pragma once

#include "panel_fixture.h"
#include "platform/host_paths.h"
#include "views/panel_windows.h"

#include <QListView>
#include <QPushButton>

#include <memory>

namespace support {

/// Takes the host's paths for the panel's, with another separator.
class PlainPaths : public platform::HostPaths
{
public:
    QString hostForm(const QString &directory) override
    {
        return QString(directory).mid(2).replace(u'\\', u'/');
    }
    QString panelForm(const QString &hostFile) override
    {
        return QLatin1String("Z:") + QString(hostFile).replace(u'/', u'\\');
    }
    QString anyCase(const QString &pattern) const override
    {
        return QString(pattern).replace(u'e', QLatin1String("[eE]"));
    }
};

/// The panel on the recording platform with its real windows, on no screen.
class ViewFixture : public PanelFixture
{
protected:
    /// Makes the windows and starts the panel.
    void show();

    /// The list whose accessible name is `name`, such as "Data files".
    QListView *list(const QString &name) const;

    /// The button whose accessible name is `name`, such as "Exit".
    QPushButton *button(const QString &name) const;

    /// Presses and releases the left button on row `row`.
    void clickRow(QListView *view, int row) const;

    /// Presses and releases the left button twice, as a double-click comes.
    static void doubleClickAt(QWidget *widget, const QPoint &position);

    /// The middle of a row in the view's coordinates.
    static QPoint middleOf(QListView *view, int row);

    /// Lets what is due run.
    static void settle();

    views::MainWindow &window() const { return windows->mainWindow(); }

    PlainPaths paths;
    std::unique_ptr<views::PanelWindows> windows;
};

/// Waits in the event loop until `done`, at most 10 seconds; whether it came true.
bool waitUntil(const std::function<bool()> &done);

} // namespace support
