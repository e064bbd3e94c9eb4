#include "openapi/schema_type.h"

#include "foundation/message.h"

#include <algorithm> // std::find
#include <array>     // std::array
#include <stdexcept> // std::invalid_argument, std::runtime_error
#include <string>    // std::string

namespace specloom::openapi {

namespace {

constexpr std::array<std::string_view, schemaTypeCount> typeNames{"null",   "boolean", "object", "array",
                                                                  "number", "string",  "integer"};

} // namespace

SchemaType schemaTypeFromName(std::string_view name) {
    const auto found = std::find(typeNames.begin(), typeNames.end(), name);
    if (found == typeNames.end())
        throw std::runtime_error(formatMessage("Invalid schema type: {}", name));
    return static_cast<SchemaType>(found - typeNames.begin());
}

std::string_view schemaTypeName(SchemaType type) {
    const auto number = static_cast<std::size_t>(type);
    if (number >= typeNames.size())
        throw std::invalid_argument("Invalid schema type");
    return typeNames[number];
}

void SchemaTypes::add(SchemaType type) noexcept {
    if (has(type))
        return;
    const auto count = static_cast<std::uint32_t>(size()) + 1;
    bits_ = (bits_ & 0x7f0U) | 1U << bitOf(type) | count;
    if (count == 1)
        bits_ |= static_cast<std::uint32_t>(type) << 12;
}

} // namespace specloom::openapi
