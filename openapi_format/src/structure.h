#pragma once

#include <cstdint>     // std::uint8_t
#include <span>        // std::span
#include <string_view> // std::string_view

namespace specloom::openapi_format {

/// How the objects of a kind stand under a member.
enum class Shape : std::uint8_t {
    Object,        ///< one object
    Array,         ///< the elements of an array
    ObjectOrArray, ///< either
    Map,           ///< the values of an object with keys of the author's choice
};

/// What stands under a member of an object.
struct Place {
    std::string_view member;
    Shape shape;
    std::string_view kind; ///< by name, as in objectKinds()
};

/// The members of an object whose keys are the author's.
struct Entries {
    std::string_view kind;       ///< of every member's value, by name; empty when there are no such members
    bool evenExtensions = false; ///< whether keys that start with "x-" are ordinary ones
};

/// Which objects with a text under "$ref" are references in a place for objects of a kind.
enum class References : std::uint8_t {
    None,
    All,
    Bare, ///< those that have nothing but what a reference may have beside it
};

/// One kind of object of OpenAPI 3.0 and 3.1.
struct ObjectKind {
    std::string_view name;
    std::span<const Place> places; ///< of the objects below it; what is not named here is payload
    References references = References::None;
    Entries entries = {};
};

/// Every kind of object, the root's first.
[[nodiscard]] std::span<const ObjectKind> objectKinds() noexcept;

/// The kind of that name, or null.
[[nodiscard]] const ObjectKind* findObjectKind(std::string_view name) noexcept;

/// Index into objectKinds() of a kind that is there.
[[nodiscard]] std::uint8_t indexOfKind(std::string_view name) noexcept;

} // namespace specloom::openapi_format
