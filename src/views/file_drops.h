#pragma once

#include "platform/host_paths.h"
#include "views/event_runner.h"

#include <QObject>

class QDragEnterEvent;
class QDropEvent;
class QWidget;

namespace views {

/// Takes the files that are dropped on the main window, for as long as the window lives.
class FileDrops : public QObject
{
    Q_OBJECT

public:
    FileDrops(QWidget *window, EventRunner &events, platform::HostPaths &paths);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    static void entered(QDragEnterEvent *event);
    void dropped(QDropEvent *event);

    EventRunner &events_;
    platform::HostPaths &paths_;
};

} // namespace views
