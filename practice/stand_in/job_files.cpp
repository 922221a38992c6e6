#include "stand_in/job_files.h"

#include "stand_in/unicode_text.h"

#include <algorithm>
#include <cstddef>
#include <optional>
#include <utility>

namespace practice {

namespace {

constexpr char EitherOr = '|';

bool isOptional(std::string_view need)
{
    return need.starts_with('[');
}

bool isOfTrial(std::string_view rule)
{
    return rule.starts_with('.') || rule.starts_with('*');
}

std::string_view withoutBrackets(std::string_view need)
{
    return isOptional(need) ? need.substr(1, need.size() - 2) : need;
}

// The file name that a rule of the table (".km", "*.pj", "average.sss") means for the file `named`.
std::string fileName(std::string_view rule, const NamedFile &named)
{
    if (rule.starts_with('*'))
        return named.base + (named.extension.empty() ? std::string(rule.substr(1)) : named.extension);
    return rule.starts_with('.') ? named.base + std::string(rule) : std::string(rule);
}

std::optional<std::string> firstReadable(std::string_view need, const NamedFile &named,
                                         const DataDirectory &directory)
{
    for (const std::string_view rule : wordsOf(need, EitherOr)) {
        if (auto spelling = directory.readable(fileName(rule, named)))
            return spelling;
    }
    return std::nullopt;
}

std::string allNames(std::string_view need, const NamedFile &named)
{
    const auto rules = wordsOf(need, EitherOr);
    std::string names;
    for (std::size_t i = 0; i < rules.size(); ++i) {
        if (i > 0)
            names += i + 1 == rules.size() ? " or " : ", ";
        names += printable(fileName(rules[i], named));
    }
    return names;
}

// The trial's name in the spelling of the first of its files that was found.
std::string spelledBase(const NamedFile &named, const Inputs &inputs)
{
    const auto folded = foldedCase(named.base);
    for (const std::string &name : inputs.found) {
        std::string base = name.substr(0, name.rfind('.'));
        if (foldedCase(base) == folded)
            return base;
    }
    return named.base;
}

} // namespace

std::vector<std::string_view> wordsOf(std::string_view text, char separator)
{
    std::vector<std::string_view> words;
    while (!text.empty()) {
        const std::string_view word = text.substr(0, text.find(separator));
        words.push_back(word);
        text.remove_prefix(std::min(text.size(), word.size() + 1));
    }
    return words;
}

bool needsNamedFile(const Job &job)
{
    const auto needs = wordsOf(job.needs, ' ');
    return std::any_of(needs.begin(), needs.end(), isOfTrial);
}

NamedFile namedFor(const Job &job, const Arguments &arguments)
{
    return job.needs.find('*') == std::string_view::npos ? trialNamed(arguments.file)
                                                         : fileNamed(arguments.file);
}

Inputs findInputs(const Job &job, const NamedFile &named, const DataDirectory &directory)
{
    Inputs inputs;
    for (const std::string_view word : wordsOf(job.needs, ' ')) {
        if (isOptional(word) && named.base.empty())
            continue;
        const std::string_view need = withoutBrackets(word);
        if (auto spelling = firstReadable(need, named, directory))
            inputs.found.push_back(*std::move(spelling));
        else
            inputs.missing.push_back(allNames(need, named));
    }
    return inputs;
}

std::vector<std::string> resultNames(const Job &job, const NamedFile &named, const Inputs &inputs)
{
    const NamedFile spelled{spelledBase(named, inputs), named.extension, false};
    std::vector<std::string> names;
    for (const std::string_view rule : wordsOf(job.leaves, ' '))
        names.push_back(fileName(rule, spelled));
    return names;
}

} // namespace practice
