#include "started_program.h"

namespace practice_tests {

bool StartedProgram::says(const std::string &text)
{
    while (ended_.out.find(text) == std::string::npos) {
        if (!readSome())
            return false;
    }
    return true;
}

Ended StartedProgram::end()
{
    while (readSome())
        continue;
    ended_.exitCode = waitForExit();
    return ended_;
}

Ended runToEnd(const Start &start)
{
    return StartedProgram(start).end();
}

} // namespace practice_tests
