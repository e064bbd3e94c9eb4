#include "openapi_generator/document_name.h"

#include "foundation/case_style.h"

#include <stdexcept> // std::runtime_error

namespace specloom::openapi_generator {

DocumentName nameOf(const openapi::Tag& tag) {
    return {.kind = "Tag", .name = tag.name(), .node = &tag, .member = "name"};
}

void refuseName(const PluginRunner& host, const DocumentName& name, const Message& reason) {
    // The reason is a message already: cleaning it again changes nothing.
    throw std::runtime_error(formatMessage("{} '{}' at {} in {}: {}", name.kind, name.name,
                                           host.childPointer(*name.node, name.member),
                                           host.nodeFile(*name.node), reason.composed()));
}

std::string moduleNameOf(const PluginRunner& host, const openapi::Tag& tag) {
    return moduleNameOf(host, nameOf(tag));
}

std::string moduleNameOf(const PluginRunner& host, const DocumentName& name) {
    std::string module = toSnakeCase(name.name);
    if (module.empty())
        refuseName(host, name, "in snake case it is empty, and no module can have such a name");
    return module;
}

} // namespace specloom::openapi_generator
