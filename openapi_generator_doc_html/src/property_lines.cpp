#include "openapi_generator_doc_html/property_lines.h"

#include "code_morph_astro/attributes.h"

namespace specloom::openapi_generator::doc_html {

using code_morph::astro::Attributes;

PropertyLines::PropertyLines(Texts& texts, const Urls& urls, templating::Forms& forms)
    : texts_(&texts), urls_(&urls), forms_(&forms) {}

std::string PropertyLines::attributesOf(const Property& property) const {
    Attributes attributes;
    if (!property.name.empty())
        attributes.text("name", property.name);
    attributes.text("type", property.type);
    if (property.required)
        attributes.flag("required", true).text("requiredLabel", texts_->translate("Required"));
    if (property.deprecated)
        attributes.flag("deprecated", true).text("deprecatedLabel", texts_->translate("Deprecated"));
    for (const Constraint& constraint : property.constraints)
        attributes.literal(constraint.name, constraint.number);
    if (!property.enumeration.empty())
        attributes.literal("enum", code_morph::astro::toArrayLiteral(property.enumeration))
            .text("enumLabel", texts_->translate("Possible values"));
    if (property.resource)
        attributes.text("resource", *property.resource)
            .text("href", urls_->ofResource(*property.resource, texts_->locale()));
    return attributes.take();
}

std::string PropertyLines::contentOf(const Property& property, std::size_t indentation) {
    std::string lines;
    appendContent(property, indentation, lines);
    return lines;
}

std::string PropertyLines::linesOf(const std::vector<Property>& properties, std::size_t indentation) {
    std::string lines;
    append(properties, indentation, lines);
    return lines;
}

// These two nest as deep as deepestPropertyTable.

void PropertyLines::append(const std::vector<Property>& properties, std::size_t indentation,
                           std::string& out) {
    const std::string blanks(indentation, ' ');
    for (const Property& property : properties) {
        const bool isLeaf = property.properties.empty() && property.description.value_or("").empty();
        out += forms_->fill(isLeaf ? "property.jinja" : "property_open.jinja",
                            {{"indentation", blanks}, {"attributes", attributesOf(property)}});
        if (isLeaf)
            continue;
        appendContent(property, indentation + 2, out);
        out += forms_->fill("property_close.jinja", {{"indentation", blanks}});
    }
}

void PropertyLines::appendContent(const Property& property, std::size_t indentation, std::string& out) {
    if (const std::string& html = texts_->describe(property.description); !html.empty())
        out += forms_->fill("description.jinja",
                            {{"indentation", std::string(indentation, ' ')}, {"html", html}});
    append(property.properties, indentation, out);
}

} // namespace specloom::openapi_generator::doc_html
