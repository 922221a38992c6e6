#pragma once

#include <QListView>

namespace views {

/// What the lists of the panel share: rows of one height, no editing, a frame that shows which list has the
/// focus, and a tool tip with the whole name where there is no room for it.
class ClassicList : public QListView
{
    Q_OBJECT

public:
    explicit ClassicList(QWidget *parent = nullptr);

    QSize minimumSizeHint() const override { return {60, 40}; }
    QSize sizeHint() const override { return minimumSizeHint(); }

protected:
    bool event(QEvent *event) override;
    bool viewportEvent(QEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
};

} // namespace views
