#include "views/file_drops.h"

#include <QDragEnterEvent>
#include <QMimeData>
#include <QUrl>
#include <QWidget>

#include <algorithm>

namespace views {

namespace {

// The first file of this computer in what is dragged; empty where there is none.
QString fileIn(const QMimeData &data)
{
    const QList<QUrl> addresses = data.urls();
    const auto file = std::find_if(addresses.begin(), addresses.end(),
                                   [](const QUrl &address) { return address.isLocalFile(); });
    return file == addresses.end() ? QString() : file->toLocalFile();
}

} // namespace

FileDrops::FileDrops(QWidget *window, EventRunner &events, platform::HostPaths &paths)
    : QObject(window), events_(events), paths_(paths)
{
    window->setAcceptDrops(true);
    window->installEventFilter(this);
}

bool FileDrops::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::DragEnter:
        entered(static_cast<QDragEnterEvent *>(event));
        return true;
    case QEvent::Drop:
        dropped(static_cast<QDropEvent *>(event));
        return true;
    default:
        return QObject::eventFilter(watched, event);
    }
}

void FileDrops::entered(QDragEnterEvent *event)
{
    if (fileIn(*event->mimeData()).isEmpty())
        return;
    // Never a move: the file stays where it is.
    event->setDropAction(Qt::CopyAction);
    event->accept();
}

// Where it comes from waits until this returns, so that no box may be shown before.
void FileDrops::dropped(QDropEvent *event)
{
    const QString file = fileIn(*event->mimeData());
    event->setDropAction(Qt::CopyAction);
    event->accept();
    const auto choose = [this, file] {
        events_.run([this, file] { events_.panel().frm.FileDropped(paths_.panelForm(file)); });
    };
    QMetaObject::invokeMethod(this, choose, Qt::QueuedConnection);
}

} // namespace views
