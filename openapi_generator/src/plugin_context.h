#pragma once

#include "foundation/file_system.h"
#include "openapi/openapi.h"

namespace specloom::openapi_generator {

/// What the parts of a plugin share that makes a project of one language, such as
/// code_morph::typescript::Project.
template <typename ProjectOfLanguage>
struct PluginContextOf {
    /// `fileSystem` outlives the context.
    explicit PluginContextOf(FileSystem& fileSystem) : project(fileSystem) {}

    const openapi::OpenAPI* document = nullptr; ///< null before the parts are made
    ProjectOfLanguage project;
};

} // namespace specloom::openapi_generator
