#pragma once

#include "number/big_float.h"

#include <bit>         // std::bit_cast
#include <concepts>    // std::integral, std::same_as
#include <cstdint>     // std::int64_t, std::uint32_t, std::uint64_t
#include <memory>      // std::unique_ptr, std::construct_at, std::destroy_at
#include <optional>    // std::optional
#include <string>      // std::string
#include <string_view> // std::string_view
#include <type_traits> // std::is_signed_v
#include <utility>     // std::move

namespace specloom::number {

/// How a Number holds its value.
enum class NumberKind : std::uint32_t {
    Signed = 1,   ///< signed 64-bit integer
    Unsigned = 2, ///< unsigned 64-bit integer
    Float = 3,    ///< 64-bit float
    Big = 4       ///< BigFloat of 1000 bits
};

/// The mantissa bits of all arithmetic on big numbers: about 301 decimal digits.
inline constexpr Precision bigPrecision = 1000;

template <typename T>
concept MachineInteger = std::integral<T> && !std::same_as<T, bool> && !std::same_as<T, char>;

/// A numeric value of a document: a machine integer or float whenever it fits, else a binary floating-point
/// number of 1000 bits. A Number of a machine kind allocates nothing, and copying it costs what it looks
/// like.
///
/// Big numbers are values to be read, compared, subtracted, hashed and written. isNaN(), isInfinite(),
/// toDouble(), toLong(), toULong() and isMultipleOf() are not for them and end the process: test the kind
/// first.
class Number {
  public:
    /// The signed integer 0.
    Number() noexcept : Number(std::int64_t{0}) {}
    /// A signed integer becomes kind Signed, an unsigned one Unsigned.
    template <MachineInteger T>
    Number(T value) noexcept
        : kind_(std::is_signed_v<T> ? NumberKind::Signed : NumberKind::Unsigned),
          content_(static_cast<std::uint64_t>(value)) {}
    Number(double value) noexcept : kind_(NumberKind::Float), content_(std::bit_cast<std::uint64_t>(value)) {}
    explicit Number(BigFloat value);
    /// A truth value is no number, though it would convert to one.
    Number(bool) = delete;

    Number(const Number& other) : kind_(other.kind_), content_(std::uint64_t{0}) {
        if (kind_ == NumberKind::Big)
            copyBig(other);
        else
            content_.bits = other.content_.bits;
    }
    /// Leaves a big `other` as the signed integer 0.
    Number(Number&& other) noexcept : kind_(other.kind_), content_(std::uint64_t{0}) {
        if (kind_ == NumberKind::Big)
            takeBig(other);
        else
            content_.bits = other.content_.bits;
    }
    Number& operator=(const Number& other);
    Number& operator=(Number&& other) noexcept {
        if (this != &other) {
            std::destroy_at(this);
            std::construct_at(this, std::move(other));
        }
        return *this;
    }
    ~Number() {
        if (kind_ == NumberKind::Big)
            std::destroy_at(&content_.big);
    }

    /// A signed integer that is not negative leaves a Number of kind Unsigned at that kind.
    template <MachineInteger T>
    Number& operator=(T value) noexcept {
        const bool keepsUnsigned = std::is_signed_v<T> && value >= T{0} && kind_ == NumberKind::Unsigned;
        *this = Number(value);
        if (keepsUnsigned)
            kind_ = NumberKind::Unsigned;
        return *this;
    }
    Number& operator=(double value) noexcept { return *this = Number(value); }
    /// As fromText().
    Number& operator=(std::string_view text) { return *this = fromText(text); }

    /// The value of a decimal literal (see classifyNumber). With fewer than 21 digits: a float if it has a
    /// fraction or an exponent, else a signed integer if it is negative, else an unsigned one. With more
    /// digits, or when the value is outside of the machine type (an overflow, or a float that would become
    /// zero although a digit is not), it is a big number, rounded to 1000 bits. Throws std::runtime_error
    /// with the texts of numberLiteralError() for a text that is no literal, and with "Invalid number format"
    /// when memory runs out.
    [[nodiscard]] static Number fromText(std::string_view text);
    /// As fromText(), but empty for a text that is no literal, and for a literal that even a big number can
    /// hold only as infinity, or as zero although a digit is not.
    [[nodiscard]] static std::optional<Number> tryParse(std::string_view text);

