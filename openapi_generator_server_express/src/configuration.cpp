#include "openapi_generator_server_express/configuration.h"

#include "configuration/section.h"

namespace specloom::openapi_generator::server_express {

void readConfiguration(const jv::JV& root, Configuration& configuration) {
    const configuration::Section section = configuration::pluginSection(root, "server_express");
    configuration.packageFiles = section.boolean("package_files").value_or(configuration.packageFiles);
    configuration.appObject = section.boolean("app_object").value_or(configuration.appObject);
    configuration.serverObject = section.boolean("server_object").value_or(configuration.serverObject);
    configuration.openapiSchema = readSchemaCopy(section).value_or(configuration.openapiSchema);
}

} // namespace specloom::openapi_generator::server_express
