#include "openapi_generator_doc_html/urls.h"

#include "foundation/ascii.h"
#include "foundation/unreachable.h"

#include <stdexcept> // std::runtime_error

#include <fmt/core.h>

namespace specloom::openapi_generator::doc_html {
namespace {

/// A fragment of a URL (RFC 3986, section 3.5), percent-encoded where it has to be.
std::string encodedFragment(std::string_view text) {
    std::string result;
    for (const char c : text)
        if (ascii::isAlphanumeric(c) ||
            std::string_view("-._~!$&'()*+,;=:@/?").find(c) != std::string_view::npos)
            result += c;
        else
            result += fmt::format("%{:02X}", static_cast<unsigned char>(c));
    return result;
}

void appendPiece(std::string_view piece, std::string& path) {
    if (piece.empty())
        return;
    if (!path.empty())
        path += '/';
    path += piece;
}

} // namespace

std::string_view localeSegment(const Configuration& configuration, const Locale& locale) {
    if (!locale)
        return {};
    if (configuration.locales.empty())
        throw std::runtime_error("Not in multi-language mode");
    if (locale == configuration.defaultLocale && !configuration.prefixDefaultLocale)
        return {};
    return *locale;
}

std::string filePath(std::string_view root, std::string_view localeSegment, std::string_view folder,
                     std::string_view name, bool hasExtension) {
    std::string path;
    for (const std::string_view piece : {root, localeSegment, folder, name})
        appendPiece(piece, path);
    return hasExtension ? path + ".astro" : path;
}

std::string Urls::ofOverview(const Locale& locale) const {
    if (!configuration_->isSinglePage())
        return compose(locale, "/index", "");
    return compose(locale, localeSegment(*configuration_, locale).empty() ? "/" : "", "overview");
}

std::string Urls::ofOperation(const openapi::OperationRef& ref, const Locale& locale) const {
    const ArtefactNames& names = names_->of(ref);
    switch (configuration_->operationGranularity) {
    case OperationGranularity::Merge:
        return compose(locale, configuration_->isSinglePage() ? "" : "/operations", names.anchor);
    case OperationGranularity::Group:
        if (ref.operation->tags().empty())
            return compose(locale, "/operations", names.anchor);
        return compose(locale, "/groups/" + names_->ofTag(ref.operation->tags().front()->name()).page,
                       names.anchor);
    case OperationGranularity::Separate:
        return compose(locale, "/operations/" + names.page, "");
    }
    SPECLOOM_UNREACHABLE("no granularity of operations");
}

std::string Urls::ofTag(std::string_view tag, const Locale& locale) const {
    const TagNames& names = names_->ofTag(tag);
    switch (configuration_->operationGranularity) {
    case OperationGranularity::Merge:
        return compose(locale, configuration_->isSinglePage() ? "" : "/operations", names.anchor);
    case OperationGranularity::Group:
        return compose(locale, "/groups/" + names.page, "");
    case OperationGranularity::Separate:
        break;
    }
    SPECLOOM_UNREACHABLE("ResourceGranularity::Separate and others aren't allowed here");
}

std::string Urls::ofResource(std::string_view schema, const Locale& locale) const {
    const ArtefactNames& names = names_->ofSchema(schema);
    if (configuration_->resourceGranularity == ResourceGranularity::Separate)
        return compose(locale, "/resources/" + names.page, "");
    return compose(locale, configuration_->isSinglePage() ? "" : "/resources", names.anchor);
}

std::string Urls::ofPage(std::string_view name, const Locale& locale) const {
    return compose(locale, fmt::format("/{}", name), "");
}

std::string Urls::compose(const Locale& locale, std::string_view path, std::string_view fragment) const {
    std::string url;
    if (const std::string_view segment = localeSegment(*configuration_, locale); !segment.empty())
        (url += '/') += segment;
    url += path;
    return fragment.empty() ? url : url + '#' + encodedFragment(fragment);
}

} // namespace specloom::openapi_generator::doc_html
