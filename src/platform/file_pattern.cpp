#include "platform/file_pattern.h"

#include "platform/letter_case.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace platform {

namespace {

bool isPlainExtension(const QString &pattern)
{
    return pattern.startsWith(QLatin1String("*.")) && extensionKey(QStringView(pattern).mid(2)) != 0
           && pattern.indexOf(u'*', 1) < 0 && !pattern.contains(u'?') && pattern.indexOf(u'.', 2) < 0;
}

bool matchesWildcards(QStringView name, QStringView pattern)
{
    qsizetype n = 0;
    qsizetype p = 0;
    qsizetype star = -1;
    qsizetype resume = 0;
    while (n < name.size()) {
        if (p < pattern.size() && pattern[p] == u'*') {
            star = p++;
            resume = n;
        } else if (p < pattern.size()
                   && (pattern[p] == u'?'
                       || upperCase(pattern[p].unicode()) == upperCase(name[n].unicode()))) {
            ++p;
            ++n;
        } else if (star >= 0) {
            p = star + 1;
            n = ++resume;
        } else {
            return false;
        }
    }
    while (p < pattern.size() && pattern[p] == u'*')
        ++p;
    return p == pattern.size();
}

} // namespace

quint64 extensionKey(QStringView extension)
{
    if (extension.size() > 4)
        return 0;
    quint64 key = 0;
    for (QChar unit : extension)
        key = (key << 16) | upperCase(unit.unicode());
    return key;
}

FilePattern::FilePattern(const QString &patterns)
{
    const QStringList list = patterns.split(u';', Qt::SkipEmptyParts);
    for (const QString &item : list) {
        const QString pattern = item.trimmed();
        if (isPlainExtension(pattern))
            extensions_.push_back(extensionKey(QStringView(pattern).mid(2)));
        else
            others_.append(pattern == u"*.*" ? u"*"_s : pattern);
    }
}

bool FilePattern::matches(QStringView name, quint64 key) const
{
    return matchesExtension(key)
           || std::any_of(others_.begin(), others_.end(),
                          [name](const QString &pattern) { return matchesWildcards(name, pattern); });
}

} // namespace platform
