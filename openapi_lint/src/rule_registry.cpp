#include "openapi_lint/rule_registry.h"

#include <algorithm> // std::find_if, std::is_sorted
#include <iterator>  // std::begin, std::end
#include <stdexcept> // std::runtime_error
#include <string>    // std::string

#include "foundation/message.h"
#include "openapi_lint/rules/audience_defined.h"
#include "openapi_lint/rules/contact_defined.h"
#include "openapi_lint/rules/id_defined.h"
#include "openapi_lint/rules/info_defined.h"
#include "openapi_lint/rules/json_api_content_type.h"
#include "openapi_lint/rules/json_api_resource_type_unique.h"
#include "openapi_lint/rules/json_api_schema_validation.h"
#include "openapi_lint/rules/json_schema_validation.h"
#include "openapi_lint/rules/license_defined.h"
#include "openapi_lint/rules/no_content_response_defined.h"
#include "openapi_lint/rules/openapi_json_schema_validation.h"
#include "openapi_lint/rules/operation_description_defined.h"
#include "openapi_lint/rules/operation_document_not_primitive.h"
#include "openapi_lint/rules/operation_id_defined.h"
#include "openapi_lint/rules/operation_id_unique.h"
#include "openapi_lint/rules/operation_rate_limiting_defined.h"
#include "openapi_lint/rules/operation_security_defined.h"
#include "openapi_lint/rules/operation_success_response.h"
#include "openapi_lint/rules/operation_tags_defined.h"
#include "openapi_lint/rules/parameter_description_defined.h"
#include "openapi_lint/rules/parameter_naming.h"
#include "openapi_lint/rules/parameters_unique.h"
#include "openapi_lint/rules/path_parameters_defined.h"
#include "openapi_lint/rules/path_parameters_on_items.h"
#include "openapi_lint/rules/paths_max_count.h"
#include "openapi_lint/rules/paths_max_depth.h"
#include "openapi_lint/rules/paths_sorted.h"
#include "openapi_lint/rules/paths_unique.h"
#include "openapi_lint/rules/paths_well_formed.h"
#include "openapi_lint/rules/safe_markdown.h"
#include "openapi_lint/rules/schema_constraints.h"
#include "openapi_lint/rules/schema_datetime_suffix.h"
#include "openapi_lint/rules/schema_discriminator_defined.h"
#include "openapi_lint/rules/schema_enum_naming.h"
#include "openapi_lint/rules/schema_enum_no_duplicates.h"
#include "openapi_lint/rules/schema_enum_types.h"
#include "openapi_lint/rules/schema_example_defined.h"
#include "openapi_lint/rules/schema_format_defined.h"
#include "openapi_lint/rules/schema_format_type_mismatch.h"
#include "openapi_lint/rules/schema_no_additional_properties.h"
#include "openapi_lint/rules/schema_property_naming.h"
#include "openapi_lint/rules/server_urls.h"
#include "openapi_lint/rules/servers_defined.h"
#include "openapi_lint/rules/spell_check.h"
#include "openapi_lint/rules/standard_media_types.h"
#include "openapi_lint/rules/standard_response_codes.h"
#include "openapi_lint/rules/standard_response_errors.h"
#include "openapi_lint/rules/tag_description_defined.h"
#include "openapi_lint/rules/tags_sorted.h"
#include "openapi_lint/rules/tags_unique.h"
#include "openapi_lint/rules/unambiguous_response_codes.h"
#include "openapi_lint/rules/unused_request_body.h"
#include "openapi_lint/rules/unused_shared_component.h"

namespace specloom::openapi_lint {
namespace {

struct RuleEntry {
    std::string_view id;
    std::unique_ptr<Rule> (*make)(Severity severity);
};

template <typename T>
constexpr RuleEntry entry() {
    return {T::ruleId,
            [](Severity severity) -> std::unique_ptr<Rule> { return std::make_unique<T>(severity); }};
}

/// Every rule, in byte-wise order of the ids.
constexpr RuleEntry ruleTable[] = {
    entry<AudienceDefined>(),
    entry<ContactDefined>(),
    entry<IDDefined>(),
    entry<InfoDefined>(),
    entry<JSONAPIContentType>(),
    entry<ResourceTypeUnique>(),
    entry<JSONAPISchemaValidation>(),
    entry<JSONSchemaValidation>(),
    entry<LicenseDefined>(),
    entry<NoContentResponseDefined>(),
    entry<OpenAPIJSONSchemaValidation>(),
    entry<OperationDescriptionDefined>(),
    entry<OperationDocumentNotPrimitive>(),
    entry<OperationIdDefined>(),
    entry<OperationIdUnique>(),
    entry<OperationRateLimitingDefined>(),
    entry<OperationSecurityDefined>(),
    entry<OperationSuccessResponse>(),
    entry<OperationTagsDefined>(),
    entry<ParameterDescriptionDefined>(),
    entry<ParameterNaming>(),
    entry<ParametersUnique>(),
    entry<PathParametersDefined>(),
    entry<PathParametersOnItems>(),
    entry<PathsMaxCount>(),
    entry<PathsMaxDepth>(),
    entry<PathsSorted>(),
    entry<PathsUnique>(),
    entry<PathsWellFormed>(),
    entry<SafeMarkdown>(),
    entry<SchemaConstraints>(),
    entry<SchemaDatetimeSuffix>(),
    entry<SchemaDiscriminatorDefined>(),
    entry<SchemaEnumNaming>(),
    entry<SchemaEnumNoDuplicates>(),
    entry<SchemaEnumTypes>(),
    entry<SchemaExampleDefined>(),
    entry<SchemaFormatDefined>(),
    entry<SchemaFormatTypeMismatch>(),
    entry<SchemaNoAdditionalProperties>(),
    entry<SchemaPropertyNaming>(),
    entry<ServerURLs>(),
    entry<ServersDefined>(),
    entry<SpellCheck>(),
    entry<StandardMediaTypes>(),
    entry<StandardResponseCodes>(),
    entry<StandardResponseErrors>(),
    entry<TagDescriptionDefined>(),
    entry<TagsSorted>(),
    entry<TagsUnique>(),
    entry<UnambiguousResponseCodes>(),
    entry<UnusedRequestBody>(),
    entry<UnusedSharedComponent>(),
};

static_assert(std::is_sorted(std::begin(ruleTable), std::end(ruleTable),
                             [](const RuleEntry& a, const RuleEntry& b) { return a.id < b.id; }),
              "the rules stand in the order of their ids");

const RuleEntry* findEntry(std::string_view id) {
    const auto* found = std::find_if(std::begin(ruleTable), std::end(ruleTable),
                                     [&](const RuleEntry& candidate) { return candidate.id == id; });
    return found == std::end(ruleTable) ? nullptr : found;
}

} // namespace

std::unique_ptr<Rule> findRule(std::string_view id, Severity severity) {
    const RuleEntry* found = findEntry(id);
    if (found == nullptr)
        throw std::runtime_error(formatMessage("Rule not found: {}", id));
    return found->make(severity);
}

bool isRuleKnown(std::string_view id) {
    return findEntry(id) != nullptr;
}

std::vector<std::string_view> ruleIds() {
    std::vector<std::string_view> ids;
    for (const RuleEntry& known : ruleTable)
        ids.push_back(known.id);
    return ids;
}

} // namespace specloom::openapi_lint
