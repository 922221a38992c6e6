#include "stand_in/usage.h"

#include "stand_in/job_files.h"

#include <string_view>

namespace practice {

namespace {

// One need or result of the table in words: "[*.dg]" becomes "the named file (.dg), if any".
std::string inWords(std::string_view rule)
{
    const auto plain = [](std::string_view name) {
        if (name.starts_with('*'))
            return "the named file (" + std::string(name.substr(1)) + ")";
        return (name.starts_with('.') ? "trial" : "") + std::string(name);
    };
    if (rule.starts_with('['))
        return plain(rule.substr(1, rule.size() - 2)) + ", if any";
    std::string words;
    for (const std::string_view name : wordsOf(rule, '|'))
        words += (words.empty() ? "" : " or ") + plain(name);
    return words;
}

std::string listed(std::string_view rules)
{
    std::string list;
    for (const std::string_view rule : wordsOf(rules, ' '))
        list += (list.empty() ? "" : ", ") + inWords(rule);
    return list.empty() ? "nothing" : list;
}

std::string describe(std::string_view purpose, const Job &job)
{
    return "Its namesake " + std::string(purpose) + ".\n  Needs:   " + listed(job.needs)
           + "\n  Leaves:  " + listed(job.leaves) + "\n";
}

std::string argumentOf(const Job &job)
{
    return needsNamedFile(job) ? "trial" : "[file]";
}

} // namespace

std::string usageOf(const Program &program)
{
    std::string text = "\nUsage: " + std::string(program.name)
                       + (program.switches.empty() ? " " : " [switches] ") + argumentOf(program.job) + "\n\n"
                       + describe(program.purpose, program.job);
    for (const Mode &mode : allModes()) {
        if (mode.program == program.name)
            text += std::string("With /") + mode.letter + ": " + describe(mode.purpose, mode.job);
    }
    text += "  Listing: " + (program.writesListing ? std::string(program.title) + ".out" : "none") + "\n\n";
    text += "Switches, alone or glued together (/A/C):\n";
    for (const Switch &one : program.switches)
        text += std::string("  /") + one.letter + "  " + std::string(one.text) + "\n";
    text += "  /?  this text\n\n"
            "Ends with 0 when done; 1 when something that it needs is not there, and 2 when a\n"
            "file in its way is not its own (then it has left nothing); 4 when a file could not\n"
            "be written.\n";
    return text;
}

} // namespace practice
