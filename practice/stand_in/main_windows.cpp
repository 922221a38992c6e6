#include "stand_in/program.h"
#include "stand_in/wide_text.h"

#include <iostream>
#include <streambuf>
#include <vector>

#include <windows.h>

namespace {

/// Shows what goes through `stream` on the console, where it leads to one, whatever the console's code page.
class ConsoleText : public std::streambuf
{
public:
    ConsoleText(std::ostream &stream, DWORD output) : stream_(stream), console_(GetStdHandle(output))
    {
        DWORD mode = 0;
        if (GetConsoleMode(console_, &mode) != 0)
            before_ = stream_.rdbuf(this);
    }
    ConsoleText(const ConsoleText &) = delete;
    ConsoleText &operator=(const ConsoleText &) = delete;
    ~ConsoleText() override
    {
        if (before_ == nullptr)
            return;
        stream_.flush();
        stream_.rdbuf(before_);
    }

protected:
    int_type overflow(int_type byte) override
    {
        text_ += traits_type::to_char_type(byte);
        return traits_type::not_eof(byte);
    }

    std::streamsize xsputn(const char *bytes, std::streamsize count) override
    {
        text_.append(bytes, static_cast<std::size_t>(count));
        return count;
    }

    int sync() override
    {
        const std::wstring text = practice::wideText(text_);
        text_.clear();
        DWORD count = 0;
        return WriteConsoleW(console_, text.data(), static_cast<DWORD>(text.size()), &count, nullptr) != 0
                   ? 0
                   : -1;
    }

private:
    std::ostream &stream_;
    HANDLE console_;
    std::streambuf *before_ = nullptr;
    std::string text_;
};

// The words that main gets have been through a code page, which knows only some characters.
std::vector<std::string> commandLine()
{
    std::vector<std::string> words;
    int count = 0;
    LPWSTR *const wide = CommandLineToArgvW(GetCommandLineW(), &count);
    for (int i = 0; wide != nullptr && i < count; ++i)
        words.push_back(practice::narrowText(wide[i]));
    LocalFree(wide);
    return words;
}

} // namespace

int main()
{
    const ConsoleText out(std::cout, STD_OUTPUT_HANDLE);
    const ConsoleText err(std::cerr, STD_ERROR_HANDLE);
    return practice::runProgram(commandLine());
}
