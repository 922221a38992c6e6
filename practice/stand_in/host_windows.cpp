#include "stand_in/host.h"
#include "stand_in/wide_text.h"

#include <windows.h>

namespace fs = std::filesystem;

namespace practice {

bool inputIsTerminal()
{
    // The standard library takes the null device for a terminal, too.
    DWORD mode = 0;
    return GetConsoleMode(GetStdHandle(STD_INPUT_HANDLE), &mode) != 0;
}

fs::path pathOf(std::string_view name)
{
    return wideText(name);
}

std::string nameOf(const fs::path &path)
{
    return narrowText(path.filename().native());
}

bool isLink(const fs::path &path)
{
    WIN32_FIND_DATAW found{};
    HANDLE search = FindFirstFileW(path.c_str(), &found);
    if (search == INVALID_HANDLE_VALUE)
        return false;
    FindClose(search);
    // What a cloud keeps elsewhere is marked like a link and is none.
    return (found.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0
           && IsReparseTagNameSurrogate(found.dwReserved0);
}

bool moveToFreePlace(const fs::path &from, const fs::path &to)
{
    return MoveFileExW(from.c_str(), to.c_str(), 0) != 0;
}

} // namespace practice
