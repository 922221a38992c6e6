#pragma once

#include "stand_in/program_table.h"

#include <string>

namespace practice {

/// What `program` says to "/?", below its first line.
std::string usageOf(const Program &program);

} // namespace practice
