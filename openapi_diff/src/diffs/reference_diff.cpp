#include "openapi_diff/diffs/reference_diff.h"

#include "openapi/openapi.h"
#include "openapi_diff/component_comparisons.h"
#include "openapi_diff/diffs/node_diff.h"

namespace specloom::openapi_diff {
namespace {

using openapi::Reference;

/// The name in a text such as "#/components/schemas/Pet".
std::optional<std::string_view> nameIn(std::string_view text, openapi::ComponentSection section) {
    constexpr std::string_view start = "#/components/";
    const std::size_t head = start.size() + componentSectionKey(section).size() + 1;
    return text.starts_with(start) && text.size() >= head ? std::optional(text.substr(head)) : std::nullopt;
}

/// A text beside `$ref`. References to schemas keep none, but from 3.1 on it means something there too.
std::optional<std::string_view> textBeside(const Reference& reference, std::string_view key,
                                           std::optional<std::string_view> kept) {
    const jv::JV* object = reference.source();
    if (kept || object == nullptr || object->size() == 1 || documentOf(reference).isVersion30())
        return kept;
    const jv::JV* text = object->isObject() ? object->get(key) : nullptr;
    return text != nullptr && text->isString() ? std::optional(text->text()) : std::nullopt;
}

std::optional<std::string_view> summaryOf(const Reference& reference) {
    return textBeside(reference, "summary", reference.summary());
}

std::optional<std::string_view> descriptionOf(const Reference& reference) {
    return textBeside(reference, "description", reference.description());
}

} // namespace

std::string_view targetName(const Reference& reference) {
    if (reference.target() == nullptr)
        return {};
    const jv::JV* object = reference.source();
    const jv::JV* ref = object != nullptr && object->isObject() ? object->get("$ref") : nullptr;
    if (ref != nullptr && ref->isString())
        if (const auto section = componentSectionOf(reference.target()->type()); section)
            if (const auto name = nameIn(ref->text(), *section); name)
                return *name;
    return documentOf(reference).components().nameOf(reference.target()).value_or(std::string_view());
}

void diffReferences(const openapi::Node* source, const openapi::Node* destination, DiffContext& context) {
    using enum ConfigKey;
    context.mark(source, destination);
    const Reference* before = asReference(source);
    const Reference* after = asReference(destination);
    context.field(ReferenceRef, before, after, targetName);
    context.field(ReferenceSummary, before, after, summaryOf);
    context.field(ReferenceDescription, before, after, descriptionOf);
    if (source != nullptr && destination != nullptr)
        context.comparisons().include(*source, *destination);
    diffExtensions(before, after, context);
}

} // namespace specloom::openapi_diff
