#include "openapi_generator_server_express/configuration.h"

#include "configuration/section.h"

namespace specloom::openapi_generator::server_express {

void readConfiguration(const jv::JV& root, Configuration& configuration) {
    const configuration::Section section = configuration::pluginSection(root, "server_express");
    configuration.packageFiles = section.boolean("package_files").value_or(configuration.packageFiles);
    configuration.appObject = section.boolean("app_object").value_or(configuration.appObject);
    configuration.serverObject = section.boolean("server_object").value_or(configuration.serverObject);
    const auto schema =
        section.booleanOrText("openapi_schema", "openapi_schema must be a boolean or a string");
    if (!schema)
        return;
    if (const bool* isCopied = std::get_if<bool>(&*schema))
        configuration.openapiSchema = *isCopied;
    else
        configuration.openapiSchema = std::string(std::get<std::string_view>(*schema));
}

} // namespace specloom::openapi_generator::server_express
