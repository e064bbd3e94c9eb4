#include "jv/equal_values.h"

#include "foundation/keyed_hash.h"
#include "number/exact_numbers.h"

#include <utility> // std::pair
#include <vector>  // std::vector

namespace specloom::jv {

namespace {

[[nodiscard]] bool equalScalars(const JV& a, const JV& b) {
    switch (a.kind()) {
    case Kind::Boolean:
        return a.boolean() == b.boolean();
    case Kind::Number:
        return number::compareExactly(a.number(), b.number()) == 0;
    case Kind::String:
        return a.text() == b.text();
    default:
        return true;
    }
}

/// What is known of a value without its children; of a container its kind, its size and its keys.
void addShallowly(KeyedHasher& hasher, const JV& value) {
    hasher.add(static_cast<std::uint64_t>(value.kind()));
    switch (value.kind()) {
    case Kind::Boolean:
        hasher.add(value.boolean() ? 1 : 0);
        break;
    case Kind::Number:
        hasher.add(number::hashExactly(value.number()));
        break;
    case Kind::String:
        hasher.add(value.text());
        break;
    default:
        hasher.add(value.size());
    }
}

enum class Comparison { Equal, Different, Unknown };

[[nodiscard]] bool hasChildren(const JV& value) noexcept {
    return value.isArray() || value.isObject();
}

[[nodiscard]] Comparison compareShallowly(const JV& a, const JV& b) {
    if (a.kind() != b.kind() || a.size() != b.size())
        return Comparison::Different;
    if (hasChildren(a))
        return a.size() == 0 ? Comparison::Equal : Comparison::Unknown;
    return equalScalars(a, b) ? Comparison::Equal : Comparison::Different;
}

using Pair = std::pair<const JV*, const JV*>;

/// Whether no two children of two containers of one kind and size differ without a look at theirs. Those that
/// have some are added to `open`.
[[nodiscard]] bool childrenMayEqual(const JV& a, const JV& b, std::vector<Pair>& open) {
    for (std::size_t i = 0; i < a.size(); ++i) {
        Pair children;
        if (a.isArray()) {
            children = {a.elements()[i], b.elements()[i]};
        } else {
            const Member one = a.members()[i];
            const Member two = b.members()[i];
            // Keys are kept once for the whole process, so equal keys are the same bytes.
            if (one.key.data() != two.key.data())
                return false;
            children = {one.value, two.value};
        }
        const Comparison found = compareShallowly(*children.first, *children.second);
        if (found == Comparison::Different)
            return false;
        if (found == Comparison::Unknown)
            open.push_back(children);
    }
    return true;
}

} // namespace

bool equalValues(const JV& a, const JV& b) {
    const Comparison shallow = compareShallowly(a, b);
    if (shallow != Comparison::Unknown)
        return shallow == Comparison::Equal;
    std::vector<Pair> open;
    for (Pair next{&a, &b};;) {
        if (next.first != next.second && !childrenMayEqual(*next.first, *next.second, open))
            return false;
        if (open.empty())
            return true;
        next = open.back();
        open.pop_back();
    }
}

std::uint64_t hashOfValue(const JV& value) {
    std::size_t visited = 0;
    return hashOfValue(value, visited);
}

std::uint64_t hashOfValue(const JV& value, std::size_t& visited) {
    // Children in the order in which they come off the stack: equal values have them in the same order.
    KeyedHasher hasher;
    std::vector<const JV*> open;
    const JV* next = &value;
    for (;;) {
        ++visited;
        addShallowly(hasher, *next);
        if (next->isArray()) {
            open.insert(open.end(), next->elements().begin(), next->elements().end());
        } else if (next->isObject()) {
            for (const Member member : next->members()) {
                hasher.add(member.key);
                open.push_back(member.value);
            }
        }
        if (open.empty())
            return hasher.finish();
        next = open.back();
        open.pop_back();
    }
}

} // namespace specloom::jv
