#include "foundation/site.h"

namespace specloom {

constinit const std::string_view documentationSite = "https://" SPECLOOM_SITE_HOST "/techdocs";

} // namespace specloom
