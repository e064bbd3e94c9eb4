#include "openapi_generator_server_spring/parts.h"

#include "code_morph_java/spring/names.h"
#include "foundation/text_tables.h"

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
    const std::unique_ptr<jv::JV> data = jv::JV::newObject();
    data->setString("packageName", file_->packageName());
    data->setString("className", className_);
    jv::JV* imports = data->setArray("imports");
    for (const std::string& name : file_->imports())
        imports->appendString(name);
    fill(*data);
    file_->setText(context_->templates.render(templateName_, *data));
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

void OperationsClass::fill(jv::JV& data) const {
    jv::JV* bodies = data.setArray("methodBodies");
    for (const auto& method : methods_)
        bodies->appendString(method->generateCode());
}

ServiceInterface::ServiceInterface(const GroupScope& scope, SourceFile& file)
    : OperationsClass(
          scope.context, file, classOf(serviceInterfaceName(scope.context.configuration, scope.group)),
          "service_interface.jinja", "service interface", methodsIn<ServiceInterfaceMethod>(scope, file)) {
    file.addImport("org.springframework.stereotype.Service");
}

void ServiceInterface::fill(jv::JV& data) const {
    OperationsClass::fill(data);
    data.setString("interfaceName", className());
}

ServiceClass::ServiceClass(const GroupScope& scope, SourceFile& file, std::string_view interfaceName)
    : OperationsClass(scope.context, file,
                      classOf(serviceClassName(scope.context.configuration, scope.group)),
                      "service_class.jinja", "service class", methodsIn<ServiceClassMethod>(scope, file)),
      interfaceName_(classOf(interfaceName)) {
    file.addImport("org.springframework.stereotype.Service");
    file.addImport(interfaceName);
}

void ServiceClass::fill(jv::JV& data) const {
    OperationsClass::fill(data);
    data.setString("interfaceName", interfaceName_);
}

Controller::Controller(const GroupScope& scope, SourceFile& file, std::string_view interfaceName)
    : OperationsClass(scope.context, file,
                      classOf(controllerClassName(scope.context.configuration, scope.group)),
                      "controller.jinja", "controller", methodsIn<ControllerMethod>(scope, file)),
      interfaceName_(classOf(interfaceName)) {
    file.addImport("org.springframework.web.bind.annotation.RestController");
    file.addImport(interfaceName);
}

void Controller::fill(jv::JV& data) const {
    OperationsClass::fill(data);
    data.setString("serviceInterfaceName", interfaceName_);
    data.setString("serviceNameVar", "service");
}

ControllerTest::ControllerTest(const GroupScope& scope, SourceFile& file)
    : OperationsClass(scope.context, file,
                      classOf(controllerTestClassName(scope.context.configuration, scope.group)),
                      "controller_test.jinja", "controller", methodsIn<ControllerTestMethod>(scope, file)) {}

} // namespace specloom::openapi_generator::server_spring
