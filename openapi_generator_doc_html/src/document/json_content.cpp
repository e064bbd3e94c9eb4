#include "openapi_generator_doc_html/document/json_content.h"

#include "foundation/strings.h"

namespace specloom::openapi_generator::doc_html {

namespace {

/// Type and subtype in lower case (RFC 9110, section 8.3.1).
[[nodiscard]] std::string essenceOf(std::string_view mediaType) {
    return toLowerCase(trim(mediaType.substr(0, mediaType.find(';'))));
}

} // namespace

NamedMediaType jsonMediaType(const openapi::NodeMap& content) {
    constexpr std::string_view json = "application/json";
    NamedMediaType alike;
    NamedMediaType suffixed;
    for (const auto& entry : content) {
        const auto* mediaType = openapi::resolveTo<openapi::MediaType>(entry.value.get());
        if (mediaType == nullptr)
            continue;
        if (entry.name() == json)
            return {entry.name(), mediaType};
        const std::string essence = essenceOf(entry.name());
        if (alike.mediaType == nullptr && essence == json)
            alike = {entry.name(), mediaType};
        if (suffixed.mediaType == nullptr && essence.ends_with("+json"))
            suffixed = {entry.name(), mediaType};
    }
    return alike.mediaType != nullptr ? alike : suffixed;
}

} // namespace specloom::openapi_generator::doc_html
