#include "test_support/documents.h"

#include <algorithm> // std::max

namespace specloom::test_support {

bool hasBigNumber(const jv::JV& root) {
    return anyOf(
        root,
        [](const jv::JV& value) {
            return value.isNumber() && value.number().kind() == number::NumberKind::Big;
        },
        [](std::string_view) { return false; });
}

bool hasEmptyKey(const jv::JV& root) {
    return anyOf(
        root, [](const jv::JV&) { return false; }, [](std::string_view key) { return key.empty(); });
}

bool hasExponentString(const jv::JV& root) {
    const auto isExponentString = [](const jv::JV& value) {
        return value.isString() && value.text().find_first_of("eE") != std::string_view::npos &&
               number::Number::tryParse(value.text()).has_value();
    };
    return anyOf(root, isExponentString, [](std::string_view) { return false; });
}

std::size_t depthOf(const jv::JV& root) {
    struct Step {
        const jv::JV* value;
        std::size_t depth;
    };
    std::size_t deepest = 0;
    std::vector<Step> open{{&root, 0}};
    while (!open.empty()) {
        const auto [value, above] = open.back();
        open.pop_back();
        if (!value->isArray() && !value->isObject())
            continue;
        deepest = std::max(deepest, above + 1);
        if (value->isArray())
            for (const jv::JV* element : value->elements())
                open.push_back({element, above + 1});
        else
            for (const jv::Member member : value->members())
                open.push_back({member.value, above + 1});
    }
    return deepest;
}

std::string firstDifference(const jv::JVDocument& expected, const jv::JVDocument& actual) {
    struct Pair {
        const jv::JV* expected;
        const jv::JV* actual;
    };
    std::vector<Pair> open{{expected.root(), actual.root()}};
    while (!open.empty()) {
        const auto [left, right] = open.back();
        open.pop_back();
        if (left->kind() != right->kind() || left->size() != right->size())
            return left->pointer() + ": another kind or size";
        if (left->isArray()) {
            for (std::size_t i = 0; i < left->size(); ++i)
                open.push_back({left->elements()[i], right->elements()[i]});
        } else if (left->isObject()) {
            const std::vector<jv::Member> leftMembers = expected.orderedMembers(left);
            const std::vector<jv::Member> rightMembers = actual.orderedMembers(right);
            for (std::size_t i = 0; i < leftMembers.size(); ++i) {
                if (leftMembers[i].key != rightMembers[i].key)
                    return left->pointer() + ": another key at " + std::to_string(i);
                open.push_back({leftMembers[i].value, rightMembers[i].value});
            }
        } else if (!left->equals(*right)) {
            return left->pointer() + ": another value";
        }
    }
    return "";
}

} // namespace specloom::test_support
