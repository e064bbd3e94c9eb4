#include "openapi_diff/config_key.h"

#include "foundation/unreachable.h"
#include "openapi_diff/config_fields.h"

namespace specloom::openapi_diff {

const ConfigField& configField(ConfigKey key) {
    const auto index = static_cast<std::size_t>(key);
    if (index >= config_fields::all.size())
        SPECLOOM_UNREACHABLE("Unknown configuration key");
    return config_fields::all[index];
}

std::string_view configKeyText(ConfigKey key) {
    const ConfigField& field = configField(key);
    return field.name.empty() ? field.section : field.name;
}

} // namespace specloom::openapi_diff
