#include "started_program.h"
#include "test_host.h"

#include <array>
#include <cstddef>
#include <stdexcept>
#include <string_view>
#include <utility>

#include <windows.h>

namespace practice_tests {

namespace {

/// A handle that is closed in the end.
class Handle
{
public:
    Handle() = default;
    explicit Handle(HANDLE handle) : handle_(handle) {}
    Handle(Handle &&other) noexcept : handle_(std::exchange(other.handle_, nullptr)) {}
    Handle &operator=(Handle &&other) noexcept
    {
        std::swap(handle_, other.handle_);
        return *this;
    }
    ~Handle() { close(); }

    HANDLE get() const { return handle_; }
    bool isOpen() const { return handle_ != nullptr && handle_ != INVALID_HANDLE_VALUE; }

    void close()
    {
        if (isOpen())
            CloseHandle(handle_);
        handle_ = nullptr;
    }

private:
    HANDLE handle_ = nullptr;
};

SECURITY_ATTRIBUTES forTheProgram()
{
    return {sizeof(SECURITY_ATTRIBUTES), nullptr, TRUE};
}

struct Pipe
{
    Handle readEnd;
    Handle writeEnd;
};

Pipe openPipe()
{
    SECURITY_ATTRIBUTES inherited = forTheProgram();
    HANDLE readEnd = nullptr;
    HANDLE writeEnd = nullptr;
    if (CreatePipe(&readEnd, &writeEnd, &inherited, 0) == 0)
        throw std::runtime_error("no pipe");
    SetHandleInformation(readEnd, HANDLE_FLAG_INHERIT, 0);
    return {Handle(readEnd), Handle(writeEnd)};
}

Handle openInput(const std::filesystem::path &path)
{
    SECURITY_ATTRIBUTES inherited = forTheProgram();
    const std::filesystem::path input = path.empty() ? "NUL" : path;
    Handle handle(CreateFileW(input.c_str(), GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE,
                              &inherited, OPEN_EXISTING, 0, nullptr));
    if (!handle.isOpen())
        throw std::runtime_error("no input");
    return handle;
}

std::wstring wideText(const std::string &text)
{
    const int given = static_cast<int>(text.size());
    std::wstring wide(text.size(), L'\0');
    const int length = MultiByteToWideChar(CP_UTF8, 0, text.data(), given, wide.data(), given);
    wide.resize(static_cast<std::size_t>(length));
    return wide;
}

// One word in a command line, so that it comes out as it was.
std::string quoted(const std::string &word)
{
    std::string result = "\"";
    std::size_t backslashes = 0;
    for (const char c : word) {
        if (c == '"')
            result.append(backslashes + 1, '\\');
        backslashes = c == '\\' ? backslashes + 1 : 0;
        result += c;
    }
    return result.append(backslashes, '\\') + '"';
}

// The program's own name is the one word in which backslashes are no signs.
std::string commandLineOf(const std::vector<std::string> &words)
{
    std::string line;
    for (const std::string &word : words)
        line += line.empty() ? '"' + word + '"' : ' ' + quoted(word);
    return line;
}

// Reads what is there, and closes the end behind which nothing more will come. False where it is too early.
bool readInto(std::string &text, Handle &end)
{
    DWORD available = 0;
    std::array<char, 4096> bytes{};
    DWORD count = 0;
    if (!end.isOpen())
        return false;
    if (PeekNamedPipe(end.get(), nullptr, 0, nullptr, &available, nullptr) != 0 && available == 0)
        return false;
    if (ReadFile(end.get(), bytes.data(), bytes.size(), &count, nullptr) == 0)
        end.close();
    for (const char c : std::string_view(bytes.data(), count)) {
        if (c == '\n' && text.ends_with('\r'))
            text.pop_back();
        text += c;
    }
    return true;
}

} // namespace

struct StartedProgram::Process
{
    Handle process;
    Handle out;
    Handle err;
};

StartedProgram::StartedProgram(const Start &start) : process_(std::make_unique<Process>())
{
    const Handle input = openInput(start.input);
    Pipe out = openPipe();
    Pipe err = openPipe();

    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    startup.dwFlags = STARTF_USESTDHANDLES;
    startup.hStdInput = input.get();
    startup.hStdOutput = out.writeEnd.get();
    startup.hStdError = err.writeEnd.get();
    std::wstring line = wideText(commandLineOf(start.words));
    PROCESS_INFORMATION started{};
    const auto begin = [&] {
        return CreateProcessW(start.program.c_str(), line.data(), nullptr, nullptr, TRUE, 0, nullptr,
                              start.directory.c_str(), &startup, &started)
               != 0;
    };
    // Wine loses one process of some thousands before it has come up.
    if (!begin() && (GetLastError() != ERROR_INTERNAL_ERROR || !begin())) {
        const DWORD error = GetLastError();
        throw std::runtime_error("cannot start " + textOf(start.program) + ": error "
                                 + std::to_string(error));
    }
    CloseHandle(started.hThread);
    process_->process = Handle(started.hProcess);
    process_->out = std::move(out.readEnd);
    process_->err = std::move(err.readEnd);
}

StartedProgram::~StartedProgram()
{
    if (isRunning()) {
        TerminateProcess(process_->process.get(), 1);
        WaitForSingleObject(process_->process.get(), INFINITE);
    }
}

bool StartedProgram::isRunning() const
{
    return WaitForSingleObject(process_->process.get(), 0) == WAIT_TIMEOUT;
}

int StartedProgram::waitForExit()
{
    DWORD code = 0;
    WaitForSingleObject(process_->process.get(), INFINITE);
    GetExitCodeProcess(process_->process.get(), &code);
    return static_cast<int>(code);
}

// False where nothing more will come.
bool StartedProgram::readSome()
{
    constexpr ULONGLONG LongestSilence = 60'000;
    const ULONGLONG begin = GetTickCount64();
    while (process_->out.isOpen() || process_->err.isOpen()) {
        const bool said = readInto(ended_.out, process_->out);
        const bool complained = readInto(ended_.err, process_->err);
        if (said || complained)
            return true;
        if (GetTickCount64() - begin > LongestSilence)
            throw std::runtime_error("the program said nothing for too long");
        Sleep(1);
    }
    return false;
}

} // namespace practice_tests
