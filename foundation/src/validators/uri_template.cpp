#include "foundation/uri_template.h"

#include "foundation/validators/validators.h"

#include <exception>   // std::exception
#include <string_view> // std::string_view

namespace specloom {

bool isURITemplate(std::string_view text) noexcept {
    try {
        return isValidUriTemplate(text);
    } catch (const std::exception&) {
        return false;
    }
}

} // namespace specloom
