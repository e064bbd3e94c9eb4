#pragma once

#include "source_edit/edits.h"

#include <memory>      // std::unique_ptr
#include <string_view> // std::string_view

namespace specloom::source_edit {

/// A document whose root is `value`, a value of the source of `edits`, as it is to be.
[[nodiscard]] std::unique_ptr<jv::JVDocument> editedValue(const Edits& edits, const jv::JV& value);

[[nodiscard]] inline bool isContainer(const jv::JV& value) noexcept {
    return value.isArray() || value.isObject();
}

/// Calls `visit(key, value)` for each child that a container is to have.
template <typename Visit>
void forEachEditedChild(const Edits& edits, const jv::JV& container, Visit visit) {
    if (const EditedContainer* edited = edits.find(container); edited != nullptr) {
        for (const EditedChild& child : edited->children)
            visit(std::string_view(child.key), *child.value);
    } else if (container.isObject()) {
        edits.source().forEachOrdered(&container,
                                      [&](const jv::Member& member) { visit(member.key, *member.value); });
    } else {
        for (const jv::JV* element : container.elements())
            visit(std::string_view(), *element);
    }
}

} // namespace specloom::source_edit
