#pragma once

#include "openapi_diff/reports/changelog.h"
#include "openapi_diff/reports/detailed.h"

#include <string>      // std::string
#include <string_view> // std::string_view

#include <nlohmann/json_fwd.hpp>

// What the reports that are made from templates have in common: the data of their templates.
namespace specloom::openapi_diff {

/// Makes the text of a document fit for the language of a template.
using EscapeText = std::string (*)(std::string_view text);

/// "counts": how many changes of each level a report has, and in "total".
[[nodiscard]] nlohmann::json describeCounts(const Report& report);

/// "level": the report's level, its "heading" and "severity".
[[nodiscard]] nlohmann::json describeLevel(const Report& report);

/// "added", "removed", "deprecated" and "modified", each a list of operations, and "metadata", a list of the
/// fields that changed, with its "metadataSeverity" ("none" when nothing did).
[[nodiscard]] nlohmann::json describeChangelog(const ChangelogReport& report, EscapeText escape);

/// Of one change.
[[nodiscard]] nlohmann::json describeChange(const Change& change, EscapeText escape);

} // namespace specloom::openapi_diff
