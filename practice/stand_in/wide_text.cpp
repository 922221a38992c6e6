#include "stand_in/wide_text.h"

#include <windows.h>

namespace practice {

std::wstring wideText(std::string_view text)
{
    const int given = static_cast<int>(text.size());
    std::wstring wide(text.size(), L'\0');
    const int length = MultiByteToWideChar(CP_UTF8, 0, text.data(), given, wide.data(), given);
    wide.resize(static_cast<std::size_t>(length));
    return wide;
}

std::string narrowText(std::wstring_view text)
{
    constexpr std::size_t LongestCharacter = 3;
    std::string narrow(text.size() * LongestCharacter, '\0');
    const int length = WideCharToMultiByte(CP_UTF8, 0, text.data(), static_cast<int>(text.size()),
                                           narrow.data(), static_cast<int>(narrow.size()), nullptr, nullptr);
    narrow.resize(static_cast<std::size_t>(length));
    return narrow;
}

} // namespace practice
