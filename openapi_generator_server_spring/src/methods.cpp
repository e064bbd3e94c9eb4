#include "openapi_generator_server_spring/methods.h"

#include "code_morph_java/spring/annotations.h"

#include <array> // std::to_array

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
    const std::unique_ptr<jv::JV> data = jv::JV::newObject();
    data->setString("methodName", methodName_);
    fill(*data);
    return scope_.context.templates.render(templateName_, *data);
}

void OperationMethod::collectData() {
    Method::collectData();
    signature_ = &scope().signatures.of(operation());
    addImports(signature_->imports, scope().file);
}

void OperationMethod::fill(jv::JV& data) const {
    data.setString("declarations", scope().signatures.declarationOf(*signature_));
    jv::JV* result = data.setObject("result");
    result->setString("type", signature_->resultType);
    result->setString("annotation", signature_->resultAnnotation);
}

void ControllerMethod::collectData() {
    OperationMethod::collectData();
    scope().context.checkAnnotationText(operation().path, *operation().operation);
    scope().file.addImport(mappingOf(operation().method).import);
    addImports(signature().resultImports, scope().file);
}

void ControllerMethod::fill(jv::JV& data) const {
    OperationMethod::fill(data);
    data.setString("methodAnnotation", mappingOf(operation().method).text);
    data.setString("methodUrl", operation().path);
    std::string names;
    for (const Argument& argument : signature().arguments)
        names.append(names.empty() ? "" : ", ").append(argument.name);
    data.setString("argumentNames", names);
    data.setString("serviceMethodName", scope().context.methodName("", operation()));
}

void ControllerTestMethod::collectData() {
    Method::collectData();
    scope().file.addImport(code_morph::java::annotations::test.import);
}

void ControllerTestMethod::fill(jv::JV& data) const {
    data.setString("methodAnnotations", code_morph::java::annotations::test.text);
}

void ServiceClassMethod::fill(jv::JV& data) const {
    OperationMethod::fill(data);
    if (!signature().resultValue.empty())
        data.setString("value", signature().resultValue);
}

} // namespace specloom::openapi_generator::server_spring
