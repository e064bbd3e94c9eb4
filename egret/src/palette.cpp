#include "egret/palette.h"

#include "regex/properties.h"

#include <algorithm>   // std::max, std::min
#include <string_view> // std::string_view

namespace specloom::egret {

namespace {

constexpr std::string_view vowels = "aeiou";
constexpr std::string_view consonants = "bcdfghklmnprstvw";

regex::CharSet intersection(const regex::CharSet& left, const regex::CharSet& right) {
    regex::CharSet result;
    auto other = right.ranges().begin();
    for (auto range = left.ranges().begin(); range != left.ranges().end() && other != right.ranges().end();) {
        const char32_t first = std::max(range->first, other->first);
        const char32_t last = std::min(range->last, other->last);
        if (first <= last)
            result.add(first, last);
        range->last < other->last ? ++range : ++other;
    }
    return result;
}

std::uint32_t sizeOf(const regex::CharSet& set) {
    std::uint32_t size = 0;
    for (const regex::CodePointRange& range : set.ranges())
        size += range.last - range.first + 1;
    return size;
}

const regex::CharSet& letters() {
    static const regex::CharSet set = regex::unicodeProperty("L").value();
    return set;
}

const regex::CharSet& printing() {
    static const regex::CharSet set = [] {
        regex::CharSet rest = regex::unicodeProperty("C").value();
        rest.add(regex::unicodeProperty("Z").value());
        rest.add(regex::unicodeProperty("M").value()); // they join the character in front
        rest.normalize();
        return rest.complement();
    }();
    return set;
}

/// Of lower and upper case the one that has more, and the digits.
regex::CharSet lettersAndDigits(const regex::CharSet& set) {
    const regex::CharSet lower = intersection(set, {{'a', 'z'}});
    const regex::CharSet upper = intersection(set, {{'A', 'Z'}});
    regex::CharSet result = intersection(set, regex::digitSet());
    result.add(sizeOf(lower) >= sizeOf(upper) ? lower : upper);
    result.normalize();
    return result;
}

bool isVowel(char32_t character) {
    return character < 0x80 && vowels.find(static_cast<char>(character | 0x20U)) != std::string_view::npos;
}

bool isLetterOrDigit(char32_t character) {
    const char32_t lower = character | 0x20U;
    return (lower >= 'a' && lower <= 'z') || (character >= '0' && character <= '9');
}

} // namespace

Palette::Palette(const regex::CharSet& set) {
    regex::CharSet best = lettersAndDigits(set);
    weight_ = std::min(sizeOf(best), 8U);
    if (best.ranges().empty()) {
        best = intersection(set, {{'!', '~'}});
        weight_ = best.ranges().empty() ? 0 : 1;
    }
    if (best.ranges().empty())
        best = intersection(set, letters());
    if (best.ranges().empty())
        best = intersection(set, printing());
    if (best.ranges().empty())
        best = intersection(set, {{' ', ' '}});
    if (best.ranges().empty())
        best = set;
    ranges_ = best.ranges();
    count_ = sizeOf(best);
    for (const regex::CodePointRange& range : ranges_) {
        if (range.last - range.first == 25 && (range.first == 'a' || range.first == 'A'))
            letters_ = range.first;
        digits_ = digits_ || (range.first == '0' && range.last == '9');
    }
}

char32_t Palette::pick(char32_t previous, const Draw& draw) const {
    if (letters_ != 0) {
        if (digits_ && isLetterOrDigit(previous) && draw(8) == 0)
            return static_cast<char32_t>('0' + draw(10));
        const std::string_view choice =
            previous == 0 || isVowel(previous) || !isLetterOrDigit(previous) ? consonants : vowels;
        return letters_ + static_cast<char32_t>(choice[draw(choice.size())] - 'a');
    }
    auto index = static_cast<char32_t>(draw(count_));
    for (const regex::CodePointRange& range : ranges_) {
        if (index <= range.last - range.first)
            return range.first + index;
        index -= range.last - range.first + 1;
    }
    return ranges_.back().last; // for a draw beyond its bound
}

} // namespace specloom::egret
