#pragma once

#include "code_morph/generated_path.h"
#include "foundation/message.h"
#include "openapi/tag.h"
#include "openapi_generator/plugin_runner.h"

#include <string>      // std::string
#include <string_view> // std::string_view

// Names of the document that become names of what is generated.
namespace specloom::openapi_generator {

/// A name and the place where the document has it.
struct DocumentName {
    std::string_view kind; ///< of what it is the name, such as "Tag"
    std::string_view name;
    const openapi::Node* node; ///< what has the name
    std::string_view member;   ///< the member of `node` that holds it
};

[[nodiscard]] DocumentName nameOf(const openapi::Tag& tag);

/// Throws std::runtime_error "{kind} '{name}' at {pointer} in {file}: {reason}" with the JSON pointer (RFC
/// 6901) of the name.
[[noreturn]] void refuseName(const PluginRunner& host, const DocumentName& name, const Message& reason);

/// What `create` returns, which creates files that have the name in their paths. A path that no generated
/// file may have is told as refuseName() does.
template <typename Create>
decltype(auto) createNamed(const PluginRunner& host, const DocumentName& name, Create create) {
    try {
        return create();
    } catch (const code_morph::base::PathError& error) {
        refuseName(host, name, Message(error));
    }
}

/// The name of the module that a generator makes for a name: the same in snake case. Refuses a name for which
/// that is empty.
[[nodiscard]] std::string moduleNameOf(const PluginRunner& host, const DocumentName& name);
[[nodiscard]] std::string moduleNameOf(const PluginRunner& host, const openapi::Tag& tag);

} // namespace specloom::openapi_generator
