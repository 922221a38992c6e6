#include "platform/windows/open_key.h"

namespace platform::host {

QString textOfValue(const StoredValue &value)
{
    return QString::fromWCharArray(reinterpret_cast<const wchar_t *>(value.bytes.constData()),
                                   value.bytes.size() / qsizetype(sizeof(wchar_t)));
}

OpenKey::~OpenKey()
{
    if (key_ != nullptr)
        ::RegCloseKey(key_);
}

quint32 OpenKey::open(HKEY root, const std::wstring &name, quint32 access)
{
    return static_cast<quint32>(::RegOpenKeyExW(root, name.c_str(), 0, access, &key_));
}

quint32 OpenKey::create(HKEY root, const std::wstring &name, quint32 access)
{
    return static_cast<quint32>(
        ::RegCreateKeyExW(root, name.c_str(), 0, nullptr, 0, access, nullptr, &key_, nullptr));
}

std::optional<StoredValue> OpenKey::value(const QString &name) const
{
    StoredValue result;
    DWORD size = 256;
    for (;;) {
        result.bytes.resize(static_cast<qsizetype>(size));
        const LSTATUS status = ::RegQueryValueExW(key_, wide(name).c_str(), nullptr, &result.type,
                                                  reinterpret_cast<BYTE *>(result.bytes.data()), &size);
        if (status == ERROR_MORE_DATA)
            continue; // another program may have made it longer meanwhile
        if (status != ERROR_SUCCESS)
            return std::nullopt;
        result.bytes.resize(static_cast<qsizetype>(size));
        return result;
    }
}

void OpenKey::setText(const QString &name, const QString &text) const
{
    const std::wstring value = wide(text);
    ::RegSetValueExW(key_, wide(name).c_str(), 0, REG_SZ, reinterpret_cast<const BYTE *>(value.c_str()),
                     static_cast<DWORD>((value.size() + 1) * sizeof(wchar_t)));
}

} // namespace platform::host
