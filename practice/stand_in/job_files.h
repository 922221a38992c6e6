#pragma once

#include "stand_in/arguments.h"
#include "stand_in/data_directory.h"
#include "stand_in/program_table.h"

#include <string>
#include <string_view>
#include <vector>

namespace practice {

/// The words of `text`, cut at each `separator`.
std::vector<std::string_view> wordsOf(std::string_view text, char separator);

/// What a job finds in the working directory.
struct Inputs
{
    std::vector<std::string> found; ///< the files it reads, as they are spelled
    std::vector<std::string>
        missing; ///< the files it needs and does not find; "A.fo or A.jp" where either would do
};

/// Whether `job` can do nothing until a file is named.
bool needsNamedFile(const Job &job);

/// The file that `arguments` name, cut as `job` takes it.
NamedFile namedFor(const Job &job, const Arguments &arguments);

/// Looks for all that `job` needs for the file `named`.
Inputs findInputs(const Job &job, const NamedFile &named, const DataDirectory &directory);

/// The names of what `job` leaves for the file `named`, with the trial spelled as its files `inputs` spell
/// it.
std::vector<std::string> resultNames(const Job &job, const NamedFile &named, const Inputs &inputs);

} // namespace practice
