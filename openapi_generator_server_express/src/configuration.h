#pragma once

#include "jv/jv.h"

#include <string>  // std::string
#include <variant> // std::variant

namespace specloom::openapi_generator::server_express {

/// What is generated, and under which name.
struct Configuration {
    std::string packageName;
    std::string packageVersion;
    bool packageFiles = true; ///< package.json and tsconfig.json
    bool appObject = true;    ///< src/app.ts
    bool serverObject = true; ///< src/server.ts
    /// Whether the document is copied below its own name, or the path of the copy, which is relative to the
    /// output.
    std::variant<bool, std::string> openapiSchema = false;
};

/// Takes over the keys that "/commands/generate/server_express" of a configuration has. Throws ConfigError
/// "openapi_schema must be a boolean or a string", and what Section throws for a key of another kind.
void readConfiguration(const jv::JV& root, Configuration& configuration);

} // namespace specloom::openapi_generator::server_express
