// Loads the library named by its last argument, as a part of the system may do by its bare name at any time:
// prepared as the panel is with "prepared" in front of it. Its exit code says whether it was found.

#include "platform/host.h"

#include <string>

#include <windows.h>

int wmain(int count, wchar_t *arguments[])
{
    if (count > 2 && std::wstring(arguments[1]) == L"prepared")
        platform::prepareProcess();
    return ::LoadLibraryW(arguments[count - 1]) != nullptr ? 1 : 0;
}
