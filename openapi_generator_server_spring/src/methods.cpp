#include "openapi_generator_server_spring/methods.h"

#include "code_morph_java/spring/annotations.h"

#include <array>   // std::to_array
#include <utility> // std::move

#include <nlohmann/json.hpp>

namespace specloom::openapi_generator::server_spring {
namespace {

using code_morph::java::Annotation;
using code_morph::java::RequestMethod;

Annotation mappingOf(openapi::OperationType type) {
    constexpr auto methods = std::to_array<RequestMethod>(
        {RequestMethod::Get, RequestMethod::Put, RequestMethod::Post, RequestMethod::Delete,
         RequestMethod::Options, RequestMethod::Head, RequestMethod::Patch, RequestMethod::Trace});
    return code_morph::java::mappingAnnotation(methods.at(static_cast<std::size_t>(type)));
}

void addImports(const std::vector<std::string>& names, code_morph::java::SourceFile& file) {
    for (const std::string& name : names)
        file.addImport(name);
}

} // namespace

void Method::collectData() {
    methodName_ = scope_.context.methodName(prefix_, ref_);
    if (methodName_.empty())
        scope_.context.addIssue(IssueSeverity::Error,
                                formatMessage("{} for handling {} '{}' could not be named", kind_,
                                              openapi::operationKey(ref_.method), ref_.path),
                                *ref_.operation);
}

std::string Method::generateCode() const {
    nlohmann::json all = data();
    all["methodName"] = methodName_;
    return scope_.context.templates.render(templateName_, all);
}

void OperationMethod::collectData() {
    Method::collectData();
    signature_ = &scope().signatures.of(operation());
    addImports(signature_->imports, scope().file);
}

nlohmann::json OperationMethod::data() const {
    return {{"declarations", scope().signatures.declarationOf(*signature_)},
            {"result", {{"type", signature_->resultType}, {"annotation", signature_->resultAnnotation}}}};
}

void ControllerMethod::collectData() {
    OperationMethod::collectData();
    scope().context.checkAnnotationText(operation().path, *operation().operation);
    scope().file.addImport(mappingOf(operation().method).import);
    addImports(signature().resultImports, scope().file);
}

nlohmann::json ControllerMethod::data() const {
    nlohmann::json data = OperationMethod::data();
    data["methodAnnotation"] = mappingOf(operation().method).text;
    data["methodUrl"] = operation().path;
    std::string names;
    for (const Argument& argument : signature().arguments)
        names.append(names.empty() ? "" : ", ").append(argument.name);
    data["argumentNames"] = std::move(names);
    data["serviceMethodName"] = scope().context.methodName("", operation());
    return data;
}

void ControllerTestMethod::collectData() {
    Method::collectData();
    scope().file.addImport(code_morph::java::annotations::test.import);
}

nlohmann::json ControllerTestMethod::data() const {
    return {{"methodAnnotations", code_morph::java::annotations::test.text}};
}

nlohmann::json ServiceClassMethod::data() const {
    nlohmann::json data = OperationMethod::data();
    if (!signature().resultValue.empty())
        data["result"]["value"] = signature().resultValue;
    return data;
}

} // namespace specloom::openapi_generator::server_spring
