#include "platform/start_rules.h"

#include <algorithm>

namespace platform {

bool isBareName(const QString &file)
{
    return !file.contains(u'\\') && !file.contains(u':');
}

bool isPlainName(const QString &name)
{
    const auto leadsAway = [](QChar c) { return c == u'\\' || c == u'/' || c == u':' || c == u'\0'; };
    return name != u"." && name != u".." && std::none_of(name.begin(), name.end(), leadsAway);
}

bool isWebAddress(const QString &text)
{
    const auto isForeign = [](QChar c) {
        return c.isSpace() || c == u'"' || c.category() == QChar::Other_Control;
    };
    return text.startsWith(u"https://") && std::none_of(text.begin(), text.end(), isForeign);
}

} // namespace platform
