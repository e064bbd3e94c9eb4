#pragma once

#include "jv/jv_document.h"

#include <cstddef>     // std::size_t
#include <string>      // std::string
#include <string_view> // std::string_view
#include <vector>      // std::vector

namespace specloom::test_support {

/// Whether any value or key of a tree fulfils a condition; without recursion.
template <typename OnValue, typename OnKey>
[[nodiscard]] bool anyOf(const jv::JV& root, OnValue onValue, OnKey onKey) {
    std::vector<const jv::JV*> open{&root};
    while (!open.empty()) {
        const jv::JV* value = open.back();
        open.pop_back();
        if (onValue(*value))
            return true;
        if (value->isArray())
            open.insert(open.end(), value->elements().begin(), value->elements().end());
        if (!value->isObject())
            continue;
        for (const jv::Member member : value->members()) {
            if (onKey(member.key))
                return true;
            open.push_back(member.value);
        }
    }
    return false;
}

/// Calls `onValue` for each value of a tree; without recursion.
template <typename OnValue>
void forEachValue(const jv::JV& root, OnValue onValue) {
    const auto visit = [&](const jv::JV& value) {
        onValue(value);
        return false;
    };
    static_cast<void>(anyOf(root, visit, [](std::string_view) { return false; }));
}

[[nodiscard]] bool hasBigNumber(const jv::JV& root);
[[nodiscard]] bool hasEmptyKey(const jv::JV& root);
/// Whether a string of the document is left plain in YAML although it is a number for the reader ("1e5").
[[nodiscard]] bool hasExponentString(const jv::JV& root);

/// How many containers are nested in one another; 0 for a scalar.
[[nodiscard]] std::size_t depthOf(const jv::JV& root);

/// Empty when two documents hold the same values in the same key order, else where they part.
[[nodiscard]] std::string firstDifference(const jv::JVDocument& expected, const jv::JVDocument& actual);

} // namespace specloom::test_support
