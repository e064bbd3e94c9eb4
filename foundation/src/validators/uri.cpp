#include "foundation/ascii.h"
#include "foundation/strings.h"
#include "foundation/validators/validators.h"

#include <algorithm>   // std::all_of, std::find
#include <array>       // std::array
#include <cstddef>     // std::size_t
#include <exception>   // std::exception
#include <string>      // std::string
#include <string_view> // std::string_view

#include <ada.h>
#include <utf8cpp/utf8.h>

namespace specloom {
namespace {

/// The parser drops line ends and tabs anywhere, and spaces and control characters around the text.
bool isDropped(char byte) {
    return static_cast<unsigned char>(byte) <= ' ';
}

/// Whether URLs of this scheme have hosts that are names of the domain name system.
bool hasDomain(std::string_view scheme) {
    constexpr std::array<std::string_view, 6> schemes = {"file", "ftp", "http", "https", "ws", "wss"};
    std::string name;
    for (const char byte : scheme) {
        if (!isDropped(byte))
            name += byte;
    }
    return std::find(schemes.begin(), schemes.end(), toLowerCase(name)) != schemes.end();
}

/// What the parser may take for the name of a host, a port included; more than that where there is doubt.
std::string_view domainOf(std::string_view text) {
    const std::size_t schemeEnd = text.find_first_of(":/?#");
    const bool hasScheme = schemeEnd != std::string_view::npos && text[schemeEnd] == ':';
    if (hasScheme) {
        if (!hasDomain(text.substr(0, schemeEnd)))
            return {};
        text.remove_prefix(schemeEnd + 1);
    }
    int slashes = 0;
    while (!text.empty() && (text.front() == '/' || text.front() == '\\' || isDropped(text.front()))) {
        slashes += isDropped(text.front()) || slashes == 2 ? 0 : 1;
        text.remove_prefix(1);
    }
    if (!hasScheme && slashes < 2)
        return {};
    const std::string_view authority = text.substr(0, text.find_first_of("/\\?#"));
    return authority.substr(authority.rfind('@') + 1); // npos + 1 is 0
}

/// The parser decodes an internationalized name in time that grows with the square of its length. No such
/// name is longer than 253 bytes, or about ten times that in percent escapes (RFC 1035, section 2.3.4).
bool hasEndlessDomain(std::string_view text) {
    constexpr std::size_t longest = 4096;
    const std::string_view domain = domainOf(text);
    return domain.size() > longest && !std::all_of(domain.begin(), domain.end(), [](char byte) {
               return ascii::isLetter(byte) || ascii::isDigit(byte) || byte == '.';
           });
}

/// The parser takes its input for UTF-8 without looking.
bool parses(std::string_view text, const ada::url_aggregator* base) {
    return utf8::is_valid(text.begin(), text.end()) && !hasEndlessDomain(text) &&
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
