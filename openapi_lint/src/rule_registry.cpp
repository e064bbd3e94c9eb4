#include "openapi_lint/rule_registry.h"

#include "foundation/registry.h"
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

#include <algorithm> // std::is_sorted
#include <iterator>  // std::begin, std::end

namespace specloom::openapi_lint {
namespace {

using RuleEntry = Maker<Rule, Severity>;

template <typename T>
constexpr RuleEntry entry() {
    return RuleEntry::of<T>(T::ruleId);
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
                             [](const RuleEntry& a, const RuleEntry& b) { return a.name < b.name; }),
              "the rules stand in the order of their ids");

constexpr Registry ruleRegistry(ruleTable);

} // namespace

std::unique_ptr<Rule> findRule(std::string_view id, Severity severity) {
    return ruleRegistry.get(id, "Rule not found: {}").make(severity);
}

bool isRuleKnown(std::string_view id) {
    return ruleRegistry.find(id) != nullptr;
}

std::vector<std::string_view> ruleIds() {
    return ruleRegistry.names();
}

} // namespace specloom::openapi_lint
