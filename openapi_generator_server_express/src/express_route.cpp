#include "openapi_generator_server_express/express_route.h"

#include "foundation/ascii.h"
#include "foundation/utf8.h"

#include <cstddef> // std::size_t
#include <utility> // std::move

#include <fmt/core.h>

namespace specloom::openapi_generator::server_express {
namespace {

bool isWordSign(char c) noexcept {
    return ascii::isAlphanumeric(c) || c == '_';
}

/// What clients percent-encode in a path (URL Standard, the path percent-encode set); and the backslash,
/// which they take for a slash.
bool isEncodedInUrls(char c) noexcept {
    const auto byte = static_cast<unsigned char>(c);
    return byte <= 0x20 || byte >= 0x7F || std::string_view("\"#<>?`{}\\").find(c) != std::string_view::npos;
}

/// What Express, or the regular expression that it makes of a route, takes for more than a sign. It escapes
/// dots itself.
bool isPatternSign(char c) noexcept {
    return std::string_view("$()*+:[]^|").find(c) != std::string_view::npos;
}

class RouteWriter {
  public:
    void literal(char c) {
        if (isEncodedInUrls(c)) {
            append(fmt::format("%{:02X}", static_cast<unsigned char>(c)));
        } else if (isPatternSign(c)) {
            append(std::string{'\\', c});
            scanned_ += 2;
        } else if (isWordSign(c) && isBehindName_) {
            append(std::string{'[', c, ']'});
        } else {
            append(std::string(1, c));
            scanned_ += c == '.' ? 1 : 0;
        }
    }

    void parameter(std::string_view name) {
        // Express lets a parameter within a segment end before the text that stands in front of it. It finds
        // that text at an offset that counts nothing but escapes and dots, and makes a regular expression of
        // it that is none where the offset splits an escape. A parameter with a pattern of its own needs no
        // such text.
        const bool isAtStart = route_.ends_with('/') || route_.ends_with('.');
        const bool splitsEscape = !isAtStart && scanned_ > 0 && route_[scanned_ - 1] == '\\';
        route_ += ':';
        for (const char c : name)
            if (!isContinuationByte(c))
                route_ += isWordSign(c) ? c : '_';
        if (splitsEscape)
            route_ += "([^/]+?)";
        isBehindName_ = true;
        scanned_ = route_.size();
    }

    [[nodiscard]] std::string take() { return std::move(route_); }

  private:
    void append(std::string_view text) {
        route_ += text;
        isBehindName_ = false;
    }

    std::string route_;
    std::size_t scanned_ = 0; ///< where Express believes to be
    bool isBehindName_ = false;
};

} // namespace

std::string toExpressRoute(std::string_view urlTemplate) {
    RouteWriter writer;
    for (std::size_t at = 0; at < urlTemplate.size();) {
        const std::size_t end = urlTemplate[at] == '{' ? urlTemplate.find('}', at) : std::string_view::npos;
        if (end == std::string_view::npos || end == at + 1) {
            writer.literal(urlTemplate[at]);
            ++at;
            continue;
        }
        writer.parameter(urlTemplate.substr(at + 1, end - at - 1));
        at = end + 1;
    }
    return writer.take();
}

} // namespace specloom::openapi_generator::server_express
