#include "code_morph_astro/attributes.h"
#include "openapi_generator_doc_html/component_kinds.h"
#include "openapi_generator_doc_html/components.h"
#include "openapi_generator_doc_html/document/json_content.h"
#include "openapi_generator_doc_html/document/properties.h"

#include <algorithm> // std::any_of
#include <utility>   // std::pair

namespace specloom::openapi_generator::doc_html {
namespace {

using code_morph::astro::Attributes;
using code_morph::astro::ObjectLiteral;

struct SlotOfParameters {
    openapi::ParameterLocation location;
    std::string_view name;
    std::string_view label;
};

constexpr SlotOfParameters slotsOfParameters[] = {
    {openapi::ParameterLocation::Cookie, "cookie_parameters", "Cookie parameters"},
    {openapi::ParameterLocation::Header, "header_parameters", "Header parameters"},
    {openapi::ParameterLocation::Query, "query_parameters", "Query parameters"},
    {openapi::ParameterLocation::Path, "path_parameters", "Path parameters"},
};

std::string_view slotOf(openapi::ParameterLocation location) {
    for (const SlotOfParameters& slot : slotsOfParameters)
        if (slot.location == location)
            return slot.name;
    return {};
}

/// The headings of slots of an operation, by slot.
std::string labelsOf(const openapi::OperationRef& ref, const Texts& texts) {
    ObjectLiteral labels;
    const std::vector<const openapi::Parameter*> parameters = ref.operation->effectiveParameters();
    for (const SlotOfParameters& slot : slotsOfParameters)
        if (std::any_of(parameters.begin(), parameters.end(),
                        [&slot](const auto* parameter) { return parameter->location() == slot.location; }))
            labels.text(slot.name, texts.translate(slot.label));
    constexpr std::pair<std::string_view, std::string_view> others[] = {
        {"responses", "Responses"},
        {"code", "Request examples"},
        {"example", "Response examples"},
        {"responseSchemas", "Response schemas"},
        {"usages", "Uses"}};
    for (const auto& [slot, label] : others)
        labels.text(slot, texts.translate(label));
    return labels.take();
}

/// What is attributed to a scheme of a requirement. The schemes of one requirement have one number: they are
/// needed together.
std::string attributesOf(const openapi::SecurityRequirement::Scheme& scheme, std::size_t requirement) {
    std::vector<std::string> scopes;
    for (const openapi::Text& scope : scheme.scopes)
        scopes.emplace_back(scope.view());
    return Attributes()
        .text("scheme", scheme.name())
        .literal("scopes", code_morph::astro::toArrayLiteral(scopes))
        .literal("alternative", std::to_string(requirement))
        .take();
}

} // namespace

void Operation::collect(jv::JV& data) {
    const ArtefactNames& names = site().names.of(ref_);
    const std::string usage = operationUsageComponent.symbolOf(names);
    addImport(data, usage, operationUsageComponent.folder, names.key);
    data.setString("usageComponentName", usage);
    data.setString("attributes", attributes());
    data.setString("description", texts().describe(ref_.operation->description()));
    collectSecurity(data);
    collectParameters(data);
    collectRequestBody(data);
    collectResponses(data);
    const OperationSamples samples = site().sampleLines.linesOf(ref_);
    data.setString("requestExamples", samples.requestExamples);
    data.setString("responseExamples", samples.responseExamples);
    data.setString("responseSchemas", samples.responseSchemas);
}

std::string Operation::attributes() const {
    const openapi::Operation& operation = *ref_.operation;
    Attributes attributes;
    attributes.text("id", site().names.of(ref_).anchor)
        .text("method", openapi::operationKey(ref_.method))
        .text("path", ref_.path)
        .textIf("operationId", operation.operationId())
        .textIf("summary", texts().translateIf(operation.summary()));
    if (operation.deprecated())
        attributes.flag("deprecated", true).text("deprecatedLabel", texts().translate("Deprecated"));
    return attributes.literal("labels", labelsOf(ref_, texts())).take();
}

void Operation::collectSecurity(jv::JV& data) const {
    const bool isInherited = ref_.operation->inheritsSecurity();
    const auto& requirements = isInherited ? context().document->security() : ref_.operation->security();
    if (isInherited && requirements.empty())
        return;
    jv::JV* security = data.setObject("security");
    Attributes attributes;
    attributes.text("label", texts().translate("Security"));
    if (isInherited)
        attributes.flag("inherited", true).text("inheritedLabel", texts().translate("Inherited"));
    security->setString("attributes", attributes.view());
    jv::JV* list = security->setArray("requirements");
    for (std::size_t number = 0; const auto& requirement : requirements) {
        ++number;
        for (const openapi::SecurityRequirement::Scheme& scheme : requirement->schemes())
            list->appendString(attributesOf(scheme, number));
        if (requirement->schemes().empty()) // nothing is needed
            list->appendString(Attributes().literal("alternative", std::to_string(number)).view());
    }
}

void Operation::collectParameters(jv::JV& data) const {
    jv::JV* list = data.setArray("parameters");
    for (const openapi::Parameter* parameter : ref_.operation->effectiveParameters()) {
        const Property property = propertyOf(*parameter);
        jv::JV* row = list->appendObject();
        row->setString("slot", slotOf(parameter->location()));
        row->setString("attributes", site().propertyLines.attributesOf(property));
        row->setString("content", site().propertyLines.contentOf(property, 4));
    }
}

void Operation::collectRequestBody(jv::JV& data) const {
    const openapi::RequestBody* body = ref_.operation->requestBody();
    if (body == nullptr)
        return;
    const NamedMediaType json = jsonMediaType(body->content());
    const openapi::Node* schema = json.mediaType == nullptr ? nullptr : json.mediaType->schemaNode();
    Property property = propertyOf(schema);
    property.required = body->required().value_or(false);
    property.description = std::optional<std::string>(body->description());
    property.properties = propertiesOf(schema);
    // The template has other constraints.
    property.constraints.clear();
    property.enumeration.clear();
    Attributes attributes;
    if (json.mediaType != nullptr)
        attributes.text("mediaType", json.name).text("mediaTypeLabel", texts().translate("Media type"));
    jv::JV* row = data.setObject("requestBody");
    row->setString("attributes", attributes.view() + site().propertyLines.attributesOf(property));
    row->setString("content", site().propertyLines.contentOf(property, 4));
}

void Operation::collectResponses(jv::JV& data) const {
    jv::JV* list = data.setArray("responses");
    for (const auto& entry : ref_.operation->responses()) {
        const auto* response = openapi::resolveTo<openapi::Response>(entry.value.get());
        if (response == nullptr)
            continue;
        jv::JV* row = list->appendObject();
        row->setString("status", entry.name());
        row->setString("description", texts().describe(response->description()));
    }
}

void OperationUsage::collect(jv::JV& data) {
    std::string entries;
    for (const std::string& schema : site().usages.schemasOf(ref_))
        entries += site().usageEntries.ofSchema(schema);
    data.setString("usages", entries);
}

} // namespace specloom::openapi_generator::doc_html
