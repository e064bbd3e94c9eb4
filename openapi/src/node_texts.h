#pragma once

#include "openapi/node.h"
#include "openapi/reference.h"

#include <optional>    // std::optional
#include <string_view> // std::string_view

namespace specloom::openapi {

/// The texts of one object that are written for people.
struct NodeTexts {
    std::optional<std::string_view> title;   ///< plain text
    std::optional<std::string_view> summary; ///< plain text
    /// The one kind of text that OpenAPI 3.1.0, section 4.5 lets be CommonMark.
    std::optional<std::string_view> description;

    [[nodiscard]] bool isEmpty() const { return !title && !summary && !description; }
};

/// Those of an object of any class.
[[nodiscard]] NodeTexts textsOf(const Node& node);

/// Calls `show(node, texts)` for an object if it has texts, and then for each reference to it that has texts
/// of its own, which stand in place of those of the target (OpenAPI 3.1.0, section 4.8.23).
template <typename Show>
void forEachTexts(const Node& node, const Show& show) {
    if (const NodeTexts texts = textsOf(node); !texts.isEmpty())
        show(node, texts);
    for (const Reference* reference = node.firstReference(); reference != nullptr;
         reference = reference->nextReference()) {
        if (const NodeTexts texts = textsOf(*reference); !texts.isEmpty())
            show(*reference, texts);
    }
}

} // namespace specloom::openapi