    [[nodiscard]] NumberKind kind() const noexcept { return kind_; }
    /// The content; only for the kind that the name tells.
    [[nodiscard]] std::int64_t signedValue() const noexcept {
        return static_cast<std::int64_t>(content_.bits);
    }
    [[nodiscard]] std::uint64_t unsignedValue() const noexcept { return content_.bits; }
    [[nodiscard]] double floatValue() const noexcept { return std::bit_cast<double>(content_.bits); }
    [[nodiscard]] const BigFloat& bigValue() const noexcept { return *content_.big; }

    /// Subtracts. Integers wrap at 64 bits and keep the kind of the left side; a float on either side makes a
    /// float, a big number on either side a big number, rounded to 1000 bits.
    Number& operator-=(const Number& other);

    /// -1, 0 or 1 as this is below, equal to or above `other`. An integer and a float compare as doubles; a
    /// float that is not-a-number counts as above everything but a big number. With a big number on either
    /// side the comparison is exact, and 2 if one of them is not-a-number.
    [[nodiscard]] int compare(const Number& other) const;
    [[nodiscard]] int compare(double other) const;
    [[nodiscard]] int compare(std::int64_t other) const;
    [[nodiscard]] int compare(std::uint64_t other) const;
    template <MachineInteger T>
    [[nodiscard]] int compare(T other) const {
        using Wide = std::conditional_t<std::is_signed_v<T>, std::int64_t, std::uint64_t>;
        return compare(static_cast<Wide>(other));
    }

    /// Equal machine numbers hash alike, whichever their kinds; a float hashes as its integral part.
    [[nodiscard]] std::uint64_t hash() const;

    /// Whether there is no fraction. A big number is judged by its text of 101 digits alone: one that has a
    /// point in it is no integer, which includes 1.5e+200, and one that has none is an integer, which
    /// includes 1e-999.
    [[nodiscard]] bool isInteger() const;
    /// Not for big numbers.
    [[nodiscard]] bool isNaN() const;
    /// Not for big numbers.
    [[nodiscard]] bool isInfinite() const;
    /// Whether this / `divisor` is integral. Integers decide by their 64-bit remainder, signed when both are
    /// signed, and an integer divisor of 0 faults as a machine division does; otherwise both are taken as
    /// doubles and the fraction of the quotient must be below 2.220446049250313e-16. Not for big numbers.
    [[nodiscard]] bool isMultipleOf(const Number& divisor) const;
    /// Not for big numbers.
    [[nodiscard]] double toDouble() const;
    /// The 64 bits of an integer of either kind. Throws std::runtime_error "Cannot cast double to long" for a
    /// float. Not for big numbers.
    [[nodiscard]] std::int64_t toLong() const;
    [[nodiscard]] std::uint64_t toULong() const;

    /// Text that fromText() reads back to the same value. Integers are plain decimal. A float has the
    /// shortest digits that read back, and a point or an exponent ("1.0", "1e+25"). A big number has the
    /// shortest digits that read back at 1000 bits, or, when `precision` is not 0, `precision` + 1
    /// significant digits without the zeros at their end; `precision` has no meaning for the other kinds.
    [[nodiscard]] std::string toString(unsigned precision = 0) const;
    /// Appends what toString() returns.
    void appendTo(std::string& out, unsigned precision = 0) const;

  private:
    using BigPointer = std::unique_ptr<BigFloat>;

    // The machine kinds keep their 64 bits, whatever they mean. The BigFloat stands apart, so that a Number
    // has 16 bytes and the numbers that nearly all documents have nothing else of do not pay for it.
    union Content {
        std::uint64_t bits;
        BigPointer big;

        explicit Content(std::uint64_t value) noexcept : bits(value) {}
        explicit Content(BigPointer value) noexcept : big(std::move(value)) {}
        ~Content() {}
    };

    [[nodiscard]] bool isIntegerKind() const noexcept {
        return kind_ == NumberKind::Signed || kind_ == NumberKind::Unsigned;
    }
    [[nodiscard]] double machineToDouble() const noexcept;
    [[nodiscard]] BigFloat toBig() const;
    void copyBig(const Number& other);
    void takeBig(Number& other) noexcept;

    NumberKind kind_;
    Content content_;
};

static_assert(sizeof(Number) == 16);

} // namespace specloom::number
