#pragma once

#include <QLineEdit>

namespace views {

/// A text on one line that can be selected and copied, and nothing else. Where there is no room for it, the
/// tool tip shows it whole.
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
};

} // namespace views
