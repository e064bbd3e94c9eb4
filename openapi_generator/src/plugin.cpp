#include "openapi_generator/plugin.h"

#include "telemetry/telemetry.h"

namespace specloom::openapi_generator {

void Plugin::setParam(std::string_view name, std::string_view value) {
    if (name == "packageName")
        packageName_ = value;
    else if (name == "packageVersion")
        packageVersion_ = value;
    else if (name == "outputPath")
        outputPath_ = value;
}

void Plugin::setPackage(std::string_view name, std::string_view version) {
    packageName_ = name;
    packageVersion_ = version;
}

void Plugin::run(const openapi::OpenAPI& root) {
    document_ = &root;
    const auto stage = [this](std::string_view name, void (Plugin::*operation)()) {
        const telemetry::Span span(name);
        (this->*operation)();
    };
    stage("configureSelf", &Plugin::configureSelf);
    stage("configureParts", &Plugin::configureParts);
    stage("collectData", &Plugin::collectData);
    stage("generateCode", &Plugin::generateCode);
}

void Plugin::collectData() {
    for (const auto& part : parts_)
        part->collectData();
}

void Plugin::generateCode() {
    for (const auto& part : parts_)
        part->generateCode();
}

} // namespace specloom::openapi_generator
