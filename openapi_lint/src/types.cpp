#include "openapi_lint/types.h"

#include "foundation/unreachable.h"

#include <stdexcept> // std::runtime_error

namespace specloom::openapi_lint {

Severity parseSeverity(std::string_view text) {
    if (text == "error" || text == "err")
        return Severity::Error;
    if (text == "warning" || text == "warn")
        return Severity::Warning;
    throw std::runtime_error("Invalid severity");
}

std::string_view severityName(Severity severity) {
    switch (severity) {
    case Severity::Warning:
        return "warning";
    case Severity::Error:
        return "error";
    }
    // The place is part of a published text, which outlives the files that it names.
    unreachable(nullptr, "openapi_lint/src/types", 26);
}

std::string_view capitalizedSeverityName(Severity severity) {
    return severityName(severity) == "error" ? "Error" : "Warning";
}

} // namespace specloom::openapi_lint
