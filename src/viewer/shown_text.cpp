#include "viewer/shown_text.h"

#include <algorithm>

namespace viewer {

namespace {

constexpr char16_t FormFeed = 0x0C;
constexpr char16_t NextLine = 0x85;
constexpr char16_t LineSeparator = 0x2028;
constexpr char16_t ParagraphSeparator = 0x2029;
constexpr char16_t LeftToRightOverride = 0x202D;
constexpr char16_t RightToLeftOverride = 0x202E;
constexpr char16_t Delete = 0x7F;
constexpr char16_t ControlPictures = 0x2400;
constexpr char16_t PictureOfDelete = 0x2421;

bool endsLine(char16_t unit)
{
    // A vertical tab as well: printers took it for a line feed.
    return unit == u'\n' || unit == u'\v' || unit == NextLine || unit == LineSeparator
           || unit == ParagraphSeparator;
}

char16_t picture(char16_t unit)
{
    if (unit < 0x20 && unit != u'\t')
        return char16_t(ControlPictures + unit);
    if (unit == Delete)
        return PictureOfDelete;
    // An override of the direction would show letters in another order than the file's.
    const bool strange =
        (unit >= 0x80 && unit <= 0x9F) || unit == LeftToRightOverride || unit == RightToLeftOverride;
    return strange ? char16_t(QChar::ReplacementCharacter) : unit;
}

// The carriage returns from `at` on.
qsizetype returnsAt(const QString &text, qsizetype at)
{
    qsizetype end = at;
    while (end < text.size() && text.at(end) == u'\r')
        ++end;
    return end - at;
}

} // namespace

QString shownText(const QString &text)
{
    QString result(text.size(), Qt::Uninitialized);
    QChar *const begin = result.data();
    QChar *out = begin;
    const qsizetype size = text.size();
    const auto unitAt = [&text, size](qsizetype i) { return i < size ? text.at(i).unicode() : char16_t(0); };
    for (qsizetype i = 0; i < size; ++i) {
        const char16_t unit = text.at(i).unicode();
        if (unit == u'\r') {
            // In front of a line feed they end no line of their own, however many they are (files that were
            // converted twice), nor does the one that is left over at the end.
            const qsizetype returns = returnsAt(text, i);
            const qsizetype next = i + returns;
            const qsizetype lines = next == size ? returns - 1 : unitAt(next) == u'\n' ? 0 : returns;
            out = std::fill_n(out, lines, QChar(u'\n'));
            i = next - 1;
        } else if (endsLine(unit)) {
            *out++ = u'\n';
        } else if (unit == FormFeed) {
            const bool isInLine = out != begin && out[-1] != u'\n';
            if (isInLine && unitAt(i + 1) != u'\r' && !endsLine(unitAt(i + 1)))
                *out++ = u'\n';
        } else {
            *out++ = picture(unit);
        }
    }
    result.truncate(out - begin);
    return result;
}

} // namespace viewer
