// The echo program: records the arguments it got and the directory it runs in, for tests that start real
// processes. The record goes to the file named by ECHO_FILE: the directory and every argument, each ended by
// a NUL. ECHO_EXIT is its exit code; "abort" makes it crash.

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

int main(int argc, char *argv[])
{
    const char *file = std::getenv("ECHO_FILE");
    if (file == nullptr)
        return 125;
    const std::string unfinished = std::string(file) + ".unfinished";
    {
        std::ofstream record(unfinished, std::ios::binary);
        record << std::filesystem::current_path().string() << '\0';
        for (int i = 0; i < argc; ++i)
            record << argv[i] << '\0';
    }
    std::rename(unfinished.c_str(), file);
    const char *code = std::getenv("ECHO_EXIT");
    if (code != nullptr && std::string(code) == "abort")
        std::abort();
    return code == nullptr ? 0 : std::atoi(code);
}
