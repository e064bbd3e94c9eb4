#include "code_morph_astro/attributes.h"
#include "openapi/schema.h"
#include "openapi_generator_doc_html/component_kinds.h"
#include "openapi_generator_doc_html/components.h"
#include "openapi_generator_doc_html/document/properties.h"

namespace specloom::openapi_generator::doc_html {

using code_morph::astro::Attributes;
using code_morph::astro::ObjectLiteral;

void Resource::collect(jv::JV& data) {
    const ArtefactNames& names = site().names.ofSchema(name_);
    const std::string usage = resourceUsageComponent.symbolOf(names);
    addImport(data, usage, resourceUsageComponent.folder, names.key);
    data.setString("usageComponentName", usage);
    Property property = propertyOf(schema_);
    property.name = name_;
    Attributes attributes;
    attributes.text("id", names.anchor);
    if (const auto* schema = openapi::resolveTo<openapi::Schema>(schema_))
        attributes.textIf("title", texts().translateIf(schema->title()));
    attributes.literal("labels", ObjectLiteral()
                                     .text("properties", texts().translate("Properties"))
                                     .text("usages", texts().translate("Used by"))
                                     .take());
    data.setString("attributes", attributes.view() + site().propertyLines.attributesOf(property));
    data.setString("description", texts().describe(property.description));
    data.setString("properties", site().propertyLines.linesOf(propertiesOf(schema_), 2));
}

void ResourceUsage::collect(jv::JV& data) {
    std::string entries;
    for (const openapi::OperationRef& ref : site().usages.operationsOf(name_))
        entries += site().usageEntries.ofOperation(ref);
    data.setString("usages", entries);
}

} // namespace specloom::openapi_generator::doc_html
