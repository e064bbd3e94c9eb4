#include "openapi_generator_server_spring/methods.h"

#include "code_morph_java/spring/annotations.h"
#include "code_morph_java/string_literal.h"
#include "openapi_generator_server_spring/joined_text.h"

#include <array>   // std::to_array
#include <utility> // std::move

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
    templating::Texts texts = {{"methodName", methodName_}};
    fill(texts);
    return scope_.context.forms.fill(templateName_, texts);
}

void OperationMethod::collectData() {
    Method::collectData();
    signature_ = &scope().signatures.of(operation());
    addImports(signature_->imports, scope().file);
}

void OperationMethod::fill(templating::Texts& texts) const {
    texts.emplace_back("declarations", scope().signatures.declarationOf(*signature_));
    texts.emplace_back("resultType", signature_->resultType);
}

void ControllerMethod::collectData() {
    OperationMethod::collectData();
    scope().context.checkAnnotationText(operation().path, *operation().operation);
    scope().file.addImport(mappingOf(operation().method).import);
    addImports(signature().resultImports, scope().file);
}

void ControllerMethod::fill(templating::Texts& texts) const {
    OperationMethod::fill(texts);
    texts.emplace_back("methodAnnotation", mappingOf(operation().method).text);
    texts.emplace_back("methodUrl", code_morph::java::toStringLiteral(operation().path));
    texts.emplace_back("resultAnnotation", signature().resultAnnotation);
    // The language compares texts with "" alone when it fills thousands of them, so not with "void".
    texts.emplace_back("returnOrNot", signature().resultValue.empty() ? "" : "return ");
    std::string names;
    for (const Argument& argument : signature().arguments)
        appendBehind(", ", argument.name, names);
    texts.emplace_back("argumentNames", std::move(names));
    texts.emplace_back("serviceMethodName", scope().context.methodName("", operation()));
}

void ControllerTestMethod::collectData() {
    Method::collectData();
    scope().file.addImport(code_morph::java::annotations::test.import);
}

void ControllerTestMethod::fill(templating::Texts& texts) const {
    texts.emplace_back("methodAnnotations", code_morph::java::annotations::test.text);
}

void ServiceClassMethod::fill(templating::Texts& texts) const {
    OperationMethod::fill(texts);
    texts.emplace_back("value", signature().resultValue);
}

} // namespace specloom::openapi_generator::server_spring
