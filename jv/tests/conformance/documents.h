#pragma once

#include "jv/jv_document.h"

#include <cstddef>     // std::size_t
#include <string>      // std::string
#include <string_view> // std::string_view
#include <vector>      // std::vector

namespace specloom::jv {

/// Whether any value or key of a tree fulfils a condition; without recursion.
template <typename OnValue, typename OnKey>
[[nodiscard]] bool anyOf(const JV& root, OnValue onValue, OnKey onKey) {
    std::vector<const JV*> open{&root};
    while (!open.empty()) {
        const JV* value = open.back();
        open.pop_back();
        if (onValue(*value))
            return true;
        if (value->isArray())
            open.insert(open.end(), value->elements().begin(), value->elements().end());
        if (!value->isObject())
            continue;
        for (const Member member : value->members()) {
            if (onKey(member.key))
                return true;
            open.push_back(member.value);
        }
    }
    return false;
}

[[nodiscard]] bool hasBigNumber(const JV& root);
[[nodiscard]] bool hasEmptyKey(const JV& root);
/// Whether a string of the document is left plain in YAML although it is a number for the reader ("1e5").
[[nodiscard]] bool hasExponentString(const JV& root);

/// How many containers are nested in one another; 0 for a scalar.
[[nodiscard]] std::size_t depthOf(const JV& root);

/// Empty when two documents hold the same values in the same key order, else where they part.
[[nodiscard]] std::string firstDifference(const JVDocument& expected, const JVDocument& actual);

} // namespace specloom::jv
