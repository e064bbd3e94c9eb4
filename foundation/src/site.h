#pragma once

#include <string_view> // std::string_view

namespace specloom {

/// The address under which the project's documentation is published, on the host that the build was given
/// (SPECLOOM_SITE_HOST); no slash at its end.
extern const std::string_view documentationSite;

} // namespace specloom
