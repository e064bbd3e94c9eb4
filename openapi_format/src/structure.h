#pragma once

#include "openapi/shape.h"

#include <cstdint>     // std::uint8_t
#include <optional>    // std::optional
#include <span>        // std::span
#include <string_view> // std::string_view

namespace specloom::openapi_format {

/// A kind of object whose keys may have an order of their own. Where the objects of a kind stand is said by
/// the shape of OpenAPI documents; what that does not name is payload, and keeps its keys as they are.
struct ObjectKind {
    std::string_view name; ///< in configurations
    /// None for the map of webhooks: no kind of object for OpenAPI, but as much one as `paths` for those who
    /// read it. Its keys are the author's, also those that start with "x-".
    std::optional<openapi::ObjectKind> kind;
};

/// Every kind of object, the root's first.
[[nodiscard]] std::span<const ObjectKind> objectKinds() noexcept;

/// The kind of that name, or null.
[[nodiscard]] const ObjectKind* findObjectKind(std::string_view name) noexcept;

/// Index into objectKinds().
[[nodiscard]] std::uint8_t indexOfKind(openapi::ObjectKind kind) noexcept;
/// That of what stands under a member that holds objects.
[[nodiscard]] std::uint8_t indexOfKind(const openapi::MemberShape& member) noexcept;
/// Whether that is one object for the formatter, although OpenAPI sees several.
[[nodiscard]] bool isObjectOfItsOwn(const openapi::MemberShape& member) noexcept;

} // namespace specloom::openapi_format
