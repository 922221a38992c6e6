// One program in the place of every program of the package. Installed under their names, it lets the control
// panel be tried without them: it knows by its own file name whose place it takes.

#include "stand_in/arguments.h"
#include "stand_in/practice_run.h"

#include <cstddef>
#include <exception>
#include <iostream>
#include <span>

int main(int argc, char *argv[])
{
    try {
        const std::span<const char *const> all(argv, static_cast<std::size_t>(argc));
        const bool named = !all.empty();
        const practice::Arguments arguments = practice::readArguments(all.subspan(named ? 1 : 0));
        return static_cast<int>(practice::run(named ? all.front() : "", arguments, std::cout, std::cerr));
    } catch (const std::exception &error) {
        std::cerr << error.what() << '\n';
        return static_cast<int>(practice::ExitCode::NotWritten);
    }
}
