#include "openapi_diff/diffs/node_diff.h"

namespace specloom::openapi_diff {

void diffExtensions(const openapi::Node* source, const openapi::Node* destination, DiffContext& context) {
    const auto find = [](const openapi::Node* node, std::string_view name) {
        return node == nullptr ? nullptr : node->findExtension(name);
    };
    if (destination != nullptr)
        for (const auto& entry : destination->extensions())
            if (find(source, entry.name()) == nullptr)
                context.extensionAdded(*destination, entry.name());
    if (source == nullptr)
        return;
    for (const auto& entry : source->extensions())
        if (find(destination, entry.name()) == nullptr)
            context.extensionRemoved(destination == nullptr ? *source : *destination, entry.name());
    if (destination == nullptr)
        return;
    for (const auto& entry : destination->extensions()) {
        const jv::JV* before = find(source, entry.name());
        if (before != nullptr && !before->equals(*entry.value))
            context.extensionModified(*destination, entry.name());
    }
}

} // namespace specloom::openapi_diff
