#pragma once

namespace specloom::test_support {

/// Whether this build has the address sanitizer, which takes terabytes of addresses and much more memory.
#if defined(__SANITIZE_ADDRESS__)
inline constexpr bool hasAddressSanitizer = true;
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
inline constexpr bool hasAddressSanitizer = true;
#else
inline constexpr bool hasAddressSanitizer = false;
#endif
#else
inline constexpr bool hasAddressSanitizer = false;
#endif

} // namespace specloom::test_support
