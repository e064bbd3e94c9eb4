#include "foundation/validators/validators.h"

#include <exception>   // std::exception
#include <string_view> // std::string_view

#include <ada.h>
#include <utf8cpp/utf8.h>

namespace specloom {
namespace {

/// The parser takes its input for UTF-8 without looking.
bool parses(std::string_view text, const ada::url_aggregator* base) {
    return utf8::is_valid(text.begin(), text.end()) &&
           ada::parse<ada::url_aggregator>(text, base).has_value();
}

} // namespace

bool isURI(std::string_view text) noexcept {
    try {
        return parses(text, nullptr);
    } catch (const std::exception&) {
        return false;
    }
}

bool isURIReference(std::string_view text) noexcept {
    try {
        // The parser reads a backslash as a slash; a reference (RFC 3986, section 4.1) has no such character.
        if (text.find('\\') != std::string_view::npos)
            return false;
        static const ada::url_aggregator base =
            ada::parse<ada::url_aggregator>("https://example.com/").value();
        return parses(text, &base);
    } catch (const std::exception&) {
        return false;
    }
}

} // namespace specloom
