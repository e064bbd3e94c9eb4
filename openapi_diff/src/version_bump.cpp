#include "openapi_diff/version_bump.h"

#include "foundation/unreachable.h"

#include <array>     // std::array
#include <charconv>  // std::from_chars
#include <optional>  // std::optional
#include <stdexcept> // std::runtime_error

#include <fmt/format.h>

namespace specloom::openapi_diff {
namespace {

/// By Prerelease.
constexpr std::array<std::string_view, 3> prereleaseNames{"alpha", "beta", "rc"};

/// Takes what a version consists of from the front of a text.
class Scanner {
  public:
    explicit Scanner(std::string_view text) : rest_(text) {}

    [[nodiscard]] bool isAtEnd() const noexcept { return rest_.empty(); }

    bool take(std::string_view expected) noexcept {
        if (!rest_.starts_with(expected))
            return false;
        rest_.remove_prefix(expected.size());
        return true;
    }

    bool takeNumber(std::uint8_t& number) noexcept {
        const char* begin = rest_.data();
        const auto [end, error] = std::from_chars(begin, begin + rest_.size(), number);
        const auto length = static_cast<std::size_t>(end - begin);
        if (error != std::errc() || (length > 1 && *begin == '0'))
            return false;
        rest_.remove_prefix(length);
        return true;
    }

  private:
    std::string_view rest_;
};

bool takePrerelease(Scanner& scanner, SemanticVersion& version) {
    for (std::size_t type = 0; type < prereleaseNames.size(); ++type) {
        if (!scanner.take(prereleaseNames[type]))
            continue;
        version.prerelease = static_cast<SemanticVersion::Prerelease>(type);
        return !scanner.take(".") || scanner.takeNumber(version.prereleaseNumber);
    }
    return false;
}

std::optional<SemanticVersion> scan(std::string_view text) {
    Scanner scanner(text);
    SemanticVersion version;
    const bool isRead = scanner.takeNumber(version.major) && scanner.take(".") &&
                        scanner.takeNumber(version.minor) && scanner.take(".") &&
                        scanner.takeNumber(version.patch) &&
                        (!scanner.take("-") || takePrerelease(scanner, version)) && scanner.isAtEnd();
    return isRead ? std::optional(version) : std::nullopt;
}

std::uint8_t nextOf(std::uint8_t number) noexcept {
    return static_cast<std::uint8_t>(number + 1U);
}

SemanticVersion raise(SemanticVersion version, ChangeLevel level) {
    switch (level) {
    case ChangeLevel::NonFunctional:
        version.patch = nextOf(version.patch);
        return version;
    case ChangeLevel::NonBreaking:
        version.minor = nextOf(version.minor);
        version.patch = 0;
        return version;
    case ChangeLevel::Breaking:
        version.major = nextOf(version.major);
        version.minor = version.patch = 0;
        return version;
    default:
        SPECLOOM_UNREACHABLE(nullptr);
    }
}

} // namespace

SemanticVersion SemanticVersion::parse(std::string_view text) {
    const std::optional<SemanticVersion> version = scan(text);
    if (!version)
        // Published texts; the functions that they name are not this program's.
        throw std::runtime_error("semver::version::from_string invalid version.");
    return *version;
}

std::string SemanticVersion::text() const {
    std::string result = fmt::format("{}.{}.{}", major, minor, patch);
    if (prerelease == Prerelease::None)
        return result;
    const auto type = static_cast<std::size_t>(prerelease);
    if (type >= prereleaseNames.size())
        throw std::runtime_error("semver::version::to_string invalid version.");
    result.append("-").append(prereleaseNames[type]);
    if (prereleaseNumber != 0)
        result += fmt::format(".{}", prereleaseNumber);
    return result;
}

std::string bumpVersion(std::string_view source, std::string_view destination, ChangeLevel level) {
    const SemanticVersion before = SemanticVersion::parse(source);
    const SemanticVersion now = SemanticVersion::parse(destination);
    const SemanticVersion raised = raise(before, level);
    return raised > now ? raised.text() : std::string(destination);
}

} // namespace specloom::openapi_diff
