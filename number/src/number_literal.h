#pragma once

#include <cstddef> // std::size_t
#include <cstdint> // std::int32_t

namespace specloom::number {

/// A literal with this many digits stands for a big number, whatever its value: no machine type holds them
/// all.
inline constexpr std::size_t bigDigitCount = 21;

/// Where the parts of a decimal literal stand in its text. Pointers of parts that are missing are null.
struct NumberLiteral {
    /// 0 for a good literal; else 1 to 9, see numberLiteralError().
    std::int32_t status = 0;
    bool negative = false;
    const char* integerBegin = nullptr;
    const char* integerEnd = nullptr;
    const char* fractionBegin = nullptr;
    const char* fractionEnd = nullptr;
    bool exponentNegative = false;
    const char* exponentBegin = nullptr;
    const char* exponentEnd = nullptr;

    [[nodiscard]] bool hasFraction() const noexcept { return fractionBegin != nullptr; }
    [[nodiscard]] bool hasExponent() const noexcept { return exponentBegin != nullptr; }
    /// Digits before and behind the point, leading zeros included.
    [[nodiscard]] std::size_t digitCount() const noexcept {
        return static_cast<std::size_t>((integerEnd - integerBegin) + (fractionEnd - fractionBegin));
    }
};

/// The text of the error for a status of 1 to 9.
[[nodiscard]] const char* numberLiteralError(std::int32_t status) noexcept;

/// Takes [begin, end) apart: an optional sign, digits, optionally "." and digits, optionally "e" or "E" with
/// an optional sign and digits, and nothing else. Leading zeros are good, ".5", "1.", "Infinity" and "1_000"
/// are not. Stops at the first bad character.
[[nodiscard]] NumberLiteral classifyNumber(const char* begin, const char* end) noexcept;

/// As classifyNumber; throws std::runtime_error with numberLiteralError() for a text that is no literal.
[[nodiscard]] NumberLiteral parseNumberLiteral(const char* begin, const char* end);

} // namespace specloom::number
