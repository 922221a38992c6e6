#include "stand_in/practice_run.h"

#include "stand_in/console.h"
#include "stand_in/data_directory.h"
#include "stand_in/job_files.h"
#include "stand_in/own_files.h"
#include "stand_in/program_table.h"
#include "stand_in/unicode_text.h"
#include "stand_in/usage.h"

#include <algorithm>
#include <initializer_list>
#include <ostream>
#include <string>
#include <vector>

namespace practice {

namespace {

std::string_view programNameOf(std::string_view path)
{
    const std::string_view file = path.substr(path.find_last_of("/\\:") + 1);
    return file.substr(0, file.rfind('.'));
}

// The last switch of `arguments` that is about one of `meanings`, as their table has it.
Meaning meaningAmong(std::initializer_list<Meaning> meanings, const Program &program,
                     std::string_view letters)
{
    Meaning last = Meaning::ForNamesake;
    for (const char letter : letters) {
        for (const Switch &one : program.switches) {
            const bool asked = std::find(meanings.begin(), meanings.end(), one.meaning) != meanings.end();
            if (one.letter == letter && asked)
                last = one.meaning;
        }
    }
    return last;
}

std::string joined(const std::vector<std::string> &names, std::string_view between)
{
    std::string text;
    for (const std::string &name : names)
        text.append(text.empty() ? "" : between).append(name);
    return text;
}

std::string argumentLines(const Arguments &arguments)
{
    std::string text;
    for (const std::string &argument : arguments.given)
        text += argument + '\n';
    return text;
}

/// One run: the program, its job, and where its words go.
class Run
{
public:
    Run(const Program &program, const Arguments &arguments, std::ostream &out, std::ostream &err)
        : program_(program)
        , arguments_(arguments)
        , mode_(findMode(program, arguments.letters))
        , job_(mode_ != nullptr ? mode_->job : program.job)
        , named_(namedFor(job_, arguments))
        , inputs_(findInputs(job_, named_, directory_))
        , out_(out)
        , err_(err)
    {}

    ExitCode doIt()
    {
        if (const std::string reason = whyNot(); !reason.empty()) {
            err_ << program_.title << ' ' << reason << '\n';
            return ExitCode::SomethingMissing;
        }
        const auto results = resultNames(job_, named_, inputs_);
        const std::string listing = listingToDisk() ? std::string(program_.title) + ".out" : std::string();
        return foreignFilesAmong(results, listing) ? ExitCode::ForeignFile : leaveAll(results, listing);
    }

private:
    Meaning listingDevice() const
    {
        return meaningAmong({Meaning::ListingToScreen, Meaning::ListingToPrinter, Meaning::NoListing},
                            program_, arguments_.letters);
    }

    bool listingToDisk() const { return program_.writesListing && listingDevice() == Meaning::ForNamesake; }

    std::string whyNot() const
    {
        if (named_.base.empty() && needsNamedFile(job_))
            return "needs the name of a trial; start it with /? to see how.";
        if (named_.hasDirectory && needsNamedFile(job_))
            return "takes a trial of the working directory, without a path.";
        if (!inputs_.missing.empty() && !named_.hasDirectory)
            return "needs " + joined(inputs_.missing, " and ") + " in the working directory.";
        return {};
    }

    bool foreignFilesAmong(std::vector<std::string> names, const std::string &listing)
    {
        if (!listing.empty())
            names.push_back(listing);
        bool foreign = false;
        for (const std::string &name : names) {
            for (const std::string &spelling : directory_.spellings(name)) {
                if (const auto reason = whyForeign(spelling)) {
                    err_ << program_.title << " left everything as it was, for " << printable(spelling) << ' '
                         << *reason << ".\n";
                    foreign = true;
                }
            }
        }
        return foreign;
    }

    ExitCode leaveAll(const std::vector<std::string> &results, const std::string &listing)
    {
        const std::string head = firstLine(program_.title) + '\n';
        if (program_.writesListing && listingDevice() == Meaning::ListingToScreen)
            out_ << argumentLines(arguments_);
        out_ << "Its namesake " << (mode_ != nullptr ? mode_->purpose : program_.purpose) << ".\n";
        for (const std::string &name : results) {
            if (!leaveOne(name,
                          head + "Stands in for what comes of " + joined(inputs_.found, " and ") + ".\n"))
                return ExitCode::NotWritten;
        }
        if (!listing.empty() && !leaveOne(listing, head + argumentLines(arguments_)))
            return ExitCode::NotWritten;
        return ExitCode::Done;
    }

    bool leaveOne(const std::string &name, const std::string &text)
    {
        const OwnFile file = ownFile(directory_, name);
        const bool done = leave(file, text);
        if (done)
            out_ << "It left " << printable(file.name) << ".\n";
        else
            err_ << program_.title << " could not write " << printable(file.name) << ".\n";
        return done;
    }

    const Program &program_;
    const Arguments &arguments_;
    const Mode *mode_;
    DataDirectory directory_;
    Job job_;
    NamedFile named_;
    Inputs inputs_;
    std::ostream &out_;
    std::ostream &err_;
};

} // namespace

ExitCode run(std::string_view path, const Arguments &arguments, std::ostream &out, std::ostream &err)
{
    const Program *const program = findProgram(programNameOf(path));
    if (program == nullptr) {
        const std::string name = '"' + printable(programNameOf(path)) + '"';
        out << firstLine(name) << '\n';
        err << name << " is no name of a program of the package.\n";
        return ExitCode::UnknownName;
    }
    out << firstLine(program->title) << '\n';
    if (arguments.wantsUsage) {
        out << usageOf(*program);
        pause();
        return ExitCode::Done;
    }
    const ExitCode code = Run(*program, arguments, out, err).doIt();
    if (meaningAmong({Meaning::Pause}, *program, arguments.letters) == Meaning::Pause)
        pause();
    return code;
}

} // namespace practice
