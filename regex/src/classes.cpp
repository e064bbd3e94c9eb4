#include "regex/classes.h"

#include "regex/syntax_error.h"

#include <algorithm> // std::ranges::sort, std::ranges::upper_bound, std::unique

namespace specloom::regex {

namespace {

/// Of sets times segments: 16 MB of members, and as many steps to find the classes.
constexpr std::size_t maxCells = std::size_t{1} << 27U;

} // namespace

CharacterClasses::CharacterClasses(std::span<const CharSet> sets, std::span<const char32_t> characters) {
    cut(sets, characters);
    if (sets.size() * begins_.size() > maxCells)
        throw SyntaxError("Pattern is too large", 0);
    classes_.assign(begins_.size(), 0);
    sizes_.assign(1, begins_.size());
    std::vector<std::size_t> segments;
    const auto addRange = [&](char32_t first, char32_t last) {
        for (std::size_t i = segmentOf(first); i < begins_.size() && begins_[i] <= last; ++i)
            segments.push_back(i);
    };
    for (const CharSet& set : sets) {
        segments.clear();
        for (const CodePointRange& range : set.ranges())
            addRange(range.first, range.last);
        split(segments);
    }
    for (const char32_t character : characters) {
        segments.clear();
        addRange(character, character);
        split(segments);
    }
    for (unsigned char character = 0; character < 128; ++character)
        ascii_[character] = classes_[segmentOf(character)];
    members_.resize(sets.size() * count_);
    for (std::size_t set = 0; set < sets.size(); ++set) {
        segments.clear();
        for (const CodePointRange& range : sets[set].ranges())
            addRange(range.first, range.last);
        for (const std::size_t segment : segments)
            members_[set * count_ + classes_[segment]] = true;
    }
}

void CharacterClasses::cut(std::span<const CharSet> sets, std::span<const char32_t> characters) {
    begins_.push_back(0);
    const auto addRange = [this](char32_t first, char32_t last) {
        begins_.push_back(first);
        if (last < lastCodePoint)
            begins_.push_back(last + 1);
    };
    for (const CharSet& set : sets) {
        for (const CodePointRange& range : set.ranges())
            addRange(range.first, range.last);
    }
    for (const char32_t character : characters)
        addRange(character, character);
    std::ranges::sort(begins_);
    begins_.erase(std::unique(begins_.begin(), begins_.end()), begins_.end());
}

/// Parts each class that has members both among the segments and outside.
void CharacterClasses::split(std::span<const std::size_t> segments) {
    std::vector<std::uint32_t> touched;
    inside_.resize(sizes_.size(), 0);
    for (const std::size_t segment : segments) {
        if (inside_[classes_[segment]]++ == 0)
            touched.push_back(classes_[segment]);
    }
    renamed_.resize(sizes_.size());
    for (const std::uint32_t old : touched) {
        renamed_[old] = old;
        if (inside_[old] != sizes_[old]) {
            renamed_[old] = count_++;
            sizes_.push_back(inside_[old]);
            sizes_[old] -= inside_[old];
        }
        inside_[old] = 0;
    }
    for (const std::size_t segment : segments)
        classes_[segment] = renamed_[classes_[segment]];
}

std::size_t CharacterClasses::segmentOf(char32_t codePoint) const {
    const auto behind = std::ranges::upper_bound(begins_, codePoint);
    return static_cast<std::size_t>(behind - begins_.begin()) - 1;
}

std::uint32_t CharacterClasses::of(char32_t codePoint) const {
    return classes_[segmentOf(codePoint)];
}

} // namespace specloom::regex
