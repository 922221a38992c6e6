#include "windows_system.h"

#include "platform/windows/windows_api.h"

#include <stdexcept>
#include <vector>

using namespace Qt::StringLiterals;
using platform::host::textOf;
using platform::host::wide;

namespace support {

namespace {

QString defaultValue(const QString &key, bool &isThere)
{
    std::wstring text(1024, L'\0');
    auto size = static_cast<DWORD>(text.size() * sizeof(wchar_t));
    isThere = ::RegGetValueW(HKEY_CLASSES_ROOT, wide(key).c_str(), nullptr, RRF_RT_REG_SZ, nullptr,
                             text.data(), &size)
              == ERROR_SUCCESS;
    return isThere ? QString::fromWCharArray(text.c_str()) : QString();
}

// A user's own classes come first; Wine knows the machine's alone.
HKEY classesRoot()
{
    return isWine() ? HKEY_LOCAL_MACHINE : HKEY_CURRENT_USER;
}

std::wstring pathOf(const QString &key)
{
    return wide(u"Software\\Classes\\"_s + key);
}

void setDefaultValue(const QString &key, const QString &value)
{
    const std::wstring text = wide(value);
    ::RegSetKeyValueW(classesRoot(), pathOf(key).c_str(), nullptr, REG_SZ, text.c_str(),
                      static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t)));
}

// What a test has made up goes with all that is above it; of the system's own classes the key alone.
void removeKey(const QString &key)
{
    const QString name = key.section(u'\\', 0, 0);
    if (!name.startsWith(u"kv") && !name.startsWith(u".kv")) {
        ::RegDeleteKeyW(classesRoot(), pathOf(key).c_str());
        return;
    }
    ::RegDeleteTreeW(classesRoot(), pathOf(name).c_str());
    ::RegDeleteKeyW(classesRoot(), pathOf(name).c_str());
}

/// A handle as the system lists it.
struct SystemHandle
{
    void *object;
    ULONG_PTR process;
    ULONG_PTR handle;
    ULONG access;
    USHORT trace;
    USHORT type;
    ULONG attributes;
    ULONG reserved;
};

} // namespace

bool isWine()
{
    return ::GetProcAddress(::GetModuleHandleW(L"ntdll.dll"), "wine_get_version") != nullptr;
}

bool hasDisplay()
{
    return !isWine() || SystemVariable::read(u"DISPLAY"_s).has_value();
}

std::wstring longForm(const QString &path)
{
    return L"\\\\?\\" + wide(QString(path).replace(u'/', u'\\'));
}

QString testDirectory()
{
    const QString program =
        textOf([](wchar_t *buffer, DWORD size) { return ::GetModuleFileNameW(nullptr, buffer, size); });
    return program.left(program.lastIndexOf(u'\\'));
}

void copy(const QString &from, const QString &to)
{
    if (::CopyFileW(longForm(from).c_str(), longForm(to).c_str(), FALSE) == 0)
        throw std::runtime_error("file not copied: " + from.toStdString());
}

SystemVariable::SystemVariable(const QString &name, const QString &value) : name_(name), before_(read(name))
{
    ::SetEnvironmentVariableW(wide(name).c_str(), value.isNull() ? nullptr : wide(value).c_str());
}

SystemVariable::~SystemVariable()
{
    ::SetEnvironmentVariableW(wide(name_).c_str(), before_ ? wide(*before_).c_str() : nullptr);
}

std::optional<QString> SystemVariable::read(const QString &name)
{
    const std::wstring key = wide(name);
    ::SetLastError(ERROR_SUCCESS);
    const QString value = textOf(
        [&key](wchar_t *buffer, DWORD size) { return ::GetEnvironmentVariableW(key.c_str(), buffer, size); });
    if (value.isEmpty() && ::GetLastError() == ERROR_ENVVAR_NOT_FOUND)
        return std::nullopt;
    return value;
}

Association::Association(const QString &key, const QString &value) : key_(key)
{
    bool isThere = false;
    const QString before = defaultValue(key, isThere);
    if (isThere)
        before_ = before;
    setDefaultValue(key, value);
    isMade_ = defaultValue(key, isThere) == value;
}

Association::~Association()
{
    if (before_ && isWine())
        setDefaultValue(key_, *before_);
    else
        removeKey(key_);
}

// Wine does not count a process's handles, but lists those of all.
int openHandles()
{
    DWORD count = 0;
    if (::GetProcessHandleCount(::GetCurrentProcess(), &count) != 0 && count > 0)
        return static_cast<int>(count);
    using Query = LONG(WINAPI *)(int, void *, ULONG, ULONG *);
    const auto query = reinterpret_cast<Query>(reinterpret_cast<void *>(
        ::GetProcAddress(::GetModuleHandleW(L"ntdll.dll"), "NtQuerySystemInformation")));
    constexpr int AllHandles = 64;
    std::vector<char> bytes(1U << 22U);
    ULONG size = 0;
    if (query(AllHandles, bytes.data(), static_cast<ULONG>(bytes.size()), &size) != 0)
        return -1;
    const ULONG_PTR all = *reinterpret_cast<ULONG_PTR *>(bytes.data());
    const auto *handles = reinterpret_cast<const SystemHandle *>(bytes.data() + 2 * sizeof(ULONG_PTR));
    int mine = 0;
    for (ULONG_PTR i = 0; i < all; ++i)
        mine += handles[i].process == ::GetCurrentProcessId() ? 1 : 0;
    return mine;
}

} // namespace support
