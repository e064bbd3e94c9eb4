#pragma once

#include "jv/jv.h"
#include "jv_schema/dialect.h"

#include <cstddef>     // std::size_t
#include <map>         // std::map
#include <string>      // std::string
#include <string_view> // std::string_view
#include <vector>      // std::vector

namespace specloom::jv::schema {

struct Node;
struct Place;

/// A schema with an identifier of its own, or a whole document, and the names that are given in it.
struct Resource {
    std::string uri; ///< absolute, without fragment; empty for a document that nobody named
    const JV* root = nullptr;
    const Dialect* dialect = nullptr;
    std::map<std::string, Place*, std::less<>> anchors; ///< `$anchor` and `$dynamicAnchor`
    /// `$dynamicAnchor`; the root is listed under recursiveAnchor when it says `$recursiveAnchor`.
    std::map<std::string, Place*, std::less<>> dynamicAnchors;
    std::vector<const Node*>
        dynamicNodes; ///< of dynamicAnchors, by the number that the compiler gave the name
};

/// The name under which `$recursiveAnchor` is listed; no `$dynamicAnchor` can be called so.
inline constexpr std::string_view recursiveAnchor = "#";

/// Where a schema stands.
struct Place {
    static constexpr std::size_t noIndex = static_cast<std::size_t>(-1);

    const JV* schema = nullptr;
    Resource* resource = nullptr;
    const Place* parent = nullptr; ///< the schema around it; null for the root of a document
    std::string_view keyword;      ///< of the parent, under which it stands
    std::string_view key;          ///< below the keyword, when `hasKey`
    std::size_t index = noIndex;   ///< below the keyword
    bool hasKey = false;
    Node* node = nullptr; ///< once it is compiled

    /// The JSON pointer (RFC 6901) from the root of the resource.
    [[nodiscard]] std::string pointer() const;
    /// The resource's URI and the pointer as fragment, perhaps followed by a keyword.
    [[nodiscard]] std::string location(std::string_view ofKeyword = {}) const;
};

} // namespace specloom::jv::schema
