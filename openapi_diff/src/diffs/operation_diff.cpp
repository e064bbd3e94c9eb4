#include "openapi_diff/diffs/operation_diff.h"

#include "openapi/openapi.h"
#include "openapi/tag.h"
#include "openapi_diff/diffs/callback_diff.h"
#include "openapi_diff/diffs/external_documentation_diff.h"
#include "openapi_diff/diffs/parameter_list_diff.h"
#include "openapi_diff/diffs/request_body_diff.h"
#include "openapi_diff/diffs/responses_diff.h"
#include "openapi_diff/diffs/security_requirement_list_diff.h"
#include "openapi_diff/diffs/server_list_diff.h"
#include "openapi_diff/diffs/text_sets.h"

namespace specloom::openapi_diff {
namespace {

/// The names as written: the tree keeps only those that the document declares.
std::vector<std::string_view> tagsOf(const openapi::Operation* operation) {
    std::vector<std::string_view> names;
    if (operation == nullptr)
        return names;
    if (const jv::JV* object = operation->source(); object != nullptr && object->isObject()) {
        const jv::JV* tags = object->get("tags");
        if (tags != nullptr && tags->isArray())
            for (const jv::JV* tag : tags->elements())
                if (tag->isString())
                    names.push_back(tag->text());
        return names;
    }
    for (const openapi::Tag* tag : operation->tags())
        names.push_back(tag->name());
    return names;
}

void diffTags(const openapi::Operation* source, const openapi::Operation* destination, DiffContext& context) {
    diffTextSets(ConfigKey::OperationTags, source, destination, tagsOf(source), tagsOf(destination), context);
}

using Requirements = std::vector<std::unique_ptr<openapi::SecurityRequirement>>;

/// An operation with an empty list of its own is free of what the document requires of all operations. Beside
/// one that has no list, that is the same as if the requirements of the document had stood there.
const Requirements* requirementsOf(const openapi::Operation* operation, const openapi::Operation* other) {
    if (operation == nullptr)
        return nullptr;
    if (other != nullptr && operation->inheritsSecurity() && !other->inheritsSecurity() &&
        other->security().empty())
        return &openapi::documentOf(*operation).security();
    return &operation->security();
}

void diffSecurity(const openapi::Operation* source, const openapi::Operation* destination,
                  DiffContext& context) {
    SecurityRequirementListDiff(ConfigKey::OperationSecurity)
        .diff(requirementsOf(source, destination), requirementsOf(destination, source), context);
}

} // namespace

void OperationDiff::diff(const openapi::Operation* source, const openapi::Operation* destination,
                         DiffContext& context) const {
    using openapi::Operation;
    using enum ConfigKey;
    context.mark(source, destination);
    diffTags(source, destination, context);
    context.field(OperationSummary, source, destination, &Operation::summary);
    context.field(OperationOperationId, source, destination, &Operation::operationId);
    context.field(OperationDescription, source, destination, &Operation::description);
    diffField<ExternalDocumentationDiff>(OperationExternalDocs, source, destination, context,
                                         [](const Operation& node) { return node.externalDocs(); });
    context.field(OperationDeprecated, source, destination, &Operation::deprecated);
    ParameterListDiff(OperationParameters)
        .diff(childOf(source, &Operation::parameters), childOf(destination, &Operation::parameters), context);
    diffField<RequestBodyDiff>(OperationRequestBody, source, destination, context,
                               &Operation::requestBodyNode);
    diffField<ResponsesDiff>(OperationResponses, source, destination, context,
                             [](const Operation& node) { return &node.responses(); });
    diffMaps<CallbackDiff>(OperationCallbacks, source, destination, context, &Operation::callbacks);
    diffSecurity(source, destination, context);
    ServerListDiff(OperationServers)
        .diff(childOf(source, &Operation::servers), childOf(destination, &Operation::servers), context);
    diffExtensions(source, destination, context);
}

} // namespace specloom::openapi_diff
