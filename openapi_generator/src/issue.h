#pragma once

#include "jv/pos.h"

#include <cstdint> // std::int32_t
#include <iosfwd>  // std::ostream
#include <string>  // std::string
#include <vector>  // std::vector

namespace specloom::openapi_generator {

enum class IssueSeverity : std::int32_t { Info, Warning, Error, Fatal };

/// What a generator has to say about a place of the document.
struct Issue {
    IssueSeverity severity;
    std::string message;
    jv::Pos pos;
};

/// Writes a line for each issue: its place as "line:column", its severity and its message, the first two in
/// columns, in the order of places and, where that is one, of severities. `isColoured` is for terminals. A
/// severity beyond the list is an unreachable path.
void reportIssues(const std::vector<Issue>& issues, std::ostream& out, bool isColoured);
/// The same on standard output, coloured when that is a terminal and the variable NO_COLOR is not set, or to
/// nothing.
void reportIssues(const std::vector<Issue>& issues);

} // namespace specloom::openapi_generator
