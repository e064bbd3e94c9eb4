#include "jv_schema/value_set.h"

#include "foundation/hash.h"

#include <bit>        // std::bit_cast
#include <cstdlib>    // std::strtod
#include <functional> // std::hash

namespace specloom::jv::schema {

namespace {

constexpr std::size_t fewValues = 8; // are compared one by one

/// Of the nearest float, since integers and floats compare as floats.
[[nodiscard]] std::uint64_t hashOfNumber(const number::Number& number) {
    const double value = number.kind() == number::NumberKind::Big
                             ? std::strtod(number.toString().c_str(), nullptr)
                             : number.toDouble();
    return std::bit_cast<std::uint64_t>(value == 0 ? 0.0 : value) * 0x9e3779b97f4a7c15;
}

[[nodiscard]] std::uint64_t hashOfText(std::string_view text) {
    return std::hash<std::string_view>()(text);
}

[[nodiscard]] std::uint64_t hashOfScalar(const JV& value) {
    const auto kind = static_cast<std::uint64_t>(value.kind());
    switch (value.kind()) {
    case Kind::Boolean:
        return combine(kind, value.boolean() ? 1 : 0);
    case Kind::Number:
        return combine(kind, hashOfNumber(value.number()));
    case Kind::String:
        return combine(kind, hashOfText(value.text()));
    default:
        return combine(kind, value.size());
    }
}

enum class Comparison { Equal, Different, Unknown };

[[nodiscard]] bool isContainer(const JV& value) noexcept {
    return value.isArray() || value.isObject();
}

[[nodiscard]] Comparison comparedShallowly(const JV& a, const JV& b) {
    if (a.kind() != b.kind() || a.size() != b.size())
        return Comparison::Different;
    if (isContainer(a))
        return a.size() == 0 ? Comparison::Equal : Comparison::Unknown;
    return equalValues(a, b) ? Comparison::Equal : Comparison::Different;
}

/// Compares the children of two containers of one kind and size, but not theirs: most that differ do so here.
[[nodiscard]] Comparison compareChildren(const JV& a, const JV& b) {
    Comparison result = Comparison::Equal;
    for (std::size_t i = 0; i < a.size() && result != Comparison::Different; ++i) {
        Comparison child;
        if (a.isArray()) {
            child = comparedShallowly(*a.elements()[i], *b.elements()[i]);
        } else {
            const Member one = a.members()[i];
            const Member two = b.members()[i];
            child = one.key.data() != two.key.data() ? Comparison::Different
                                                     : comparedShallowly(*one.value, *two.value);
        }
        if (child != Comparison::Equal)
            result = child;
    }
    return result;
}

} // namespace

bool equalValues(const JV& a, const JV& b) {
    if (a.kind() != b.kind())
        return false;
    switch (a.kind()) {
    case Kind::Null:
        return true;
    case Kind::Boolean:
        return a.boolean() == b.boolean();
    case Kind::Number:
        return a.number().compare(b.number()) == 0;
    case Kind::String:
        return a.text() == b.text();
    case Kind::Array:
    case Kind::Object:
        break;
    }
    if (a.size() != b.size())
        return false;
    const Comparison children = compareChildren(a, b);
    return children == Comparison::Equal || (children == Comparison::Unknown && a.equals(b));
}

std::uint64_t hashOfValue(const JV& value, std::size_t& visited) {
    // Children in the order in which they come off the stack: equal values have them in the same order.
    std::uint64_t hash = 0;
    std::vector<const JV*> open;
    const JV* next = &value;
    for (;;) {
        ++visited;
        hash = combine(hash, hashOfScalar(*next));
        if (next->isArray()) {
            open.insert(open.end(), next->elements().begin(), next->elements().end());
        } else if (next->isObject()) {
            for (const Member member : next->members()) {
                hash = combine(hash, hashOfText(member.key));
                open.push_back(member.value);
            }
        }
        if (open.empty())
            return hash;
        next = open.back();
        open.pop_back();
    }
}

ValueSet::ValueSet(std::span<const JV* const> values) : values_(values.begin(), values.end()) {
    if (values_.size() <= fewValues)
        return;
    std::size_t visited = 0;
    for (const JV* value : values_)
        byHash_.emplace(hashOfValue(*value, visited), value);
}

bool ValueSet::contains(const JV& value, std::size_t& visited) const {
    if (byHash_.empty()) {
        for (const JV* candidate : values_) {
            if (equalValues(*candidate, value))
                return true;
        }
        return false;
    }
    const auto [begin, end] = byHash_.equal_range(hashOfValue(value, visited));
    for (auto entry = begin; entry != end; ++entry) {
        if (equalValues(*entry->second, value))
            return true;
    }
    return false;
}

} // namespace specloom::jv::schema
