#include "egret/length_set.h"

#include <algorithm> // std::max, std::min, std::ranges::any_of, std::ranges::sort
#include <numeric>   // std::gcd
#include <tuple>     // std::tuple

namespace specloom::egret {

namespace {

/// Progressions that the next one is compared with, to go on from one.
constexpr std::size_t comparedParts = 8;

Length countOf(const Progression& part) {
    return (part.last - part.first) / part.step + 1;
}

/// Makes `part` hold the other, whose first is not smaller, where the two are one progression.
bool absorb(Progression& part, const Progression& other) {
    const bool single = part.first == part.last;
    const bool otherIsSingle = other.first == other.last;
    if (single && otherIsSingle) {
        if (other.first == part.first)
            return true;
        part = {part.first, other.first, other.first - part.first};
        return true;
    }
    const Length step = single ? other.step : part.step;
    const bool fits = (other.first - part.first) % step == 0 && (otherIsSingle || other.step % step == 0);
    if (!fits)
        return false;
    const bool within = other.last <= part.last && !single;
    const bool goesOn = other.first <= part.last + step && (otherIsSingle || other.step == step);
    if (!within && !goesOn)
        return false;
    part = {part.first, std::max(part.last, other.last), step};
    return true;
}

/// With one of `left` in turn; only so many of them differ as seen from the other side.
std::optional<Sum> sumOfParts(const Progression& left, const Progression& right, Length bound) {
    const Length nearest = bound > right.last ? bound - right.last : 0;
    std::optional<Length> begin = left.atLeast(nearest);
    if (!begin)
        return std::nullopt;
    std::optional<Sum> best;
    const Length rounds = right.first == right.last ? 1 : right.step / std::gcd(left.step, right.step);
    Length value = *begin;
    for (Length i = 0; i < rounds && value <= left.last; ++i, value += left.step) {
        const auto other = right.atLeast(bound > value ? bound - value : 0);
        if (other && (!best || value + *other < best->total))
            best = Sum{value + *other, value};
        if (best && best->total == bound)
            break;
    }
    return best;
}

} // namespace

std::optional<Length> Progression::atLeast(Length bound) const {
    if (bound <= first)
        return first;
    if (bound > last)
        return std::nullopt;
    return first + (bound - first + step - 1) / step * step;
}

bool LengthSet::contains(Length length) const {
    return std::ranges::any_of(parts_, [=](const Progression& part) { return part.contains(length); });
}

std::optional<Length> LengthSet::atLeast(Length bound) const {
    std::optional<Length> result;
    for (const Progression& part : parts_) {
        const auto length = part.atLeast(bound);
        if (length && (!result || *length < *result))
            result = length;
    }
    return result;
}

void LengthSet::add(const LengthSet& other, Length more, Length limit) {
    for (const Progression& part : other.parts_) {
        if (more > limit || part.first > limit - more)
            continue;
        const Length count = std::min(countOf(part), (limit - more - part.first) / part.step + 1);
        const Length first = part.first + more;
        parts_.push_back({first, first + (count - 1) * part.step, count == 1 ? 1 : part.step});
    }
}

void LengthSet::normalize() {
    if (parts_.size() < 2)
        return;
    std::ranges::sort(parts_, {},
                      [](const Progression& part) { return std::tuple(part.first, ~part.last, part.step); });
    std::size_t kept = 0;
    for (std::size_t i = 0; i < parts_.size(); ++i) {
        const Progression part = parts_[i];
        bool isNew = true;
        for (std::size_t back = 1; isNew && back <= std::min(kept, comparedParts); ++back)
            isNew = !absorb(parts_[kept - back], part);
        if (isNew)
            parts_[kept++] = part;
    }
    parts_.resize(kept);
}

void LengthSet::appendAll(Length length, Length step, Length limit) {
    if (length > limit)
        return;
    const Length last = length + (limit - length) / step * step;
    for (auto part = parts_.rbegin(); part != parts_.rend(); ++part) {
        if (part->last + step == length && (part->step == step || part->first == part->last)) {
            part->step = step;
            part->last = last;
            return;
        }
    }
    parts_.push_back({length, last, length == last ? 1 : step});
}

std::optional<Sum> sumAtLeast(const LengthSet& left, const LengthSet& right, Length bound) {
    std::optional<Sum> best;
    for (const Progression& part : left.parts()) {
        for (const Progression& other : right.parts()) {
            const auto sum = sumOfParts(part, other, bound);
            if (sum && (!best || sum->total < best->total))
                best = sum;
        }
    }
    return best;
}

} // namespace specloom::egret
