#include "platform/linux/host_names.h"

#include <QStringDecoder>

#include <algorithm>

namespace platform::host {

namespace {

constexpr char16_t PrivateArea = 0xF000;

bool isSpecial(unsigned char byte)
{
    return byte == '\\' || byte == ':' || byte == '"';
}

bool isPrivate(char16_t unit)
{
    return (unit >= PrivateArea + 0x80 && unit <= PrivateArea + 0xFF)
           || (unit > PrivateArea && unit < PrivateArea + 0x80
               && isSpecial(static_cast<unsigned char>(unit)));
}

char16_t privateForm(char byte)
{
    return static_cast<char16_t>(PrivateArea + static_cast<unsigned char>(byte));
}

// The length of the UTF-8 sequence that `bytes` begins with, 0 where it is none.
qsizetype sequenceLength(QByteArrayView bytes)
{
    const auto lead = static_cast<unsigned char>(bytes[0]);
    const qsizetype length = lead < 0x80   ? 1
                             : lead < 0xC2 ? 0
                             : lead < 0xE0 ? 2
                             : lead < 0xF0 ? 3
                             : lead < 0xF5 ? 4
                                           : 0;
    if (length == 0 || length > bytes.size())
        return 0;
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    const QString text = decoder.decode(bytes.first(length));
    return decoder.hasError() || text.isEmpty() ? 0 : length;
}

} // namespace

bool isPlain(QByteArrayView name)
{
    for (char c : name) {
        const auto byte = static_cast<unsigned char>(c);
        if (byte >= 0x80 || isSpecial(byte))
            return false;
    }
    return true;
}

QString fromHostName(QByteArrayView name)
{
    if (isPlain(name))
        return QString::fromLatin1(name);
    QString result;
    while (!name.isEmpty()) {
        const qsizetype length = sequenceLength(name);
        const QString text = QString::fromUtf8(name.first(length));
        // A name that uses the private characters itself is kept apart from the names that were given them.
        const bool taken = length == 0 || (length == 1 && isSpecial(static_cast<unsigned char>(name[0])))
                           || isPrivate(text[0].unicode());
        const qsizetype used = std::max<qsizetype>(length, 1);
        if (taken) {
            for (char byte : name.first(used))
                result += QChar(privateForm(byte));
        } else {
            result += text;
        }
        name = name.sliced(used);
    }
    return result;
}

QByteArray toHostName(QStringView name)
{
    QByteArray result;
    qsizetype done = 0;
    for (qsizetype i = 0; i < name.size(); ++i) {
        const char16_t unit = name[i].unicode();
        if (!isPrivate(unit))
            continue;
        result += name.mid(done, i - done).toUtf8();
        result += static_cast<char>(unit - PrivateArea);
        done = i + 1;
    }
    return result + name.mid(done).toUtf8();
}

QByteArray hostPathBelow(const QByteArray &hostDirectory, const QString &name)
{
    return (hostDirectory == "/" ? QByteArray() : hostDirectory) + '/' + toHostName(name);
}

} // namespace platform::host
