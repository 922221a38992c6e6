#include "views/plain_text.h"

namespace views {

QString plainToolTip(const QString &text)
{
    return QLatin1String("<span>") + text.toHtmlEscaped() + QLatin1String("</span>");
}

QString plainTitle(const QString &text)
{
    return QString(text).replace(QLatin1String("[*]"), QLatin1String("[*][*]"));
}

} // namespace views
