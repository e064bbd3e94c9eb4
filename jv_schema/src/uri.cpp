#include "jv_schema/uri.h"

#include "foundation/ascii.h"

#include <algorithm> // std::min
#include <cstddef>   // std::size_t

namespace specloom::jv::schema {

namespace {

/// The parts of RFC 3986, section 3, without the fragment. Scheme and authority carry their delimiters.
struct Parts {
    std::string_view scheme;
    std::string_view authority;
    std::string_view path;
    std::string_view query;
};

[[nodiscard]] Parts split(std::string_view uri) {
    Parts parts;
    const std::size_t colon = uri.find_first_of(":/?");
    if (colon != std::string_view::npos && colon != 0 && uri[colon] == ':') {
        parts.scheme = uri.substr(0, colon + 1);
        uri.remove_prefix(colon + 1);
    }
    if (uri.starts_with("//")) {
        const std::size_t end = std::min(uri.find_first_of("/?", 2), uri.size());
        parts.authority = uri.substr(0, end);
        uri.remove_prefix(end);
    }
    const std::size_t query = std::min(uri.find('?'), uri.size());
    parts.path = uri.substr(0, query);
    parts.query = uri.substr(query);
    return parts;
}

/// RFC 3986, section 5.2.4.
[[nodiscard]] std::string withoutDotSegments(std::string_view path) {
    std::string out;
    while (!path.empty()) {
        const std::size_t end = std::min(path.find('/', 1), path.size());
        const std::string_view segment = path.substr(0, end);
        path.remove_prefix(end);
        const std::string_view name = segment.starts_with('/') ? segment.substr(1) : segment;
        if (name == "..")
            out.erase(std::min(out.rfind('/'), out.size()));
        if (name != "." && name != "..")
            out += segment;
        else if (path.empty())
            out += '/';
    }
    return out;
}

[[nodiscard]] std::string joined(std::string_view scheme, std::string_view authority, std::string_view path,
                                 std::string_view query) {
    std::string uri(scheme);
    uri += authority;
    uri += path;
    uri += query;
    return uri;
}

} // namespace

SplitUri splitFragment(std::string_view reference) noexcept {
    const std::size_t hash = reference.find('#');
    if (hash == std::string_view::npos)
        return {reference, std::nullopt};
    return {reference.substr(0, hash), reference.substr(hash + 1)};
}

std::string resolveUri(std::string_view base, std::string_view reference) {
    if (reference.empty())
        return std::string(base);
    const Parts to = split(reference);
    if (!to.scheme.empty() || base.empty())
        return std::string(reference);
    const Parts from = split(base);
    if (!to.authority.empty())
        return joined(from.scheme, to.authority, withoutDotSegments(to.path), to.query);
    if (to.path.empty())
        return joined(from.scheme, from.authority, from.path, to.query);
    if (to.path.starts_with('/'))
        return joined(from.scheme, from.authority, withoutDotSegments(to.path), to.query);
    std::string path;
    if (from.path.empty() && !from.authority.empty())
        path = '/';
    else if (const std::size_t slash = from.path.rfind('/'); slash != std::string_view::npos)
        path = from.path.substr(0, slash + 1);
    path += to.path;
    return joined(from.scheme, from.authority, withoutDotSegments(path), to.query);
}

std::string percentDecoded(std::string_view text) {
    std::string out;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const int high = text[i] == '%' && i + 2 < text.size() ? ascii::hexValue(text[i + 1]) : -1;
        const int low = high >= 0 ? ascii::hexValue(text[i + 2]) : -1;
        if (low >= 0) {
            out += static_cast<char>(high * 16 + low);
            i += 2;
        } else {
            out += text[i];
        }
    }
    return out;
}

} // namespace specloom::jv::schema
