#pragma once

#include <cstddef> // std::size_t
#include <cstdint> // std::uint32_t, std::uint64_t
#include <memory>  // std::unique_ptr

namespace specloom::number {

/// 32 bits of a mantissa or of a natural number.
using Limb = std::uint32_t;
inline constexpr unsigned limbBits = 32;

/// An owned array of limbs that does not know its length: whoever has it keeps that beside it.
/// Blocks come from the allocator of BigContext.
class LimbBlock {
  public:
    /// Makes room for exactly `length` limbs and keeps the contents up to there; 0 releases the block. Limbs
    /// that are new are not initialised. Throws std::bad_alloc and then leaves the block as it was.
    void resize(std::size_t length);

    [[nodiscard]] Limb* data() noexcept { return limbs_.get(); }
    [[nodiscard]] const Limb* data() const noexcept { return limbs_.get(); }
    Limb& operator[](std::size_t i) noexcept { return limbs_[i]; }
    const Limb& operator[](std::size_t i) const noexcept { return limbs_[i]; }

  private:
    struct Release {
        void operator()(Limb* block) const noexcept;
    };
    std::unique_ptr<Limb[], Release> limbs_;
};

/// A natural number: limbs from the least significant one up, without zero limbs at the top; zero has none.
struct Natural {
    LimbBlock limbs;
    std::size_t length = 0;

    Natural() = default;
    explicit Natural(std::size_t room) { limbs.resize(room); }

    /// Drops zero limbs at the top, counting from `room` limbs.
    void trim(std::size_t room) noexcept;
};

/// The routines below work on plain limb arrays, least significant limb first, by the schoolbook.
/// No result may overlap an operand unless it is said.

/// r[0, n) = r * factor + addend; returns the limb that is carried out.
Limb multiplyInPlace(Limb* r, std::size_t n, Limb factor, Limb addend) noexcept;

/// r[0, an + bn) = a[0, an) * b[0, bn).
void multiply(Limb* r, const Limb* a, std::size_t an, const Limb* b, std::size_t bn) noexcept;

/// r[0, n) += a[0, an) with an <= n; returns the carry.
Limb addInPlace(Limb* r, std::size_t n, const Limb* a, std::size_t an) noexcept;

/// q[0, n) = q / divisor; returns the remainder.
Limb divideInPlace(Limb* q, std::size_t n, Limb divisor) noexcept;

/// Divides u[0, un + 1) by v[0, vn), whose top bit is set; u[un] is room for the shift of a caller and may be
/// 0, and the top vn limbs of u must be below v. Gives q[0, un + 1 - vn) and leaves the remainder in u[0,
/// vn). vn >= 1.
void divide(Limb* q, Limb* u, std::size_t un, const Limb* v, std::size_t vn) noexcept;

/// r[0, n) = a[0, n) shifted left by `bits` in 0..31; returns the bits shifted out. r may be a.
Limb shiftLeft(Limb* r, const Limb* a, std::size_t n, unsigned bits) noexcept;

/// r[0, n) = a[0, n) shifted right by `bits` in 0..31, zeros coming in at the top. r may be a.
void shiftRight(Limb* r, const Limb* a, std::size_t n, unsigned bits) noexcept;

/// Whether any of a[0, n) is not zero.
[[nodiscard]] bool anyBit(const Limb* a, std::size_t n) noexcept;

} // namespace specloom::number
