#include "egret/checks/class_overlap.h"

#include "egret/analysis/tree.h"
#include "egret/checks/class_alternation.h"
#include "egret/checks/class_entries.h"
#include "egret/checks/class_number.h"
#include "egret/checks/class_separator.h"
#include "egret/checks/posix_class.h"

#include <algorithm> // std::ranges::sort, std::minmax
#include <optional>  // std::optional
#include <utility>   // std::pair
#include <vector>    // std::vector

namespace specloom::egret::checks {

namespace {

struct EntryRange {
    char32_t first;
    char32_t last;
    std::size_t entry;
};

std::vector<EntryRange> rangesOf(const regex::Spelling::Class& members) {
    std::vector<EntryRange> ranges;
    for (std::size_t i = 0; i < members.entries.size(); ++i) {
        const regex::Spelling::ClassEntry& entry = members.entries[i];
        if (!isNamed(entry))
            ranges.push_back({entry.first, entry.last, i});
        for (const regex::CodePointRange& range : entry.named.ranges())
            ranges.push_back({range.first, range.last, i});
    }
    std::ranges::sort(ranges, {}, &EntryRange::first);
    return ranges;
}

/// The first two entries, by what they stand for, that have a character in common.
std::optional<std::pair<std::size_t, std::size_t>> overlapIn(const regex::Spelling::Class& members) {
    const std::vector<EntryRange> ranges = rangesOf(members);
    std::size_t widest = 0;
    for (std::size_t i = 1; i < ranges.size(); ++i) {
        if (ranges[i].first <= ranges[widest].last)
            return std::minmax(ranges[i].entry, ranges[widest].entry);
        widest = i;
    }
    return std::nullopt;
}

/// Whether another check says what is wrong with the class.
bool isExplained(const Subject& subject, const regex::Spelling::Class& members) {
    return isClassAlternation(subject, members) || hasSeparators(subject, members) || hasNumbers(members) ||
           isPosixClass(subject, members);
}

} // namespace

void findClassOverlap(const Subject& subject, Findings& findings) {
    for (const regex::Spelling::Class& members : subject.spelling.classes) {
        const auto overlap = overlapIn(members);
        if (!overlap || isExplained(subject, members))
            continue;
        const regex::Spelling::ClassEntry& second = members.entries[overlap->second];
        std::string message = quoted(subject.textOf(members.entries[overlap->first]));
        const std::string other = quoted(subject.textOf(second));
        if (message == other)
            message += " stands twice";
        else
            message.append(" and ").append(other).append(" overlap");
        findings.add(second.begin, message.append(" in the class ").append(quoted(subject.textOf(members))));
    }
}

} // namespace specloom::egret::checks
