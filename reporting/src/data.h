#pragma once

#include "jv/jv_document.h"

#include <iosfwd> // std::ostream

#include <nlohmann/json_fwd.hpp>

// What a report tells is described as a value once, for forms that write it and for templates that are filled
// with it. Its texts must be UTF-8.
namespace specloom::reporting {

/// The value as one line of JSON and a line end.
void writeJson(const jv::JVDocument& report, std::ostream& stream);

/// The value as templates take it.
[[nodiscard]] nlohmann::json templateData(const jv::JVDocument& report);

} // namespace specloom::reporting
