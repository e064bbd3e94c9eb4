#include "foundation/validators/validators.h"
#include "regex/pattern.h"

#include <exception> // std::exception

namespace specloom {

bool isRegex(std::string_view text) noexcept {
    try {
        static_cast<void>(regex::Pattern(text));
        return true;
    } catch (const std::exception&) {
        return false; // no memory, or a fault
    }
}

} // namespace specloom
