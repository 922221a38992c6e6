#include "platform/text_decoding.h"

#include "platform/runtime_error.h"

#include <QStringDecoder>

#include <algorithm>
#include <array>

namespace platform {

namespace {

// What code page 1252 has in place of the control characters 0x80 to 0x9F; the five that it leaves open stay
// controls.
constexpr std::array<char16_t, 32> Extras{0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                          0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
                                          0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                          0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

char16_t fromCodePage1252(char c)
{
    const auto byte = static_cast<unsigned char>(c);
    return byte >= 0x80 && byte <= 0x9F ? Extras[byte - 0x80U] : char16_t(byte);
}

// Cuts a line that goes on beyond what was read between two characters.
QByteArrayView withoutHalfCharacter(QByteArrayView bytes)
{
    qsizetype end = bytes.size();
    while (end > 0 && bytes.size() - end < 4 && (static_cast<unsigned char>(bytes[end - 1]) & 0xC0U) == 0x80U)
        --end;
    return end > 0 && static_cast<unsigned char>(bytes[end - 1]) >= 0xC0U ? bytes.first(end - 1) : bytes;
}

// Where the first line ends: before a carriage return, a line feed, or the end-of-file mark of DOS.
qsizetype firstLineEnd(QByteArrayView bytes)
{
    constexpr char EndOfFile = '\x1A';
    const auto end = std::find_if(bytes.begin(), bytes.end(),
                                  [](char c) { return c == '\r' || c == '\n' || c == EndOfFile; });
    return end - bytes.begin();
}

} // namespace

QString decodeText(QByteArrayView bytes)
{
    QStringDecoder utf8(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    QString text = utf8.decode(bytes);
    if (!utf8.hasError())
        return text;
    QString result(bytes.size(), Qt::Uninitialized);
    std::transform(bytes.begin(), bytes.end(), result.begin(),
                   [](char c) { return QChar(fromCodePage1252(c)); });
    return result;
}

QString firstLineOf(QByteArrayView start)
{
    if (start.isEmpty() || start.at(0) == '\x1A')
        throw RuntimeError(ErrorNumber::InputPastEnd);
    const QByteArrayView line = start.first(firstLineEnd(start));
    return decodeText(line.size() == LongestFirstLine ? withoutHalfCharacter(line) : line);
}

} // namespace platform
