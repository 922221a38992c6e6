#pragma once

#include <QElapsedTimer>
#include <QObject>

#include <functional>

class QWidget;

namespace views {

/// Tells of a window's activations in the classic way: once each time that a command shows the window and
/// each time that it comes back from another window. The window's own boxes and dialogs do not count, and
/// what happens while it is loading counts once, when it has been loaded. It is told from the event loop,
/// when the window is there.
class Activation : public QObject
{
    Q_OBJECT

public:
    /// Calls `activated` for each activation of `window`.
    Activation(QWidget *window, std::function<void()> activated);

    /// The window begins to load.
    void beginLoading();
    /// The window has been loaded.
    void endLoading();

    /// Brings the window to the front, where it is shown: a command shows it again.
    void showAgain();

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void shown();
    void announce();

    QWidget *window_;
    std::function<void()> activated_;
    QElapsedTimer
        sinceShown_; ///< valid until the activation that follows a showing, which is told of already
    bool loading_ = false;
    bool waiting_ = false;      ///< an activation is waiting for the end of the loading
    bool announced_ = false;    ///< an activation is about to be told of
    bool behindOwnBox_ = false; ///< the window is inactive because of a box of its own
};

} // namespace views
