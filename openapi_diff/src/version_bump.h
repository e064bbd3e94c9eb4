#pragma once

#include "openapi_diff/change.h"

#include <compare>     // std::strong_ordering
#include <cstdint>     // std::uint8_t
#include <string>      // std::string
#include <string_view> // std::string_view

namespace specloom::openapi_diff {

/// The part of semantic versions (Semantic Versioning 2.0.0) that this program raises: three numbers up to
/// 255, and a prerelease of one of three types, perhaps with a number ("1.2.3", "1.2.3-rc", "1.2.3-alpha.4").
struct SemanticVersion {
    /// In ascending order (section 11): a release follows its prereleases.
    enum class Prerelease : std::uint8_t { Alpha, Beta, Rc, None };

    std::uint8_t major = 0;
    std::uint8_t minor = 0;
    std::uint8_t patch = 0;
    Prerelease prerelease = Prerelease::None;
    std::uint8_t prereleaseNumber = 0; ///< 0 is not written

    /// Reads the whole text. Throws std::runtime_error "semver::version::from_string invalid version." for
    /// any other text, numbers past 255, with leading zeros (section 2), and build metadata included.
    [[nodiscard]] static SemanticVersion parse(std::string_view text);
    /// Throws std::runtime_error "semver::version::to_string invalid version." for a type out of its range.
    [[nodiscard]] std::string text() const;

    friend auto operator<=>(const SemanticVersion&, const SemanticVersion&) = default;
};

/// The version that a document needs at least: that of the document before, raised by the level of what
/// changed. NonFunctional raises the patch number, NonBreaking the minor one, Breaking the major one; lower
/// numbers become 0, prereleases stay, and 255 becomes 0. Where that is no greater than the version the
/// document has, the text of the latter. Any other level is an unreachable path.
///
/// Throws what SemanticVersion::parse() throws, for either text.
[[nodiscard]] std::string bumpVersion(std::string_view source, std::string_view destination,
                                      ChangeLevel level);

} // namespace specloom::openapi_diff
