#pragma once

#include "jv/jv.h"
#include "openapi_diff/reports/changelog.h"
#include "reporting/escapes.h"

namespace specloom::openapi_diff {

/// Sets "severity", "line" and "column": what is told of every change.
void setChange(jv::JV& object, ChangeLevel level, jv::Pos pos);

/// Describes a changelog: "metadata", "added", "removed", "deprecated" and "modified", with texts of
/// documents as `escape` makes them.
void describeChangelog(jv::JV& object, const ChangelogReport& report, reporting::EscapeText escape);

} // namespace specloom::openapi_diff
