#pragma once

#include "openapi_diff/reports/changelog.h"

#include <array>       // std::array
#include <cstddef>     // std::size_t
#include <cstdint>     // std::uint8_t
#include <functional>  // std::function
#include <string>      // std::string
#include <string_view> // std::string_view

namespace specloom::openapi_diff {

/// What a changelog tells in one line each.
enum class ChangelogEvent : std::uint8_t {
    MetadataChanged,
    OperationAdded, ///< of a method and a path, as the two below
    OperationRemoved,
    OperationDeprecated,
    OperationModified, ///< of a method and a path; what was modified follows
    OperationMetadataChanged,
    ParameterAdded, ///< of a name and a location, as the two below
    ParameterRemoved,
    ParameterModified,
    RequestBodyChanged,
    ResponseAdded, ///< of a response code, as the two below
    ResponseRemoved,
    ResponseModified,
    SecurityChanged,
};
inline constexpr std::size_t changelogEventCount = 14;

/// A format for each event, in which {0} is the file, {1} the line, {2} the column, {3} the level, and {4}
/// and {5} are what the event is of. An event without one is not told.
using EventFormats = std::array<std::string_view, changelogEventCount>;

/// An event with its text.
using TakeEvent = std::function<void(const ChangelogEntry& entry, std::string_view text)>;

/// Calls `take` for each event that has a format, in the order of changelogs: metadata, operations that were
/// added, removed and deprecated, and modified ones with what changed in them. Control characters of
/// documents are escaped.
void forEachEvent(const ChangelogReport& report, const EventFormats& formats, const TakeEvent& take);

} // namespace specloom::openapi_diff
