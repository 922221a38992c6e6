#pragma once

#include <QObject>

#include <functional>

class QWidget;

namespace views {

/// Tells of a window's activations in the classic way: once each time that a command shows the window and
/// each time that it comes back from another window. The window's own boxes and dialogs do not count, and
/// what happens while it is loading counts once, when it has been loaded.
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

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void tell();

    QWidget *window_;
    std::function<void()> activated_;
    bool loading_ = false;
    bool waiting_ = false;      ///< an activation is waiting for the end of the loading
    bool showing_ = false;      ///< it was told of when the window was shown
    bool behindOwnBox_ = false; ///< the window is inactive because of a box of its own
};

} // namespace views
