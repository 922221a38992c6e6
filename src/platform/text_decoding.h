#pragma once

#include <QByteArrayView>
#include <QString>

namespace platform {

/// Text from programs of three decades: UTF-8 where it is valid, otherwise the Windows code page 1252. A byte
/// order mark is dropped.
QString decodeText(QByteArrayView bytes);

/// Where the first line of `bytes` ends: before a carriage return, a line feed, or the end-of-file mark of
/// DOS.
qsizetype firstLineEnd(QByteArrayView bytes);

} // namespace platform
