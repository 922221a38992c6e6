#include "stand_in/arguments.h"

#include "stand_in/unicode_text.h"

#include <algorithm>
#include <cstddef>
#include <iterator>

namespace practice {

namespace {

constexpr std::string_view Extensions[] = {
    ".dg", ".cn", ".cfb", ".ren", ".cda", ".cf",  ".3d",   ".1t",  ".2t",  ".3t",  ".4t",
    ".5t", ".6t", ".7t",  ".8t",  ".9t",  ".rf",  ".rf2",  ".fr",  ".ns",  ".cut", ".km",
    ".ks", ".mm", ".mu",  ".en",  ".tq",  ".fo",  ".jp",   ".ps",  ".pj",  ".sim", ".sn",
    ".av", ".dr", ".ra",  ".plt", ".hpg", ".pgl", ".hpgl", ".acd", ".out", ".sss"};

bool isSwitch(std::string_view argument)
{
    return argument.starts_with('/') || argument.starts_with('-');
}

// A graph type goes to the graph program behind the trial.
bool isGraphType(std::string_view argument)
{
    return foldedCase(argument).ends_with(U".gra");
}

char upperCase(char c)
{
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}

void readSwitches(std::string_view argument, Arguments &arguments)
{
    const char sign = argument.front();
    while (!argument.empty()) {
        argument.remove_prefix(1);
        const std::string_view piece = argument.substr(0, argument.find(sign));
        argument.remove_prefix(piece.size());
        if (piece.empty())
            continue;
        arguments.letters += upperCase(piece.front());
        if (piece.front() == '?' || foldedCase(piece) == U"help")
            arguments.wantsUsage = true;
    }
}

NamedFile cutAt(std::string_view file, std::size_t dot)
{
    return {std::string(file.substr(0, dot)), std::string(file.substr(dot)),
            file.find_first_of("/\\:") != std::string_view::npos};
}

std::size_t lastDot(std::string_view file)
{
    return std::min(file.rfind('.'), file.size());
}

} // namespace

Arguments readArguments(std::span<const std::string> given)
{
    Arguments arguments;
    for (const std::string &argument : given) {
        arguments.given.push_back(argument);
        if (isSwitch(argument))
            readSwitches(argument, arguments);
        else if (!argument.empty() && !isGraphType(argument))
            arguments.file = argument;
    }
    if (arguments.file == ";")
        arguments.file.clear();
    return arguments;
}

NamedFile trialNamed(std::string_view file)
{
    const std::size_t dot = lastDot(file);
    const auto extension = foldedCase(file.substr(dot));
    const bool known = std::any_of(std::begin(Extensions), std::end(Extensions),
                                   [&](std::string_view one) { return foldedCase(one) == extension; });
    return cutAt(file, known ? dot : file.size());
}

NamedFile fileNamed(std::string_view file)
{
    return cutAt(file, lastDot(file));
}

} // namespace practice
