#pragma once

#include <QWidget>

namespace views {

/// A place in the window whose widgets take turns. When the one that has the focus is hidden, the focus goes
/// to the first one that appears instead.
class SharedPlace : public QWidget
{
    Q_OBJECT

public:
    using QWidget::QWidget;

    /// Lets `widget`, which lies in this place, take part.
    void share(QWidget *widget);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void passFocusOn();

    QList<QWidget *> widgets_;
    bool focusLost_ = false;
};

} // namespace views
