#pragma once

#include "jv/jv.h"
#include "openapi_diff/reports/changelog.h"
#include "openapi_diff/reports/detailed.h"
#include "reporting/escapes.h"

#include <optional> // std::optional

// What the reports that are made from templates have in common: the data of their templates.
namespace specloom::openapi_diff {

/// Sets "counts": how many changes of each level a report has, and in "total".
void setCounts(jv::JV& data, const Report& report);

/// Sets "level": the report's level, its "heading" and "severity".
void setLevel(jv::JV& data, const Report& report);

/// describeChangelog() of changelog_value.h; besides, "metadata" of the changelog and of each modified
/// operation has "fields", the names of what changed as people spell them, and "security" of an operation has
/// "any".
void setChangelog(jv::JV& data, const ChangelogReport& report, reporting::EscapeText escape);

/// Sets "changes": a list of the changes, or of those of one level.
void setChanges(jv::JV& data, const DetailedReport& report, reporting::EscapeText escape,
                std::optional<ChangeLevel> level = {});

} // namespace specloom::openapi_diff
