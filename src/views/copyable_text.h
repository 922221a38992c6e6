#pragma once

#include <QLineEdit>

namespace views {

/// A text on one line that can be selected and copied, and nothing else. Where there is no room for it, an
/// ellipsis stands in its middle as long as nobody reads on in it, and the tool tip shows it whole.
class CopyableText : public QLineEdit
{
    Q_OBJECT

public:
    explicit CopyableText(QWidget *parent = nullptr);

    /// Shows `text` from its beginning on.
    void show(const QString &text);

    QSize minimumSizeHint() const override;
    QSize sizeHint() const override;

protected:
    bool event(QEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    bool isCut() const;
};

} // namespace views
