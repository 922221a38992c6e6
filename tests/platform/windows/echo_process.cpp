// The echo program: appends what it was started with to the file named by ECHO_FILE, for tests that start
// real processes. A record is five texts, each ended by a NUL: ECHO_NUMBER, the command line, the current
// directory, the state of its window (- where none was asked for) and "console" where it has one. It then
// waits for the event named by ECHO_WAIT. ECHO_EXIT is its exit code; "crash" makes it crash. It goes without
// the C++ runtime, which would take longer to start than the program itself: tests start it ten thousand
// times.

#ifndef WIN32_LEAN_AND_MEAN
#define WIN32_LEAN_AND_MEAN
#endif
#include <windows.h>

namespace {

constexpr DWORD LongestVariable = 32'767;
constexpr DWORD LongestRecord = 4 * LongestVariable;

// Nothing of this size has room on the stack.
wchar_t record[LongestRecord];
wchar_t value[LongestVariable + 1];
STARTUPINFOW startup;
DWORD length = 0;

bool readVariable(const wchar_t *name)
{
    const DWORD size = ::GetEnvironmentVariableW(name, value, LongestVariable);
    value[size <= LongestVariable ? size : 0] = L'\0';
    return size > 0;
}

void add(const wchar_t *field)
{
    ::lstrcpyW(record + length, field);
    length += static_cast<DWORD>(::lstrlenW(field)) + 1;
}

// Several run at once, and not every system appends in one step.
void write(const wchar_t *path)
{
    ::WaitForSingleObject(::CreateMutexW(nullptr, FALSE, L"kinovra-echo"), INFINITE);
    HANDLE file = ::CreateFileW(path, FILE_APPEND_DATA, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                                OPEN_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
    DWORD written = 0;
    ::WriteFile(file, record, length * DWORD(sizeof(wchar_t)), &written, nullptr);
    ::CloseHandle(file);
}

UINT numberOf(const wchar_t *digits)
{
    UINT number = 0;
    for (; *digits != L'\0'; ++digits)
        number = number * 10 + static_cast<UINT>(*digits - L'0');
    return number;
}

// The system's own way out of a crash would ask the user first.
LONG WINAPI endAtOnce(EXCEPTION_POINTERS *)
{
    return EXCEPTION_EXECUTE_HANDLER;
}

[[noreturn]] void crash()
{
    ::SetUnhandledExceptionFilter(endAtOnce);
    ::RaiseException(EXCEPTION_ACCESS_VIOLATION, EXCEPTION_NONCONTINUABLE, 0, nullptr);
    ::ExitProcess(0);
}

} // namespace

extern "C" void echoProcess()
{
    readVariable(L"ECHO_NUMBER");
    add(value);
    add(::GetCommandLineW());
    ::GetCurrentDirectoryW(LongestVariable, value);
    add(value);
    ::GetStartupInfoW(&startup);
    wchar_t show[] = L"-";
    if ((startup.dwFlags & STARTF_USESHOWWINDOW) != 0)
        show[0] = static_cast<wchar_t>(L'0' + startup.wShowWindow);
    add(show);
    add(::GetConsoleCP() != 0 ? L"console" : L"");
    if (readVariable(L"ECHO_FILE"))
        write(value);
    if (readVariable(L"ECHO_WAIT"))
        ::WaitForSingleObject(::OpenEventW(SYNCHRONIZE, FALSE, value), INFINITE);
    if (!readVariable(L"ECHO_EXIT"))
        ::ExitProcess(0);
    if (::lstrcmpW(value, L"crash") == 0)
        crash();
    ::ExitProcess(numberOf(value));
}
