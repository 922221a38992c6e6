#include "stand_in/program.h"

#include <vector>

int main(int argc, char *argv[])
{
    const std::vector<std::string> words(argv, argv + argc);
    return practice::runProgram(words);
}
