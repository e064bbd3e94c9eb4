#pragma once

#include <bit>         // std::rotl
#include <cstddef>     // std::size_t
#include <cstdint>     // std::uint64_t
#include <string_view> // std::string_view

namespace specloom {

/// SipHash with one round a word and three at the end (Aumasson and Bernstein, 2012) over the bytes of
/// `text`, under a key of 128 bits that is drawn anew for each run of the program. Nobody can prepare texts
/// that collide, as is easily done for FNV-1a, whose collisions survive any other offset basis: so this is
/// the hash of every table whose keys are texts of a document. It differs from run to run, so nothing that is
/// written may depend on it.
[[nodiscard]] std::uint64_t keyedHash(std::string_view text) noexcept;

/// The same as the hash function of a container.
struct KeyedHash {
    using is_transparent = void;
    [[nodiscard]] std::size_t operator()(std::string_view text) const noexcept {
        return static_cast<std::size_t>(keyedHash(text));
    }
};

/// The same over words and texts, one after another, under the key of keyedHash().
class KeyedHasher {
  public:
    KeyedHasher() noexcept;
    void add(std::uint64_t word) noexcept {
        v3_ ^= word;
        round();
        v0_ ^= word;
    }
    /// With its length, so that two texts are not taken for others of the same bytes.
    void add(std::string_view text) noexcept;
    /// Once, when all is added.
    [[nodiscard]] std::uint64_t finish() noexcept;

  private:
    void round() noexcept {
        v0_ += v1_;
        v1_ = std::rotl(v1_, 13) ^ v0_;
        v0_ = std::rotl(v0_, 32);
        v2_ += v3_;
        v3_ = std::rotl(v3_, 16) ^ v2_;
        v0_ += v3_;
        v3_ = std::rotl(v3_, 21) ^ v0_;
        v2_ += v1_;
        v1_ = std::rotl(v1_, 17) ^ v2_;
        v2_ = std::rotl(v2_, 32);
    }

    std::uint64_t v0_;
    std::uint64_t v1_;
    std::uint64_t v2_;
    std::uint64_t v3_;
};

} // namespace specloom
