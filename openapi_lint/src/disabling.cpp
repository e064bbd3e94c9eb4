#include "openapi_lint/disabling.h"

namespace specloom::openapi_lint {
namespace {

bool lists(const jv::JV& value, std::string_view ruleId) {
    if (!value.isArray())
        return false;
    for (const jv::JV* element : value.elements())
        if (element->isString() && element->text() == ruleId)
            return true;
    return false;
}

} // namespace

const jv::JV* disablingOf(const openapi::Node& node) {
    if (node.extensions().empty())
        return nullptr;
    const jv::JV* value = node.findExtension("x-specloom-lint-disable");
    return value != nullptr ? value : node.findExtension("x-lint-disable");
}

bool isDisabled(const Rule& rule, const openapi::Node* node) {
    for (; node != nullptr; node = node->parent())
        if (const jv::JV* value = disablingOf(*node); value != nullptr && lists(*value, rule.id()))
            return true;
    return false;
}

bool isDisabled(const Rule& rule, const openapi::Node* first, const openapi::Node* second) {
    return isDisabled(rule, first) || isDisabled(rule, second);
}

bool isDisabled(const Rule& rule, const openapi::Node* first, const openapi::Node* second,
                const openapi::Node* third) {
    return isDisabled(rule, first, second) || isDisabled(rule, third);
}

} // namespace specloom::openapi_lint
