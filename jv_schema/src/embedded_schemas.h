#pragma once

#include "jv/jv.h"

#include <memory>      // std::shared_ptr
#include <string_view> // std::string_view

namespace specloom::jv::schema {

/// The published schema with a URI without fragment, among those that the program contains: the meta-schemas
/// of all drafts. Null for any other. Read when it is first asked for.
[[nodiscard]] std::shared_ptr<const JV> embeddedSchema(std::string_view uri);

} // namespace specloom::jv::schema
