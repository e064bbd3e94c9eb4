#include "openapi_generator_server_spring/parts.h"

#include "code_morph_java/spring/names.h"
#include "foundation/text_tables.h"
#include "openapi_generator_server_spring/controller_constants.h"
#include "openapi_generator_server_spring/joined_text.h"

namespace specloom::openapi_generator::server_spring {
namespace {

using code_morph::java::classOf;
using code_morph::java::SourceFile;

template <typename Kind>
Methods methodsIn(const GroupScope& scope, SourceFile& file) {
    return methodsOf<Kind>({scope.context, scope.signatures, file}, scope.operations);
}

} // namespace

void Part::generateCode() {
    std::string imports;
    for (const std::string& name : file_->imports())
        appendBehind(";\r\nimport ", name, imports);
    templating::Texts texts = {
        {"packageName", file_->packageName()}, {"className", className_}, {"imports", std::move(imports)}};
    fill(texts);
    file_->setText(context_->forms.fill(templateName_, texts));
}

AppClass::AppClass(Context& context, SourceFile& file)
    : Part(context, file, "Application", "app_class.jinja") {
    file.addImport("org.springframework.boot.SpringApplication");
    file.addImport("org.springframework.boot.autoconfigure.SpringBootApplication");
}

void OperationsClass::collectData() {
    TextSet seen;
    for (const auto& method : methods_) {
        method->collectData();
        if (!method->methodName().empty() && !seen.insert(method->methodName()).second)
            context().addIssue(IssueSeverity::Error,
                               formatMessage("More than one operation maps to the '{}' method in the {} '{}'",
                                             method->methodName(), kind_, className()),
                               *method->operation().operation);
    }
}

void OperationsClass::fill(templating::Texts& texts) const {
    std::string bodies;
    for (const auto& method : methods_)
        appendBehind("\r\n", method->generateCode(), bodies);
    texts.emplace_back("methodBodies", std::move(bodies));
}

ServiceInterface::ServiceInterface(const GroupScope& scope, SourceFile& file)
    : OperationsClass(
          scope.context, file, classOf(serviceInterfaceName(scope.context.configuration, scope.group)),
          "service_interface.jinja", "service interface", methodsIn<ServiceInterfaceMethod>(scope, file)) {
    file.addImport("org.springframework.stereotype.Service");
}

void ServiceInterface::fill(templating::Texts& texts) const {
    OperationsClass::fill(texts);
    texts.emplace_back("interfaceName", className());
}

ServiceClass::ServiceClass(const GroupScope& scope, SourceFile& file, std::string_view interfaceName)
    : OperationsClass(scope.context, file,
                      classOf(serviceClassName(scope.context.configuration, scope.group)),
                      "service_class.jinja", "service class", methodsIn<ServiceClassMethod>(scope, file)),
      interfaceName_(classOf(interfaceName)) {
    file.addImport("org.springframework.stereotype.Service");
    file.addImport(interfaceName);
}

void ServiceClass::fill(templating::Texts& texts) const {
    OperationsClass::fill(texts);
    texts.emplace_back("interfaceName", interfaceName_);
}

Controller::Controller(const GroupScope& scope, SourceFile& file, std::string_view interfaceName)
    : OperationsClass(scope.context, file,
                      classOf(controllerClassName(scope.context.configuration, scope.group)),
                      "controller.jinja", "controller", methodsIn<ControllerMethod>(scope, file)),
      signatures_(&scope.signatures), interfaceName_(classOf(interfaceName)) {
    file.addImport("org.springframework.web.bind.annotation.RestController");
    file.addImport(interfaceName);
}

void Controller::collectData() {
    OperationsClass::collectData();
    std::size_t bound = ControllerConstants::fixed;
    for (const auto& method : methods())
        bound += ControllerConstants::boundFor(signatures_->of(method->operation()));
    if (bound > mostConstants)
        checkConstants();
}

void Controller::checkConstants() const {
    ControllerConstants constants;
    for (const auto& method : methods()) {
        const openapi::OperationRef& ref = method->operation();
        constants.add(ref, method->methodName(), context().methodName("", ref), signatures_->of(ref));
        if (constants.count() > mostConstants) {
            context().addIssue(
                IssueSeverity::Error,
                formatMessage("The controller '{}' has more operations than a class of Java can hold",
                              className()),
                *ref.operation);
            return;
        }
    }
}

void Controller::fill(templating::Texts& texts) const {
    OperationsClass::fill(texts);
    texts.emplace_back("serviceInterfaceName", interfaceName_);
    texts.emplace_back("serviceNameVar", "service");
}

ControllerTest::ControllerTest(const GroupScope& scope, SourceFile& file)
    : OperationsClass(scope.context, file,
                      classOf(controllerTestClassName(scope.context.configuration, scope.group)),
                      "controller_test.jinja", "controller", methodsIn<ControllerTestMethod>(scope, file)) {}

} // namespace specloom::openapi_generator::server_spring
