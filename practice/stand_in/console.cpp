#include "stand_in/console.h"

#include <iostream>
#include <limits>

#ifdef _WIN32
#include <io.h>
#else
#include <unistd.h>
#endif

namespace practice {

bool inputIsTerminal()
{
#ifdef _WIN32
    return _isatty(0) != 0;
#else
    return isatty(STDIN_FILENO) != 0;
#endif
}

void pause()
{
    if (!inputIsTerminal())
        return;
    std::cout << "Press Enter to go on." << std::flush;
    std::cin.ignore(std::numeric_limits<std::streamsize>::max(), '\n');
}

} // namespace practice
