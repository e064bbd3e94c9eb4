// Hash and equality, each with a stack of its own: input decides how deep a tree is.

#include "foundation/hash.h"
#include "jv/jv.h"

#include <cmath>  // std::fabs
#include <vector> // std::vector

namespace specloom::jv {

namespace {

[[nodiscard]] std::uint64_t scalarHash(const JV& value) {
    const auto code = static_cast<std::uint64_t>(value.kind());
    switch (value.kind()) {
    case Kind::Boolean:
        return combine(code, fnv1a(std::uint64_t{value.boolean()}, 1));
    case Kind::Number:
        return combine(code, value.number().hash());
    case Kind::String:
        return combine(code, fnv1a(value.text()));
    default:
        return combine(code, 0);
    }
}

[[nodiscard]] bool scalarsEqual(const JV& a, const JV& b) {
    switch (a.kind()) {
    case Kind::Boolean:
        return a.boolean() == b.boolean();
    case Kind::Number:
        return a.number().compare(b.number()) == 0;
    case Kind::String:
        return a.text() == b.text();
    default:
        return true;
    }
}

[[nodiscard]] bool isContainer(const JV& value) {
    return value.isArray() || value.isObject();
}

} // namespace

std::uint64_t JV::hash() const {
    struct Frame {
        const JV* value;
        std::uint64_t hash;
        std::size_t next; // child to come
    };
    const auto open = [](const JV& value) {
        return Frame{&value, combine(static_cast<std::uint64_t>(value.kind()), value.size()), 0};
    };
    if (!isContainer(*this))
        return scalarHash(*this);

    std::vector<Frame> stack{open(*this)};
    for (;;) {
        Frame& top = stack.back();
        if (top.next == top.value->size()) {
            const std::uint64_t done = top.hash;
            stack.pop_back();
            if (stack.empty())
                return done;
            stack.back().hash = combine(stack.back().hash, done);
            continue;
        }
        const JV* child = nullptr;
        if (top.value->isArray()) {
            child = top.value->elements()[top.next++];
        } else {
            const Member member = top.value->members()[top.next++];
            top.hash = combine(top.hash, fnv1a(member.key));
            child = member.value;
        }
        if (isContainer(*child))
            stack.push_back(open(*child)); // `top` is gone from here on
        else
            top.hash = combine(top.hash, scalarHash(*child));
    }
}

bool JV::equals(const JV& other) const {
    struct Pair {
        const JV* a;
        const JV* b;
    };
    std::vector<Pair> open{{this, &other}};
    while (!open.empty()) {
        const auto [a, b] = open.back();
        open.pop_back();
        if (a == b)
            continue;
        if (a->kind() != b->kind() || a->size() != b->size())
            return false;
        if (a->isArray()) {
            for (std::size_t i = 0; i < a->size(); ++i)
                open.push_back({a->elements()[i], b->elements()[i]});
        } else if (a->isObject()) {
            const Members left = a->members();
            const Members right = b->members();
            for (std::size_t i = 0; i < left.size(); ++i) {
                const Member one = left[i];
                const Member two = right[i];
                // Keys are kept once for the whole process, so equal keys are the same bytes.
                if (one.key.data() != two.key.data())
                    return false;
                open.push_back({one.value, two.value});
            }
        } else if (!scalarsEqual(*a, *b)) {
            return false;
        }
    }
    return true;
}

bool JV::almostEquals(const JV& other) const {
    if (kind_ != Kind::Number || other.kind_ != Kind::Number)
        return equals(other);
    number::Number difference = number();
    difference -= other.number();
    return std::fabs(difference.toDouble()) < 2.220446049250313e-16;
}

} // namespace specloom::jv
