#pragma once

#include "openapi_diff/reports/changelog.h"
#include "openapi_diff/reports/detailed.h"
#include "reporting/escapes.h"

#include <nlohmann/json_fwd.hpp>

// What the reports that are made from templates have in common: the data of their templates.
namespace specloom::openapi_diff {

/// "counts": how many changes of each level a report has, and in "total".
[[nodiscard]] nlohmann::json describeCounts(const Report& report);

/// "level": the report's level, its "heading" and "severity".
[[nodiscard]] nlohmann::json describeLevel(const Report& report);

/// describeChangelog() of changelog_value.h; besides, "metadata" of the changelog and of each modified
/// operation has "fields", the names of what changed as people spell them, and "security" of an operation has
/// "any".
[[nodiscard]] nlohmann::json changelogData(const ChangelogReport& report, reporting::EscapeText escape);

/// Of one change.
[[nodiscard]] nlohmann::json describeChange(const Change& change, reporting::EscapeText escape);

} // namespace specloom::openapi_diff
