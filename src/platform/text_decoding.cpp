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

QString decoded(QByteArrayView bytes, QStringDecoder::Flags flags)
{
    QStringDecoder utf8(QStringDecoder::Utf8, flags);
    QString text = utf8.decode(bytes);
    if (!utf8.hasError())
        return text;
    QString result(bytes.size(), Qt::Uninitialized);
    std::transform(bytes.begin(), bytes.end(), result.begin(),
                   [](char c) { return QChar(fromCodePage1252(c)); });
    return result;
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
    return decoded(bytes, QStringDecoder::Flag::Stateless);
}

QString firstLineOf(QByteArrayView start)
{
    if (start.isEmpty() || start.at(0) == '\x1A')
        throw RuntimeError(ErrorNumber::InputPastEnd);
    const QByteArrayView line = start.first(firstLineEnd(start));
    // A line that goes on may be cut within its last character, for which the decoder would wait.
    return line.size() == LongestFirstLine ? decoded(line, QStringDecoder::Flag::Default) : decodeText(line);
}

} // namespace platform
