#include "jv/yaml_quoting.h"

namespace specloom::jv {

namespace {

/// Drops the digits at the front; false when there is none.
[[nodiscard]] bool skipDigits(std::string_view& text) noexcept {
    const std::string_view all = text;
    while (!text.empty() && text.front() >= '0' && text.front() <= '9')
        text.remove_prefix(1);
    return text.size() != all.size();
}

/// An optional sign, digits, optionally "." and digits, and nothing else. Written by hand, because the
/// matcher of the standard library recurses with its input. The exponent form is deliberately not part of it.
[[nodiscard]] bool isDecimal(std::string_view text) noexcept {
    if (text.starts_with('+') || text.starts_with('-'))
        text.remove_prefix(1);
    if (!skipDigits(text))
        return false;
    if (text.empty())
        return true;
    if (text.front() != '.')
        return false;
    text.remove_prefix(1);
    return skipDigits(text) && text.empty();
}

} // namespace

bool needsDoubleQuotes(std::string_view text) noexcept {
    return text.empty() || text == "null" || text == "true" || text == "false" || text.front() == '#' ||
           text.front() == '*' || isDecimal(text);
}

} // namespace specloom::jv
