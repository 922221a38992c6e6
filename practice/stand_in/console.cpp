#include "stand_in/console.h"

#include "stand_in/host.h"

#include <iostream>
#include <limits>

namespace practice {

void pause()
{
    if (!inputIsTerminal())
        return;
    std::cout << "Press Enter to go on." << std::flush;
    std::cin.ignore(std::numeric_limits<std::streamsize>::max(), '\n');
}

} // namespace practice
