#pragma once

#include "platform/windows/windows_api.h"

#include <QByteArray>
#include <QString>

#include <optional>

namespace platform::host {

/// A value as the registry holds it.
struct StoredValue
{
    DWORD type = REG_NONE;
    QByteArray bytes;
};

/// The characters of a text value, with the closing zero where one is stored.
QString textOfValue(const StoredValue &value);

/// A key of the registry; it is closed with the object.
class OpenKey
{
public:
    OpenKey() = default;
    ~OpenKey();
    OpenKey(const OpenKey &) = delete;
    OpenKey &operator=(const OpenKey &) = delete;

    /// Opens the key `name` under `root` for the rights `access`. The result is the system's error, 0 for
    /// none.
    quint32 open(HKEY root, const std::wstring &name, quint32 access);

    /// The same; the key is made where there is none.
    quint32 create(HKEY root, const std::wstring &name, quint32 access);

    /// The value `name`; nothing where there is none.
    std::optional<StoredValue> value(const QString &name) const;

    /// Stores a text. What cannot be stored is lost.
    void setText(const QString &name, const QString &text) const;

private:
    HKEY key_ = nullptr;
};

} // namespace platform::host
