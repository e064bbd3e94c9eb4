#include "openapi_generator_server_spring/signature.h"

#include "code_morph_java/spring/annotations.h"
#include "code_morph_java/spring/names.h"
#include "foundation/text_tables.h"
#include "openapi_generator/unique_names.h"
#include "openapi_generator_server_spring/joined_text.h"

#include <array>   // std::to_array
#include <utility> // std::move, std::pair

#include <fmt/core.h>

namespace specloom::openapi_generator::server_spring {
namespace {

using code_morph::java::AnnotationRef;
using code_morph::java::ParameterPlace;
using openapi::Schema;

constexpr std::string_view jsonMediaType = "application/json";

ParameterPlace placeOf(const openapi::Parameter& parameter) {
    constexpr auto places = std::to_array<ParameterPlace>(
        {ParameterPlace::Path, ParameterPlace::Query, ParameterPlace::Header, ParameterPlace::Cookie});
    return places.at(static_cast<std::size_t>(parameter.location()));
}

class SignatureMaker {
  public:
    SignatureMaker(Context& context, const openapi::OperationRef& ref) : context_(context), ref_(ref) {}

    Signature make() {
        if (const openapi::RequestBody* body = ref_.operation->requestBody())
            addBody(*body);
        for (const openapi::Parameter* parameter : ref_.operation->effectiveParameters())
            addParameter(*parameter);
        if (signature_.arguments.size() > mostArguments)
            context_.addIssue(IssueSeverity::Error,
                              formatMessage("Operation {} '{}' has more than {} arguments",
                                            openapi::operationKey(ref_.method), ref_.path, mostArguments),
                              *ref_.operation);
        setResult();
        return std::move(signature_);
    }

  private:
    void addBody(const openapi::RequestBody& body) {
        const openapi::MediaType* json = body.mediaType(jsonMediaType);
        if (json == nullptr)
            context_.addIssue(IssueSeverity::Warning,
                              "Request body has no application/json media type, skipping", body);
        else if (json->schema() == nullptr)
            context_.addIssue(IssueSeverity::Error, "Request body has no schema defined, skipping", body);
        else
            addArgument("body", ParameterPlace::Body, body.required().value_or(false), *json->schema());
    }

    void addParameter(const openapi::Parameter& parameter) {
        const auto* schema = openapi::resolveTo<Schema>(schemaNodeOf(parameter));
        if (schema == nullptr) {
            context_.addIssue(
                IssueSeverity::Error,
                formatMessage("Parameter '{}' has no schema defined, skipping", parameter.name()), parameter);
            return;
        }
        context_.checkAnnotationText(parameter.name(), parameter);
        addArgument(parameter.name(), placeOf(parameter), parameter.isRequired(), *schema);
    }

    void addArgument(std::string_view name, ParameterPlace place, bool required, const Schema& schema) {
        AnnotationRef annotation = code_morph::java::parameterAnnotation(
            name, place, required, names_.take(code_morph::java::toIdentifier(name)));
        const SchemaTypeInfo& type = context_.typeOf(schema);
        std::string text = std::move(annotation.text);
        if (!type.annotations.empty())
            text.append(" ").append(textOf(type.annotations));
        signature_.imports.emplace_back(annotation.import);
        addImports(type.annotations, signature_.imports);
        addType(type);
        signature_.arguments.push_back(
            {std::move(text), std::string(type.text()), std::move(annotation.name)});
    }

    /// From the first response that has a body of JSON.
    void setResult() {
        for (const auto& entry : ref_.operation->responses()) {
            const auto* response = openapi::resolveTo<openapi::Response>(entry.value.get());
            if (response == nullptr)
                continue;
            const openapi::MediaType* json = response->mediaType(jsonMediaType);
            if (json == nullptr) {
                context_.addIssue(IssueSeverity::Warning,
                                  "Response has no media type 'application/json', skipping", *response);
            } else if (json->schema() == nullptr) {
                context_.addIssue(IssueSeverity::Error, "Response has no schema defined, skipping",
                                  *response);
            } else {
                setResult(context_.typeOf(*json->schema()));
                return;
            }
        }
    }

    void setResult(const SchemaTypeInfo& type) {
        signature_.resultType = type.text();
        signature_.resultAnnotation = textOf(type.annotations);
        signature_.resultValue = defaultValueOf(type, "\"some_string\"");
        addType(type);
        addImports(type.annotations, signature_.resultImports);
    }

    void addType(const SchemaTypeInfo& type) {
        signature_.imports.emplace_back(type.containerClass);
        signature_.imports.push_back(type.typeName);
    }

    static void addImports(const std::vector<Constraint>& constraints, std::vector<std::string>& imports) {
        for (const Constraint& constraint : constraints)
            imports.emplace_back(constraint.import);
    }

    Context& context_;
    const openapi::OperationRef& ref_;
    Signature signature_;
    UniqueNames names_;
};

} // namespace

std::string defaultValueOf(const SchemaTypeInfo& type, std::string_view text) {
    if (type.isList())
        return "List.of()";
    for (const auto& [name, value] : {std::pair<std::string_view, std::string_view>{"Boolean", "true"},
                                      {"Integer", "42"},
                                      {"Double", "3.14"},
                                      {"String", text}})
        if (type.typeName == name)
            return std::string(value);
    return fmt::format("new {}()", type.text());
}

const Signature& Signatures::of(const openapi::OperationRef& ref) {
    const auto found = signatures_.find(ref.operation);
    if (found != signatures_.end())
        return found->second;
    return signatures_.emplace(ref.operation, SignatureMaker(*context_, ref).make()).first->second;
}

const std::string& Signatures::declarationOf(const Signature& signature) {
    const auto [found, isNew] = declarations_.try_emplace(&signature);
    if (isNew) {
        for (const Argument& argument : signature.arguments)
            appendBehind(
                ", ",
                context_->forms.fill(
                    "function_decl_param.jinja",
                    {{"annotation", argument.annotation}, {"type", argument.type}, {"name", argument.name}}),
                found->second);
    }
    return found->second;
}

} // namespace specloom::openapi_generator::server_spring
