#include "regex/charset.h"

#include <algorithm> // std::ranges::sort

namespace specloom::regex {

CharSet::CharSet(std::initializer_list<CodePointRange> ranges) : ranges_(ranges) {
    normalize();
}

void CharSet::add(const CharSet& other) {
    ranges_.insert(ranges_.end(), other.ranges_.begin(), other.ranges_.end());
}

void CharSet::normalize() {
    std::ranges::sort(ranges_, {}, &CodePointRange::first);
    std::size_t kept = 0;
    for (const CodePointRange& range : ranges_) {
        if (kept > 0 && range.first <= ranges_[kept - 1].last + 1)
            ranges_[kept - 1].last = std::max(ranges_[kept - 1].last, range.last);
        else
            ranges_[kept++] = range;
    }
    ranges_.resize(kept);
}

CharSet CharSet::complement() const {
    CharSet result;
    char32_t next = 0;
    for (const CodePointRange& range : ranges_) {
        if (range.first > next)
            result.add(next, range.first - 1);
        next = range.last + 1;
    }
    if (next <= lastCodePoint)
        result.add(next, lastCodePoint);
    return result;
}

const CharSet& digitSet() {
    static const CharSet set{{'0', '9'}};
    return set;
}

const CharSet& wordSet() {
    static const CharSet set{{'0', '9'}, {'A', 'Z'}, {'_', '_'}, {'a', 'z'}};
    return set;
}

const CharSet& spaceSet() {
    // WhiteSpace and LineTerminator: U+FEFF and what has the general category Zs count.
    static const CharSet set{{0x09, 0x0D},     {0x20, 0x20},     {0xA0, 0xA0},     {0x1680, 0x1680},
                             {0x2000, 0x200A}, {0x2028, 0x2029}, {0x202F, 0x202F}, {0x205F, 0x205F},
                             {0x3000, 0x3000}, {0xFEFF, 0xFEFF}};
    return set;
}

const CharSet& dotSet() {
    static const CharSet set = CharSet{{'\n', '\n'}, {'\r', '\r'}, {0x2028, 0x2029}}.complement();
    return set;
}

} // namespace specloom::regex
