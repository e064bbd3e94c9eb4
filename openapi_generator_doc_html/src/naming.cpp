#include "openapi_generator_doc_html/naming.h"

#include "foundation/ascii.h"
#include "foundation/case_style.h"
#include "foundation/strings.h"
#include "foundation/utf8.h"
#include "openapi_generator/unique_names.h"

#include <fmt/core.h>

namespace specloom::openapi_generator::doc_html {
namespace {

constexpr std::string_view signsOfPaths = "/{}";

std::string withoutSigns(std::string text, std::string_view signs) {
    replaceAny(text, signs, "_");
    return text;
}

/// A folder has a page beside it that is called as the folder, and that Astro would take for the index in it.
UniqueNames namesOfPages() {
    UniqueNames names;
    for (const char* taken : {"", "index"})
        static_cast<void>(names.take(taken));
    return names;
}

/// Names of one kind of artefact, each kind of name by itself.
class ArtefactNaming {
  public:
    /// An empty key would give the file the name of its folder.
    ArtefactNaming() { static_cast<void>(keys_.take("")); }

    [[nodiscard]] ArtefactNames take(const std::string& key, const std::string& anchor) {
        return {.key = keys_.take(toFileName(key)),
                .symbol = symbols_.take(toSymbol(key)),
                .anchor = anchors_.take(toValidUtf8(anchor)),
                .page = pages_.take(toKebabCase(key))};
    }

  private:
    UniqueNames keys_;
    UniqueNames symbols_;
    UniqueNames anchors_;
    UniqueNames pages_ = namesOfPages();
};

} // namespace

std::string operationKey(const openapi::OperationRef& ref) {
    const auto id = ref.operation->operationId();
    return withoutSigns(id ? toPascalCase(*id)
                           : fmt::format("{}_{}", ref.path, openapi::operationKey(ref.method)),
                        signsOfPaths);
}

std::string schemaKey(std::string_view name) {
    return withoutSigns(std::string(name), "/ .");
}

std::string operationAnchor(const openapi::OperationRef& ref) {
    return withoutSigns(fmt::format("operation_{}/{}", openapi::operationKey(ref.method), ref.path),
                        signsOfPaths);
}

std::string resourceAnchor(std::string_view name) {
    return withoutSigns(joinWith("resource_", schemaKey(name)), signsOfPaths);
}

std::string tagAnchor(std::string_view tag) {
    return joinWith("tag_", toSnakeCase(tag));
}

std::string toFileName(std::string_view key) {
    constexpr std::string_view special = "?*#\"\\\x7F";
    std::string name = toValidUtf8(key);
    for (char& c : name)
        if (static_cast<unsigned char>(c) < 0x20 || special.find(c) != std::string_view::npos)
            c = '_';
    return name;
}

std::string toSymbol(std::string_view key) {
    std::string symbol;
    for (const char c : toValidUtf8(key))
        if (!isContinuationByte(c))
            symbol += ascii::isAlphanumeric(c) ? c : '_';
    return symbol;
}

DocumentNames::DocumentNames(const openapi::OpenAPI& document) : operations_(operationsOf(document)) {
    nameOperations();
    nameSchemas(document);
    nameTags(document);
}

std::size_t DocumentNames::indexOf(const openapi::OperationRef& ref) const {
    std::size_t index = firstOfPath_.at(ref.path);
    while (operations_[index].method != ref.method) // of which a path has few
        ++index;
    return index;
}

void DocumentNames::nameOperations() {
    ArtefactNaming naming;
    operationNames_.reserve(operations_.size());
    for (const openapi::OperationRef& ref : operations_) {
        firstOfPath_.try_emplace(ref.path, operationNames_.size());
        operationNames_.push_back(naming.take(operationKey(ref), operationAnchor(ref)));
    }
}

void DocumentNames::nameSchemas(const openapi::OpenAPI& document) {
    ArtefactNaming naming;
    for (const auto& entry : document.components().schemas())
        schemas_.try_emplace(entry.name(),
                             naming.take(schemaKey(entry.name()), resourceAnchor(entry.name())));
}

void DocumentNames::nameTags(const openapi::OpenAPI& document) {
    UniqueNames anchors;
    UniqueNames pages = namesOfPages();
    for (const auto& tag : document.tags())
        if (!tags_.contains(tag->name()))
            tags_.try_emplace(tag->name(), TagNames{.anchor = anchors.take(tagAnchor(tag->name())),
                                                    .page = pages.take(toSnakeCase(tag->name()))});
}

} // namespace specloom::openapi_generator::doc_html
