#pragma once

#ifndef NOMINMAX
#define NOMINMAX
#endif
#ifndef WIN32_LEAN_AND_MEAN
#define WIN32_LEAN_AND_MEAN
#endif
#include <QString>

#include <algorithm>
#include <string>
#include <utility>

#include <windows.h>

namespace platform::host {

/// A text as the system takes it.
inline std::wstring wide(QStringView text)
{
    return {reinterpret_cast<const wchar_t *>(text.utf16()), static_cast<size_t>(text.size())};
}

/// The text that a call of the system writes in the way of all its calls: `call(buffer, size)` gives the
/// length, or the size that it needs, and 0 where it failed.
template <typename Call>
QString textOf(const Call &call)
{
    std::wstring buffer(MAX_PATH, L'\0');
    for (;;) {
        const DWORD length = call(buffer.data(), static_cast<DWORD>(buffer.size()));
        if (length < buffer.size())
            return QString::fromWCharArray(buffer.data(), static_cast<qsizetype>(length));
        // One that only cuts the text off gives no more than there is room for.
        buffer.resize(std::max<size_t>(length, buffer.size() * 2));
    }
}

/// Owns a handle of the system and closes it.
class Handle
{
public:
    explicit Handle(HANDLE handle = nullptr) : handle_(handle == INVALID_HANDLE_VALUE ? nullptr : handle) {}
    Handle(Handle &&other) noexcept : handle_(std::exchange(other.handle_, nullptr)) {}
    Handle &operator=(Handle &&other) noexcept
    {
        std::swap(handle_, other.handle_);
        return *this;
    }
    Handle(const Handle &) = delete;
    Handle &operator=(const Handle &) = delete;
    ~Handle()
    {
        if (isValid())
            ::CloseHandle(handle_);
    }

    bool isValid() const { return handle_ != nullptr; }
    HANDLE get() const { return handle_; }

private:
    HANDLE handle_;
};

} // namespace platform::host
