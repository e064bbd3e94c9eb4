#include "openapi_generator_server_spring/parts.h"

#include "code_morph_java/spring/names.h"
#include "foundation/text_tables.h"

#include <nlohmann/json.hpp>

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
    nlohmann::json data = {
        {"packageName", file_->packageName()}, {"className", className_}, {"imports", file_->imports()}};
    fill(data);
    file_->setText(context_->templates.render(templateName_, data));
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

void OperationsClass::fill(nlohmann::json& data) const {
    nlohmann::json bodies = nlohmann::json::array();
    for (const auto& method : methods_)
        bodies.push_back(method->generateCode());
    data["methodBodies"] = std::move(bodies);
}

ServiceInterface::ServiceInterface(const GroupScope& scope, SourceFile& file)
    : OperationsClass(
          scope.context, file, classOf(serviceInterfaceName(scope.context.configuration, scope.group)),
          "service_interface.jinja", "service interface", methodsIn<ServiceInterfaceMethod>(scope, file)) {
    file.addImport("org.springframework.stereotype.Service");
}

void ServiceInterface::fill(nlohmann::json& data) const {
    OperationsClass::fill(data);
    data["interfaceName"] = className();
}

ServiceClass::ServiceClass(const GroupScope& scope, SourceFile& file, std::string_view interfaceName)
    : OperationsClass(scope.context, file,
                      classOf(serviceClassName(scope.context.configuration, scope.group)),
                      "service_class.jinja", "service class", methodsIn<ServiceClassMethod>(scope, file)),
      interfaceName_(classOf(interfaceName)) {
    file.addImport("org.springframework.stereotype.Service");
    file.addImport(interfaceName);
}

void ServiceClass::fill(nlohmann::json& data) const {
    OperationsClass::fill(data);
    data["interfaceName"] = interfaceName_;
}

Controller::Controller(const GroupScope& scope, SourceFile& file, std::string_view interfaceName)
    : OperationsClass(scope.context, file,
                      classOf(controllerClassName(scope.context.configuration, scope.group)),
                      "controller.jinja", "controller", methodsIn<ControllerMethod>(scope, file)),
      interfaceName_(classOf(interfaceName)) {
    file.addImport("org.springframework.web.bind.annotation.RestController");
    file.addImport(interfaceName);
}

void Controller::fill(nlohmann::json& data) const {
    OperationsClass::fill(data);
    data["serviceInterfaceName"] = interfaceName_;
    data["serviceNameVar"] = "service";
}

ControllerTest::ControllerTest(const GroupScope& scope, SourceFile& file)
    : OperationsClass(scope.context, file,
                      classOf(controllerTestClassName(scope.context.configuration, scope.group)),
                      "controller_test.jinja", "controller", methodsIn<ControllerTestMethod>(scope, file)) {}

} // namespace specloom::openapi_generator::server_spring
