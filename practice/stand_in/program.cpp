// One program in the place of every program of the package. Installed under their names, it lets the control
// panel be tried without them: it knows by its own file name whose place it takes.

#include "stand_in/program.h"

#include "stand_in/arguments.h"
#include "stand_in/practice_run.h"

#include <exception>
#include <iostream>

namespace practice {

int runProgram(std::span<const std::string> words)
{
    try {
        const bool named = !words.empty();
        const Arguments arguments = readArguments(words.subspan(named ? 1 : 0));
        return static_cast<int>(run(named ? words.front() : "", arguments, std::cout, std::cerr));
    } catch (const std::exception &error) {
        std::cerr << error.what() << '\n';
        return static_cast<int>(ExitCode::NotWritten);
    }
}

} // namespace practice
