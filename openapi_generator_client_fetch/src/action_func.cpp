#include "openapi_generator_client_fetch/action_func.h"

#include "foundation/escapes.h"
#include "foundation/strings.h"

#include <fmt/core.h>

namespace specloom::openapi_generator::client_fetch {
namespace {

constexpr std::string_view utilsModule = "./utils";

/// The expression for the field of `params` that has the name of a parameter.
std::string fieldOfParams(std::string_view name) {
    return isIdentifier(name) ? fmt::format("params.{}", name)
                              : fmt::format("params[{}]", toJsonLiteral(name));
}

} // namespace

void ActionFunc::collectData() {
    name_ = operation_->operationId().value_or("temp");
    for (const openapi::Parameter* parameter : operation_->effectiveParameters())
        collectParameter(*parameter);
}

void ActionFunc::collectParameter(const openapi::Parameter& parameter) {
    const std::string_view name = parameter.name();
    parameters_.emplace(name, &parameter);
    switch (parameter.location()) {
    case openapi::ParameterLocation::Path:
        pathParameters_.emplace(name, &parameter);
        break;
    case openapi::ParameterLocation::Query:
        hasQueryParams_ = true;
        parameters_[name] = &parameter; // the others are not asked for here
        break;
    case openapi::ParameterLocation::Header:
        headerParameters_.emplace(name, fieldOfParams(name));
        break;
    case openapi::ParameterLocation::Cookie:
        break;
    }
}

void ActionFunc::generateCode() {
    addImports();
    auto& function = file_->addFunction(name_);
    function.setAsync(true);
    function.setExported(true);
    if (hasParams())
        function.addParameter("params", "Record<string, unknown>");
    function.addParameter("extraParams", "ExtraCallParams").setOptional(true);
    function.addLine(fmt::format("const url = makeUrl({});", toJsonLiteral(path_)));
    addQuery(function);
    if (requestType_ != nullptr)
        addBody(function);
    if (!headerParameters_.empty())
        addHeaders(function);
    function.setDocComment(docComment());
}

void ActionFunc::addImports() {
    // Their order is seen: of several names of a module the last is not written.
    file_->addImport(utilsModule, "COMMON_HEADERS");
    file_->addImport(utilsModule, "makeUrl");
    file_->addImport(utilsModule, isJsonResponse_ ? "callJsonApi" : "callApi");
    if (hasQueryParams_)
        file_->addImport(utilsModule, "addQueryParam");
    if (needsAuthorization_)
        file_->addImport(utilsModule, "authorizeRequest");
    for (const NamedType* type : {requestType_, responseType_})
        if (type != nullptr)
            file_->addImport("./types", type->name);
    file_->addImport(utilsModule, "ExtraCallParams");
    file_->addImport(utilsModule, "applyExtraParams");
}

void ActionFunc::addQuery(code_morph::typescript::Function& function) const {
    for (const auto& [name, parameter] : parameters_)
        if (parameter->location() == openapi::ParameterLocation::Query)
            function.addLine(
                fmt::format("addQueryParam(url, {}, {});", toJsonLiteral(name), fieldOfParams(name)));
}

void ActionFunc::addBody(code_morph::typescript::Function& function) {
    file_->addImport("@tessel/spec-tools-core", "JSONValue");
    // The name of the conversion is to be filled in by hand, so that the line is the same for all of them.
    function.addLine(requestType_->keyCase
                         ? "const body = ${transformFunc}(params.body as unknown as JSONValue);"
                         : "const body = params.body;");
}

void ActionFunc::addHeaders(code_morph::typescript::Function& function) const {
    function.addLine("const headerParameters: Record<string, string> = {};");
    for (const auto& [name, field] : headerParameters_)
        function.addLine(
            fmt::format("if ({0}) headerParameters[{1}] = {0};", field, toJavaScriptLiteral(name)));
}

std::string ActionFunc::docComment() const {
    return fmt::format("/**\n * {}\n *\n{} * @param extraParams\n */", operation_->summary().value_or(""),
                       hasParams() ? " * @param params\n" : "");
}

} // namespace specloom::openapi_generator::client_fetch
