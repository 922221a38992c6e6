#pragma once

#include <QLabel>

namespace views {

/// A label whose text is cut with an ellipsis where there is no room for it; the tool tip then shows it
/// whole.
class ElidedLabel : public QLabel
{
    Q_OBJECT

public:
    explicit ElidedLabel(Qt::TextElideMode mode, QWidget *parent = nullptr);

    QSize minimumSizeHint() const override;
    QSize sizeHint() const override { return minimumSizeHint(); }

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    QString shownText() const;

    Qt::TextElideMode mode_;
};

} // namespace views
