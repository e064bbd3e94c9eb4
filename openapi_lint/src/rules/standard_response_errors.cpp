#include "openapi_lint/rules/standard_response_errors.h"

#include "foundation/message.h"
#include "foundation/unreachable.h"
#include "openapi/responses.h"
#include "openapi_lint/rule_handler.h"
#include "openapi_lint/rule_options.h"

#include <initializer_list> // std::initializer_list
#include <string_view>      // std::string_view
#include <unordered_set>    // std::unordered_set
#include <vector>           // std::vector

namespace specloom::openapi_lint {
namespace {

using openapi::Schema;
using openapi::SchemaType;

constexpr const char* noProblem = "Response must use Problem JSON format";
constexpr const char* wrongProblem = "Response must use correct Problem JSON schema";
constexpr const char* noJsonApi = "Response must use JSON:API format";
constexpr const char* wrongJsonApi = "Response must use correct JSON:API schema";

constexpr std::size_t maximumParts = 256;

/// The schema and those that it is made of by `allOf`, at any depth; the first 256 of them, since documents
/// decide how many there are.
std::vector<const Schema*> partsOf(const Schema* schema) {
    std::vector<const Schema*> parts;
    std::unordered_set<const Schema*> seen;
    const auto add = [&](const Schema* part) {
        if (part != nullptr && parts.size() < maximumParts && seen.insert(part).second)
            parts.push_back(part);
    };
    add(schema);
    for (std::size_t i = 0; i < parts.size(); ++i)
        for (const openapi::NodePointer& part : parts[i]->allOf())
            add(openapi::resolveTo<Schema>(part.get()));
    return parts;
}

bool hasProperty(const std::vector<const Schema*>& parts, std::string_view name,
                 std::initializer_list<SchemaType> types) {
    for (const Schema* part : parts) {
        const auto* property = openapi::resolveTo<Schema>(part->properties().find(name));
        for (const SchemaType type : types)
            if (property != nullptr && property->types().has(type))
                return true;
    }
    return false;
}

bool isProblem(const Schema* schema) {
    const std::vector<const Schema*> parts = partsOf(schema);
    for (const std::string_view name : {"type", "title", "detail", "instance"})
        if (!hasProperty(parts, name, {SchemaType::String}))
            return false;
    return hasProperty(parts, "status", {SchemaType::Integer, SchemaType::Number});
}

bool isErrorDocument(const Schema* schema) {
    return hasProperty(partsOf(schema), "errors", {SchemaType::Array});
}

class StandardResponseErrorsHandler final : public RuleHandler {
  public:
    StandardResponseErrorsHandler(const StandardResponseErrors& rule, LintContext& context)
        : RuleHandler(rule, context), convention_(rule.convention()) {}

    using RuleHandler::visit;
    void visit(const openapi::Responses& responses) override {
        if (isDisabled(responses))
            return;
        for (const auto& entry : responses) {
            if (!entry.name().starts_with('4') && !entry.name().starts_with('5'))
                continue;
            const auto* response = openapi::resolveTo<openapi::Response>(entry.value.get());
            if (response != nullptr && judged_.insert(response).second && !isDisabled(*response))
                judge(*response);
        }
    }

  private:
    void judge(const openapi::Response& response) const {
        switch (convention_) {
        case StandardResponseErrors::Convention::ProblemJson:
            return judge(response, "application/problem+json", isProblem, noProblem, wrongProblem);
        case StandardResponseErrors::Convention::JsonApi:
            return judge(response, "application/vnd.api+json", isErrorDocument, noJsonApi, wrongJsonApi);
        }
        // The place is part of a published text, which outlives the files that it names.
        unreachable(nullptr, "openapi_lint/src/rules/standard_response_errors", __LINE__);
    }

    void judge(const openapi::Response& response, std::string_view mediaType, bool (*isRight)(const Schema*),
               const char* missing, const char* wrong) const {
        const openapi::MediaType* content = response.mediaType(mediaType);
        if (content == nullptr)
            report(missing, response);
        else if (!isRight(content->schema()))
            report(wrong, response);
    }

    StandardResponseErrors::Convention convention_;
    std::unordered_set<const openapi::Response*> judged_;
};

} // namespace

void StandardResponseErrors::configure(const jv::JV* options) {
    if (options == nullptr)
        throw RuleConfigurationError(ruleId, "Options cannot be null");
    if (!options->isString())
        throw RuleConfigurationError(ruleId, "Options must be a string");
    if (options->text() == "problem-json")
        convention_ = Convention::ProblemJson;
    else if (options->text() == "json-api")
        convention_ = Convention::JsonApi;
    else
        throw RuleConfigurationError(ruleId, formatMessage("Unknown convention: {}", options->text()));
}

void StandardResponseErrors::check(LintContext& context) {
    StandardResponseErrorsHandler handler(*this, context);
    context.walk(handler);
}

} // namespace specloom::openapi_lint
