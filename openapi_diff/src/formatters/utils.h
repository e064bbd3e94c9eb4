#pragma once

#include "openapi_diff/change.h"
#include "openapi_diff/reports/changelog.h"

#include <string>      // std::string
#include <string_view> // std::string_view
#include <vector>      // std::vector

// What formatters of several formats say alike.
namespace specloom::openapi_diff {

/// "path_item", "schema" and so on; "webhook" for the path item of a webhook. A kind of node that no
/// comparison meets is an unreachable path.
[[nodiscard]] std::string_view nodeKindText(const openapi::Node& node);

/// What changed, in one line: the kind of node and the field, with the key or index behind it, or the name of
/// the extension ("operation: operations get", "server: servers 0", "schema: x-unit"). Control characters are
/// escaped.
[[nodiscard]] std::string changeText(const Change& change);

/// A line of nothing but the place and the level of a change: {0} of `format` is the file, {1} the line, {2}
/// the column and {3} the level.
[[nodiscard]] std::string changeLine(const Change& change, std::string_view format);

/// The names of changed metadata fields in the order of their bits: as documents spell them
/// ("termsOfService"), and as people do ("terms of service").
struct MetadataFieldName {
    std::string_view key;
    std::string_view text;
};
[[nodiscard]] std::vector<MetadataFieldName> metadataFieldNames(const ChangelogReport& report);

} // namespace specloom::openapi_diff
