#include "foundation/validators/validators.h"

#include <algorithm>   // std::find
#include <cstddef>     // std::size_t
#include <iterator>    // std::size
#include <span>        // std::span
#include <string_view> // std::string_view

namespace specloom {
namespace {

constexpr std::string_view types[] = {"*",       "application", "audio",     "example", "font", "image",
                                      "message", "model",       "multipart", "text",    "video"};

constexpr std::string_view subtypes[] = {"*",
                                         "atom+xml",
                                         "base64",
                                         "ecmascript",
                                         "edi-x12",
                                         "edifact",
                                         "json",
                                         "javascript",
                                         "mp4",
                                         "mpeg",
                                         "octet-stream",
                                         "ogg",
                                         "pdf",
                                         "png",
                                         "postscript",
                                         "problem+json",
                                         "soap+xml",
                                         "xhtml+xml",
                                         "xml-dtd",
                                         "xop+xml",
                                         "zip",
                                         "gzip",
                                         "x-gzip",
                                         "x-www-form-urlencoded",
                                         "form-data",
                                         "plain",
                                         "csv",
                                         "html",
                                         "css",
                                         "javascript",
                                         "xml",
                                         "vnd.api+json",
                                         "vnd.google-earth.kml+xml",
                                         "vnd.google-earth.kmz",
                                         "vnd.ms-excel",
                                         "vnd.ms-fontobject",
                                         "vnd.ms-powerpoint",
                                         "vnd.oasis.opendocument.graphics",
                                         "vnd.oasis.opendocument.presentation",
                                         "vnd.oasis.opendocument.spreadsheet",
                                         "vnd.oasis.opendocument.text",
                                         "vnd.openxmlformats-officedocument.presentationml.presentation",
                                         "vnd.openxmlformats-officedocument.spreadsheetml.sheet",
                                         "vnd.openxmlformats-officedocument.wordprocessingml.document",
                                         "vnd.visio",
                                         "vnd.wap.wml",
                                         "vnd.wap.wmlc",
                                         "vnd.wap.wmlscript",
                                         "vnd.wap.wmlscriptc",
                                         "x-abiword",
                                         "x-bzip",
                                         "x-bzip2",
                                         "x-csh",
                                         "x-rar-compressed",
                                         "x-sh",
                                         "x-shockwave-flash",
                                         "x-tar",
                                         "xhtml+xml",
                                         "xslt+xml",
                                         "xul",
                                         "vnd.ms-excel",
                                         "vnd.ms-powerpoint",
                                         "vnd.oasis.opendocument.text",
                                         "vnd.openxmlformats-officedocument.presentationml.presentation",
                                         "vnd.openxmlformats-officedocument.spreadsheetml.sheet",
                                         "vnd.openxmlformats-officedocument.wordprocessingml.document",
                                         "vnd.visio",
                                         "vnd.wap.wml",
                                         "vnd.wap.wmlc",
                                         "vnd.wap.wml"};

constexpr std::string_view subtypeEnds = "; \t\n\v\f\r";
constexpr std::string_view whiteSpace = subtypeEnds.substr(1);

bool holds(std::span<const std::string_view> table, std::string_view name) {
    return std::find(table.begin(), table.end(), name) != table.end();
}

// A subtype that stands in the table twice is no fault.
static_assert(std::size(types) == 11 && std::size(subtypes) == 70);

} // namespace

bool isMediaType(std::string_view text) noexcept {
    const std::size_t start = text.find_first_not_of(whiteSpace);
    if (start == std::string_view::npos)
        return false;
    text.remove_prefix(start);
    const std::size_t slash = text.find('/');
    if (slash == std::string_view::npos)
        return false;
    const std::string_view subtype = text.substr(slash + 1);
    return holds(types, text.substr(0, slash)) &&
           holds(subtypes, subtype.substr(0, subtype.find_first_of(subtypeEnds)));
}

} // namespace specloom
