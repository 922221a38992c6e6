#pragma once

#include <ostream>
#include <string>
#include <vector>

namespace practice_tests {

/// One start of a program as the panel does it, and what must come of it.
struct Expected
{
    std::string program;                ///< file name
    std::string title;                  ///< as the panel spells it
    std::vector<std::string> arguments; ///< as the panel passes them
    std::vector<std::string> needs;     ///< without any one of these it must refuse
    std::vector<std::string> leaves;    ///< all results
    std::string listing;                ///< empty where it writes none
};

/// Every program at least once; one that has several jobs, once a job.
const std::vector<Expected> &expectedPrograms();

/// The file names of all programs.
std::vector<std::string> programNames();

/// Names a row in a test's report.
std::ostream &operator<<(std::ostream &stream, const Expected &expected);

} // namespace practice_tests
