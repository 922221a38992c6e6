#include "views/key_preview.h"

#include <QApplication>
#include <QKeyEvent>
#include <QWidget>
#include <QWindow>

#include <algorithm>

namespace views {

namespace {

constexpr int HelpKey = 47;
constexpr int QuestionMark = 63;
constexpr int F1 = 112;

bool isCharacter(int key)
{
    return (key >= Qt::Key_A && key <= Qt::Key_Z) || (key >= Qt::Key_0 && key <= Qt::Key_9);
}

// The classic code of a key; letters and digits have their own.
int keyCodeOf(int key)
{
    switch (key) {
    case Qt::Key_Help:
        return HelpKey;
    case Qt::Key_Question:
        return QuestionMark;
    default:
        break;
    }
    if (key >= Qt::Key_F1 && key <= Qt::Key_F12)
        return F1 + key - Qt::Key_F1;
    return isCharacter(key) ? key : 0;
}

// A plain letter or digit finds a name in a list, where the user goes on typing.
bool findsNames(int keyCode, int shift)
{
    constexpr int ShiftHeld = 1;
    return isCharacter(keyCode) && (shift == 0 || shift == ShiftHeld);
}

int shiftOf(Qt::KeyboardModifiers modifiers)
{
    return (modifiers.testFlag(Qt::ShiftModifier) ? 1 : 0) + (modifiers.testFlag(Qt::ControlModifier) ? 2 : 0)
           + (modifiers.testFlag(Qt::AltModifier) ? 4 : 0);
}

} // namespace

KeyPreview::KeyPreview(QWidget *window, EventRunner &events)
    : QObject(window), window_(window), events_(events)
{
    qApp->installEventFilter(this);
}

bool KeyPreview::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::WindowDeactivate && watched == window_)
        pressed_.clear();
    const bool isKey = event->type() == QEvent::KeyPress || event->type() == QEvent::KeyRelease;
    // The window that holds the widget with the focus gets the event first, from the system.
    if (!isKey || watched != window_->windowHandle() || !events_.panel().frm.KeyPreview)
        return false;
    const auto *key = static_cast<QKeyEvent *>(event);
    if (key->isAutoRepeat())
        return false;
    if (event->type() == QEvent::KeyPress)
        pressed(key);
    else
        released(key);
    return false;
}

// A shifted key may have another name by the time of its release; the place on the keyboard is the same.
std::vector<KeyPreview::Pressed>::iterator KeyPreview::find(const QKeyEvent *event)
{
    return std::find_if(pressed_.begin(), pressed_.end(), [event](const Pressed &key) {
        return event->nativeScanCode() != 0 ? key.scanCode == event->nativeScanCode()
                                            : key.key == event->key();
    });
}

void KeyPreview::pressed(const QKeyEvent *event)
{
    // Its last release may have gone elsewhere.
    const auto before = find(event);
    if (before != pressed_.end())
        pressed_.erase(before);
    pressed_.push_back(
        {event->nativeScanCode(), event->key(), keyCodeOf(event->key()), shiftOf(event->modifiers())});
}

void KeyPreview::released(const QKeyEvent *event)
{
    const auto found = find(event);
    if (found == pressed_.end())
        return;
    const Pressed key = *found;
    pressed_.erase(found);
    if (key.keyCode == 0)
        return;
    const auto keyUp = [this, key] { events_.panel().frm.KeyUp(key.keyCode, key.shift); };
    if (findsNames(key.keyCode, key.shift))
        events_.runMeanwhile(keyUp);
    else
        events_.run(keyUp);
}

} // namespace views
