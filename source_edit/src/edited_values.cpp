#include "source_edit/edited_values.h"

#include "jv/equal_values.h"
#include "jv/tree_builder.h"

#include <algorithm> // std::reverse
#include <utility>   // std::pair
#include <vector>    // std::vector

namespace specloom::source_edit {
namespace {

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

[[nodiscard]] bool isContainer(const jv::JV& value) {
    return value.isArray() || value.isObject();
}

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

bool isAsIntended(const Edits& edits, const jv::JVDocument& result) {
    std::vector<std::pair<const jv::JV*, const jv::JV*>> open{{edits.source().root(), result.root()}};
    std::vector<jv::Member> actual;
    while (!open.empty()) {
        const auto [intended, value] = open.back();
        open.pop_back();
        if (intended->kind() != value->kind())
            return false;
        if (!isContainer(*intended)) {
            if (!jv::equalValues(*intended, *value))
                return false;
            continue;
        }
        actual.clear();
        if (value->isObject())
            result.forEachOrdered(value, [&](const jv::Member& member) { actual.push_back(member); });
        else
            for (const jv::JV* element : value->elements())
                actual.push_back({{}, element});
        std::size_t place = 0;
        bool isEqual = true;
        forEachEditedChild(edits, *intended, [&](std::string_view key, const jv::JV& child) {
            isEqual = isEqual && place < actual.size() && actual[place].key == key;
            if (isEqual)
                open.emplace_back(&child, actual[place++].value);
        });
        if (!isEqual || place != actual.size())
            return false;
    }
    return true;
}

} // namespace specloom::source_edit
