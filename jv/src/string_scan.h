#pragma once

#include <bit>     // std::countr_one, std::countr_zero
#include <cstdint> // std::uint8_t, std::uint64_t
#include <cstring> // std::memcpy

#if defined(__SSE2__)
#include <emmintrin.h> // _mm_...
#endif

namespace specloom::jv {

/// The last bytes of [p, end), of which there are 4 or more: 8 where there are so many, else all and some of
/// them twice.
[[nodiscard]] inline std::uint64_t lastBytes(const char* p, const char* end) noexcept {
    std::uint64_t word = 0;
    if (end - p >= 8) {
        std::memcpy(&word, end - 8, sizeof word);
        return word;
    }
    std::uint32_t first = 0;
    std::uint32_t last = 0;
    std::memcpy(&first, p, sizeof first);
    std::memcpy(&last, end - 4, sizeof last);
    return std::uint64_t{first} << 32 | last;
}

/// Whether one of eight bytes is what findSpecial() looks for.
template <bool StopAtNonAscii>
[[nodiscard]] inline bool hasSpecial(std::uint64_t word) noexcept {
    constexpr std::uint64_t each = 0x0101010101010101;
    constexpr std::uint64_t top = 0x8080808080808080;
    const auto hasZero = [](std::uint64_t bytes) { return ((bytes - each) & ~bytes & top) != 0; };
    return ((word - each * 32) & ~word & top) != 0 || hasZero(word ^ each * '"') ||
           hasZero(word ^ each * '\\') || (StopAtNonAscii && (word & top) != 0);
}

/// The first byte of [p, end) that a JSON string cannot hold as it stands: a quote, a backslash, a control
/// character below 32; with `StopAtNonAscii` also any byte of 128 and above. `end` when there is none.
template <bool StopAtNonAscii>
[[nodiscard]] inline const char* findSpecial(const char* p, const char* end) noexcept {
#if defined(__SSE2__)
    const __m128i quote = _mm_set1_epi8('"');
    const __m128i backslash = _mm_set1_epi8('\\');
    const __m128i lastControl = _mm_set1_epi8(31);
    while (end - p >= 16) {
        const __m128i block = _mm_loadu_si128(reinterpret_cast<const __m128i*>(p));
        // Unsigned "at most 31" is "the larger of it and 31 is 31".
        __m128i hits = _mm_cmpeq_epi8(_mm_max_epu8(block, lastControl), lastControl);
        hits = _mm_or_si128(hits, _mm_cmpeq_epi8(block, quote));
        hits = _mm_or_si128(hits, _mm_cmpeq_epi8(block, backslash));
        if constexpr (StopAtNonAscii)
            hits = _mm_or_si128(hits, block); // the top bit is what the mask takes
        if (const auto mask = static_cast<unsigned>(_mm_movemask_epi8(hits)); mask != 0)
            return p + std::countr_zero(mask);
        p += 16;
    }
#endif
    // The first eight and the last eight are all of them where few are left.
    const bool isFew = end - p >= 4 && end - p <= 16;
    const bool isFirstClear = end - p <= 8 || !hasSpecial<StopAtNonAscii>(lastBytes(p, p + 8));
    if (isFew && isFirstClear && !hasSpecial<StopAtNonAscii>(lastBytes(p, end)))
        return end;
    for (; p != end; ++p) {
        const auto byte = static_cast<std::uint8_t>(*p);
        if (byte < 32 || byte == '"' || byte == '\\' || (StopAtNonAscii && byte >= 128))
            return p;
    }
    return end;
}

/// The first byte of [p, end) that is no space; `end` when there is none. Indentation makes up much of a
/// text.
[[nodiscard]] inline const char* skipBlanks(const char* p, const char* end) noexcept {
#if defined(__SSE2__)
    const __m128i spaces = _mm_set1_epi8(' ');
    while (end - p >= 16) {
        const __m128i block = _mm_loadu_si128(reinterpret_cast<const __m128i*>(p));
        const auto mask = static_cast<unsigned>(_mm_movemask_epi8(_mm_cmpeq_epi8(block, spaces)));
        if (mask != 0xffff)
            return p + std::countr_one(mask);
        p += 16;
    }
#endif
    while (p != end && *p == ' ')
        ++p;
    return p;
}

} // namespace specloom::jv
