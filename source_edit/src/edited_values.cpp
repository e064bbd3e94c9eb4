#include "source_edit/edited_values.h"

#include "jv/tree_builder.h"

#include <algorithm> // std::reverse
#include <vector>    // std::vector

namespace specloom::source_edit {
namespace {

void addScalar(jv::TreeBuilder& builder, const jv::JV& value) {
    switch (value.kind()) {
    case jv::Kind::Boolean:
        return builder.addBoolean(value.boolean(), {});
    case jv::Kind::Number:
        return builder.addNumber(value.number(), {});
    case jv::Kind::String:
        return value.isPlainScalar() ? builder.addPlainString(value.text(), {})
                                     : builder.addString(value.text(), {});
    default:
        return builder.addNull({});
    }
}

} // namespace

std::unique_ptr<jv::JVDocument> editedValue(const Edits& edits, const jv::JV& value) {
    struct Item {
        std::string_view key;
        const jv::JV* value; ///< null ends a container
        bool isMember;
    };
    jv::TreeBuilder builder(std::make_unique<jv::JVDocument>());
    std::vector<Item> open{{{}, &value, false}};
    while (!open.empty()) {
        const Item item = open.back();
        open.pop_back();
        if (item.value == nullptr) {
            builder.end();
            continue;
        }
        if (item.isMember)
            builder.addKey(item.key);
        if (!isContainer(*item.value)) {
            addScalar(builder, *item.value);
            continue;
        }
        const bool isObject = item.value->isObject();
        isObject ? builder.startObject({}) : builder.startArray({});
        open.push_back({{}, nullptr, false});
        const std::size_t first = open.size();
        forEachEditedChild(edits, *item.value, [&](std::string_view key, const jv::JV& child) {
            open.push_back({key, &child, isObject});
        });
        std::reverse(open.begin() + static_cast<std::ptrdiff_t>(first), open.end());
    }
    return builder.takeDocument();
}

} // namespace specloom::source_edit
