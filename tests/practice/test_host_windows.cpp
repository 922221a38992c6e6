#include "test_host.h"

#include <array>
#include <stdexcept>

#include <windows.h>

namespace fs = std::filesystem;

namespace practice_tests {

const bool AnyBytesAreNames = false;
const bool CaseTellsNamesApart = false;
const std::string LineEnd = "\r\n";

fs::path pathOf(const std::string &name)
{
    return std::u8string(name.begin(), name.end());
}

std::string textOf(const fs::path &path)
{
    const auto text = path.u8string();
    return {text.begin(), text.end()};
}

bool makeLink(const fs::path &target, const fs::path &link)
{
    CreateSymbolicLinkW(link.c_str(), target.c_str(), SYMBOLIC_LINK_FLAG_ALLOW_UNPRIVILEGED_CREATE);
    return isLink(link);
}

bool isLink(const fs::path &path)
{
    const DWORD attributes = GetFileAttributesW(path.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0;
}

void tellSanitizersApart() {}

struct Terminal::Device
{
    HANDLE handle = INVALID_HANDLE_VALUE;
};

Terminal::Terminal() : device_(std::make_unique<Device>())
{
    device_->handle = CreateFileW(keyboard().c_str(), GENERIC_READ | GENERIC_WRITE,
                                  FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_EXISTING, 0, nullptr);
}

Terminal::~Terminal()
{
    if (isThere())
        CloseHandle(device_->handle);
}

bool Terminal::isThere() const
{
    return device_->handle != INVALID_HANDLE_VALUE;
}

fs::path Terminal::keyboard() const
{
    return "CONIN$";
}

void Terminal::pressEnter() const
{
    std::array<INPUT_RECORD, 2> keys{};
    for (INPUT_RECORD &key : keys) {
        key.EventType = KEY_EVENT;
        key.Event.KeyEvent.wRepeatCount = 1;
        key.Event.KeyEvent.wVirtualKeyCode = VK_RETURN;
        key.Event.KeyEvent.uChar.UnicodeChar = L'\r';
    }
    keys.front().Event.KeyEvent.bKeyDown = TRUE;
    DWORD count = 0;
    if (WriteConsoleInputW(device_->handle, keys.data(), keys.size(), &count) == 0)
        throw std::runtime_error("no Enter");
}

} // namespace practice_tests
