#include "openapi_diff/change.h"

#include "foundation/unreachable.h"

#include <array>   // std::array
#include <cstddef> // std::size_t

namespace specloom::openapi_diff {
namespace {

constexpr std::array<std::string_view, 15> kindTexts{
    "added",           "removed",           "modified",
    "property_added",  "property_removed",  "property_modified",
    "key_added",       "key_removed",       "key_modified",
    "element_added",   "element_removed",   "element_modified",
    "extension_added", "extension_removed", "extension_modified"};

struct LevelTexts {
    std::string_view text;
    std::string_view heading;
};
constexpr std::array<LevelTexts, 4> levelTexts{{{"none", "No changes"},
                                                {"non-functional", "Non-functional changes"},
                                                {"non-breaking", "Non-breaking changes"},
                                                {"breaking", "Breaking changes"}}};

const LevelTexts& textsOfLevel(ChangeLevel level) {
    const auto index = static_cast<std::size_t>(level);
    if (index >= levelTexts.size())
        SPECLOOM_UNREACHABLE("Unknown change level");
    return levelTexts[index];
}

} // namespace

std::string_view changeKindText(ChangeKind kind) {
    const auto index = static_cast<std::size_t>(kind) - 1; // Included wraps to a number that is none
    if (index >= kindTexts.size())
        SPECLOOM_UNREACHABLE("Unknown change kind");
    return kindTexts[index];
}

std::string_view changeLevelText(ChangeLevel level) {
    return textsOfLevel(level).text;
}

std::string_view changeLevelHeading(ChangeLevel level) {
    return textsOfLevel(level).heading;
}

} // namespace specloom::openapi_diff
