#pragma once

#include <QLineEdit>

namespace views {

/// A field that shows a text which is changed elsewhere. Clicking it, or trying to type, says so.
class ReadOnlyField : public QLineEdit
{
    Q_OBJECT

public:
    explicit ReadOnlyField(QWidget *parent = nullptr);

Q_SIGNALS:
    void clicked();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
};

} // namespace views
