#include "egret/checks/length_contradiction.h"

#include "egret/checks/language.h"

#include <string> // std::string, std::to_string

namespace specloom::egret::checks {

namespace {

std::string describedLengths(const Lengths& lengths) {
    if (lengths.max == UINT64_MAX)
        return "at least " + std::to_string(lengths.min) + " characters";
    if (lengths.min == lengths.max)
        return "exactly " + std::to_string(lengths.min) + " characters";
    if (lengths.min == 0)
        return "at most " + std::to_string(lengths.max) + " characters";
    return std::to_string(lengths.min) + " to " + std::to_string(lengths.max) + " characters";
}

} // namespace

void findLengthContradiction(const Subject& subject, Findings& findings) {
    const Lengths& lengths = subject.use.lengths;
    const bool limited = lengths.min > 0 || lengths.max < UINT64_MAX;
    if (!limited || lengths.min > lengths.max)
        return;
    Budget budget;
    const Language language(subject, budget);
    if (matchesAnything(language.automaton) && !hasLength(language.automaton, lengths, budget))
        findings.add(0, "No text of " + describedLengths(lengths) + " matches the pattern");
}

} // namespace specloom::egret::checks
