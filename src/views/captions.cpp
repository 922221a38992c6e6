#include "views/captions.h"

#include <QLabel>

namespace views {

QString spoken(const QString &caption)
{
    QString result = caption;
    return result.remove(u'&').trimmed();
}

QLabel *makeCaption(const QString &text, QWidget *value)
{
    auto *label = new QLabel(text);
    label->setBuddy(value);
    label->setTextFormat(Qt::PlainText);
    label->setForegroundRole(QPalette::WindowText);
    return label;
}

} // namespace views
