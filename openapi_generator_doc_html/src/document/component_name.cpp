#include "openapi_generator_doc_html/document/component_name.h"

#include "openapi/openapi.h"
#include "openapi/reference.h"

#include <string> // std::string

namespace specloom::openapi_generator::doc_html {

std::optional<ComponentName> componentNameOf(const openapi::Reference& reference) {
    const openapi::Node* target = reference.target();
    if (target == nullptr)
        return std::nullopt;
    const std::optional<openapi::ComponentSection> section = openapi::componentSectionOf(target->type());
    if (!section)
        return std::nullopt;
    const openapi::Components& components = openapi::documentOf(reference).components();
    if (const jv::JV* source = reference.source(); source != nullptr && source->isObject()) {
        const jv::JV* text = source->get("$ref");
        const std::size_t head =
            std::string_view("#/components//").size() + openapi::componentSectionKey(*section).size();
        if (text != nullptr && text->isString() && text->text().size() >= head) {
            const std::string_view name = text->text().substr(head);
            if (components.section(*section).find(name) != nullptr)
                return ComponentName{*section, name};
        }
    }
    if (const std::optional<std::string_view> name = components.nameOf(target))
        return ComponentName{*section, *name};
    return std::nullopt;
}

} // namespace specloom::openapi_generator::doc_html
