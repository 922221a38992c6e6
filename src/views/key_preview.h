#pragma once

#include "views/event_runner.h"

#include <QObject>

#include <vector>

class QKeyEvent;
class QWidget;

namespace views {

/// Lets the main window see released keys before its controls do. The modifiers that count are those of the
/// press, and a key that was pressed in another window does not count.
class KeyPreview : public QObject
{
    Q_OBJECT

public:
    KeyPreview(QWidget *window, EventRunner &events);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    struct Pressed
    {
        quint32 scanCode;
        int key;
        int keyCode;
        int shift;
    };

    std::vector<Pressed>::iterator find(const QKeyEvent *event);
    void pressed(const QKeyEvent *event);
    void released(const QKeyEvent *event);

    QWidget *window_;
    EventRunner &events_;
    std::vector<Pressed> pressed_;
};

} // namespace views
