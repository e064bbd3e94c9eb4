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

bool isDisabledAt(const Rule& rule, const openapi::Node& node) {
    if (node.extensions().empty())
        return false;
    const jv::JV* value = node.findExtension("x-specloom-lint-disable");
    if (value == nullptr)
        value = node.findExtension("x-lint-disable");
    return value != nullptr && lists(*value, rule.id());
}

} // namespace

bool isDisabled(const Rule& rule, const openapi::Node* node) {
    for (; node != nullptr; node = node->parent())
        if (isDisabledAt(rule, *node))
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
