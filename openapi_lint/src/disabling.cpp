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

/// Whether the node itself switches the rule off.
bool disables(const openapi::Node& node, const Rule& rule) {
    const jv::JV* value = disablingOf(node);
    return value != nullptr && lists(*value, rule.id());
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
        if (disables(*node, rule))
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

bool DisabledNodes::contain(const Rule& rule, const openapi::Node& node) {
    if (rule_ != &rule) {
        rule_ = &rule;
        states_.clear();
    }
    states_.resize(node.indexLimit(), State::Unknown);
    State found = State::Unknown;
    const openapi::Node* end = &node; // of the way upwards on which nothing is known yet
    for (; end != nullptr && found == State::Unknown; end = end->parent())
        if (found = states_[end->index()]; found == State::Unknown && disables(*end, rule))
            found = State::Disabled;
    if (found == State::Unknown)
        found = State::Enabled;
    for (const openapi::Node* known = &node; known != end; known = known->parent())
        states_[known->index()] = found;
    return found == State::Disabled;
}

} // namespace specloom::openapi_lint
