#include "openapi_format/structure.h"

#include <algorithm> // std::ranges::find
#include <array>     // std::array

namespace specloom::openapi_format {

namespace {

constexpr std::string_view webhooks = "webhooks";

/// Webhooks stand behind the paths.
constexpr auto kinds = [] {
    std::array<ObjectKind, openapi::objectKindCount + 1> table{};
    std::size_t count = 0;
    for (const openapi::ObjectShape& shape : openapi::objectShapes) {
        table[count++] = {shape.name, shape.kind};
        if (shape.kind == openapi::ObjectKind::Paths)
            table[count++] = {webhooks, std::nullopt};
    }
    return table;
}();

[[nodiscard]] std::uint8_t indexOf(std::optional<openapi::ObjectKind> kind) noexcept {
    return static_cast<std::uint8_t>(std::ranges::find(kinds, kind, &ObjectKind::kind) - kinds.begin());
}

} // namespace

std::span<const ObjectKind> objectKinds() noexcept {
    return kinds;
}

const ObjectKind* findObjectKind(std::string_view name) noexcept {
    const auto* const kind = std::ranges::find(kinds, name, &ObjectKind::name);
    return kind == kinds.end() ? nullptr : kind;
}

std::uint8_t indexOfKind(openapi::ObjectKind kind) noexcept {
    return indexOf(kind);
}

std::uint8_t indexOfKind(const openapi::MemberShape& member) noexcept {
    return isObjectOfItsOwn(member) ? indexOf(std::nullopt) : indexOf(member.kind);
}

bool isObjectOfItsOwn(const openapi::MemberShape& member) noexcept {
    return &member == openapi::findMember(openapi::ObjectKind::OpenAPI, webhooks);
}

} // namespace specloom::openapi_format
