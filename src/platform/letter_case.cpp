#include "platform/letter_case.h"

#include <algorithm>

namespace platform {

namespace {

// Old letters behind the young ones; nothing behind them has a case.
constexpr char16_t FullWidthLatin = 0xFF21;

// File systems that ignore case do so for the letters of older Unicode only: later pairs (Georgian, Cherokee)
// are different names to them.
bool letterCaseIsYoung(char16_t unit)
{
    return (unit >= 0x10A0 && unit <= 0x10FF) || (unit >= 0x13A0 && unit <= 0x13FF)
           || (unit >= 0x1C80 && unit <= 0x1CBF) || (unit >= 0x2D00 && unit <= 0x2D2F)
           || (unit >= 0xA640 && unit < FullWidthLatin);
}

char16_t mapped(char16_t unit, char32_t (*there)(char32_t), char32_t (*back)(char32_t))
{
    if (letterCaseIsYoung(unit))
        return unit;
    // Both cases of a letter are one UTF-16 unit, or both are two.
    const char32_t result = there(unit);
    return back(result) == unit ? static_cast<char16_t>(result) : unit;
}

char32_t toUpper(char32_t unit)
{
    return QChar::toUpper(unit);
}

char32_t toLower(char32_t unit)
{
    return QChar::toLower(unit);
}

bool isAscii(QStringView text)
{
    char16_t all = 0;
    for (QChar unit : text)
        all = static_cast<char16_t>(all | unit.unicode());
    return all < 0x80;
}

char16_t upperCaseAscii(char16_t unit)
{
    return static_cast<char16_t>(unit - (static_cast<unsigned>(unit - u'a') < 26U ? 0x20U : 0U));
}

// Writes `text` in upper case to `out`; where it ends. Nearly all names are ASCII, for which these are two
// plain loops.
QChar *upperCaseInto(QStringView text, QChar *out)
{
    if (isAscii(text))
        return std::transform(text.begin(), text.end(), out,
                              [](QChar unit) { return QChar(upperCaseAscii(unit.unicode())); });
    return std::transform(text.begin(), text.end(), out,
                          [](QChar unit) { return QChar(upperCase(unit.unicode())); });
}

} // namespace

char16_t upperCaseBeyondAscii(char16_t unit)
{
    return mapped(unit, toUpper, toLower);
}

char16_t lowerCase(char16_t unit)
{
    if (unit < 0x80)
        return unit >= u'A' && unit <= u'Z' ? static_cast<char16_t>(unit + 0x20) : unit;
    return mapped(unit, toLower, toUpper);
}

QString UCase(QStringView text)
{
    QString result(text.size(), Qt::Uninitialized);
    upperCaseInto(text, result.data());
    return result;
}

QString UCasePath(QStringView directory, QStringView name)
{
    QString result(directory.size() + 1 + name.size(), Qt::Uninitialized);
    QChar *out = upperCaseInto(directory, result.data());
    *out++ = u'\\';
    upperCaseInto(name, out);
    return result;
}

QString LCase(QStringView text)
{
    QString result(text.size(), Qt::Uninitialized);
    std::transform(text.begin(), text.end(), result.data(),
                   [](QChar unit) { return QChar(lowerCase(unit.unicode())); });
    return result;
}

bool sameIgnoringCase(QStringView a, QStringView b)
{
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](QChar x, QChar y) { return upperCase(x.unicode()) == upperCase(y.unicode()); });
}

} // namespace platform
