#include "views/tool_tips.h"

namespace views {

QString plainToolTip(const QString &text)
{
    return QLatin1String("<span>") + text.toHtmlEscaped() + QLatin1String("</span>");
}

} // namespace views
