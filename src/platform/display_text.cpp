#include "platform/display_text.h"

#include <QStringList>

#include <algorithm>

namespace platform {

namespace {

constexpr char16_t PrivateArea = 0xF000;
constexpr char16_t ControlPictures = 0x2400;
constexpr char16_t PictureOfDelete = 0x2421;

bool turnsDirection(char16_t unit)
{
    return unit == 0x200E || unit == 0x200F || unit == 0x061C || (unit >= 0x202A && unit <= 0x202E)
           || (unit >= 0x2066 && unit <= 0x2069);
}

// What no screen shows, so that two names would look the same. Joiners stay: some scripts need them.
bool isInvisible(char16_t unit)
{
    return unit == 0x00AD || unit == 0x034F || unit == 0x200B || unit == 0x2060 || unit == 0xFEFF;
}

char16_t shown(char16_t unit)
{
    if (unit < 0x20)
        return char16_t(ControlPictures + unit);
    if (unit == 0x7F)
        return PictureOfDelete;
    if (unit >= PrivateArea + 0x80 && unit <= PrivateArea + 0xFF)
        return QChar::ReplacementCharacter;
    if (unit == PrivateArea + u'\\' || unit == PrivateArea + u':' || unit == PrivateArea + u'"')
        return char16_t(unit - PrivateArea);
    const bool strange = (unit >= 0x80 && unit <= 0x9F) || unit == 0x2028 || unit == 0x2029
                         || turnsDirection(unit) || isInvisible(unit);
    return strange ? char16_t(QChar::ReplacementCharacter) : unit;
}

} // namespace

QString displayText(const QString &text)
{
    QString result(text.size(), Qt::Uninitialized);
    std::transform(text.begin(), text.end(), result.begin(),
                   [](QChar unit) { return QChar(shown(unit.unicode())); });
    return result;
}

QString displayLines(const QString &text)
{
    QStringList lines = QString(text).replace(QLatin1String("\r\n"), QLatin1String("\n")).split(u'\n');
    for (QString &line : lines)
        line = displayText(line);
    return lines.join(u'\n');
}

} // namespace platform
