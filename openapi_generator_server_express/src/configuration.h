#pragma once

#include "jv/jv.h"
#include "openapi_generator/schema_file.h"

#include <string> // std::string

namespace specloom::openapi_generator::server_express {

/// What is generated, and under which name.
struct Configuration {
    std::string packageName;
    std::string packageVersion;
    bool packageFiles = true; ///< package.json and tsconfig.json
    bool appObject = true;    ///< src/app.ts
    bool serverObject = true; ///< src/server.ts
    SchemaCopy openapiSchema = false;
};

/// Takes over the keys that "/commands/generate/server_express" of a configuration has. Throws what
/// readSchemaCopy() throws, and what Section throws for a key of another kind.
void readConfiguration(const jv::JV& root, Configuration& configuration);

} // namespace specloom::openapi_generator::server_express
