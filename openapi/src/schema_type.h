#pragma once

#include <cstddef>     // std::size_t
#include <cstdint>     // std::uint8_t, std::uint32_t
#include <string_view> // std::string_view

namespace specloom::openapi {

/// The types of JSON Schema (draft 2020-12, section 6.1.1). The numbers are fixed.
enum class SchemaType : std::uint8_t {
    Null = 0,
    Boolean = 1,
    Object = 2,
    Array = 3,
    Number = 4,
    String = 5,
    Integer = 6
};

inline constexpr std::size_t schemaTypeCount = 7;

/// Throws std::runtime_error "Invalid schema type: " and the text.
[[nodiscard]] SchemaType schemaTypeFromName(std::string_view name);
/// "null" and so on. Throws std::invalid_argument "Invalid schema type" for a number outside the list.
[[nodiscard]] std::string_view schemaTypeName(SchemaType type);

/// A set of types, packed: their number in bits 0 to 3, one bit for each from bit 4 on, and the type itself
/// in bits 12 to 15 when there is just one.
class SchemaTypes {
  public:
    [[nodiscard]] std::size_t size() const noexcept { return bits_ & 0xf; }
    [[nodiscard]] bool empty() const noexcept { return size() == 0; }
    [[nodiscard]] bool has(SchemaType type) const noexcept { return (bits_ >> bitOf(type) & 1) != 0; }
    /// The type, when there is just one.
    [[nodiscard]] SchemaType single() const noexcept { return static_cast<SchemaType>(bits_ >> 12 & 0xf); }
    /// Does nothing when it is there.
    void add(SchemaType type) noexcept;
    void clear() noexcept { bits_ = 0; }
    [[nodiscard]] std::uint32_t bits() const noexcept { return bits_; }
    friend bool operator==(const SchemaTypes&, const SchemaTypes&) = default;

  private:
    [[nodiscard]] static unsigned bitOf(SchemaType type) noexcept { return 4U + static_cast<unsigned>(type); }

    std::uint32_t bits_ = 0;
};

} // namespace specloom::openapi
