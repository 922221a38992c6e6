// A library that somebody has planted: it leaves the file named by PLANTED_MARK wherever it is loaded.

#ifndef WIN32_LEAN_AND_MEAN
#define WIN32_LEAN_AND_MEAN
#endif
#include <windows.h>

namespace {

wchar_t mark[1'000];

} // namespace

extern "C" BOOL WINAPI echoPlanted(HINSTANCE, DWORD reason, void *)
{
    if (reason == DLL_PROCESS_ATTACH && ::GetEnvironmentVariableW(L"PLANTED_MARK", mark, 1'000) > 0)
        ::CloseHandle(::CreateFileW(mark, GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                                    OPEN_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr));
    return TRUE;
}
