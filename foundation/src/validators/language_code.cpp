#include "foundation/language_names.h"
#include "foundation/validators/validators.h"

namespace specloom {

bool isLanguageCode(std::string_view text) noexcept {
    return languageName(text).has_value();
}

} // namespace specloom
