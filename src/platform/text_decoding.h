#pragma once

#include <QByteArrayView>
#include <QString>

namespace platform {

/// Text from programs of three decades: UTF-8 where it is valid, otherwise the Windows code page 1252. A byte
/// order mark is dropped.
QString decodeText(QByteArrayView bytes);

/// How much of a file is read for its first line, in bytes.
constexpr qsizetype LongestFirstLine = 65'536;

/// The first line of a file that begins with `start`, without its end; of a longer line the characters that
/// are whole in `start`. Raises InputPastEnd where the file is empty.
QString firstLineOf(QByteArrayView start);

} // namespace platform
