#pragma once

#include "jv/jv_document.h"

#include <iosfwd> // std::ostream

namespace specloom::reporting {

/// The value as one line of JSON and a line end. Its texts must be UTF-8.
void writeJson(const jv::JVDocument& report, std::ostream& stream);

} // namespace specloom::reporting
