#pragma once

#include <span>
#include <string_view>

namespace practice {

/// What a switch asks of a practice program. Most switches are for the namesake's own work and change nothing
/// here.
enum class Meaning { ForNamesake, ListingToScreen, ListingToPrinter, NoListing, Pause };

/// One switch of a program: what it does, the character behind its "/" or "-", and what it asks of us.
struct Switch
{
    std::string_view text;
    char letter;
    Meaning meaning = Meaning::ForNamesake;
};

/// What a program reads and what it leaves: names with a blank between them. ".cn" is that file of the trial,
/// "*.pj" the file that was named (with this extension where it was named without one), "average.sss" a file
/// of that name. ".fo|.jp" is either of the two. A name in brackets is needed only where a file was named at
/// all.
struct Job
{
    std::string_view needs;
    std::string_view leaves;
};

/// One practice program.
struct Program
{
    std::string_view name;    ///< file name without ".exe", in lower case
    std::string_view title;   ///< the name as the panel spells it; its listing is this with ".out"
    std::string_view purpose; ///< what its namesake does, behind "Its namesake"
    Job job;
    bool writesListing;
    std::span<const Switch> switches;
};

/// A switch that sets a program to another job than its usual one.
struct Mode
{
    std::string_view program;
    char letter;
    std::string_view purpose; ///< what its namesake does then, behind "Its namesake"
    Job job;
};

/// All practice programs.
std::span<const Program> allPrograms();

/// All switches that change a job.
std::span<const Mode> allModes();

/// The program with the file name `name` (no directory, no extension, any case); null where there is none.
const Program *findProgram(std::string_view name);

/// The mode that `letters`, the switches a program got, set it to; null for its usual job.
const Mode *findMode(const Program &program, std::string_view letters);

} // namespace practice
