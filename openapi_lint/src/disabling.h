#pragma once

#include "openapi/node.h"
#include "openapi_lint/rule.h"

namespace specloom::openapi_lint {

/// Whether the document switches the rule off for this node: whether the node, or one of those that it stands
/// in, has the extension "x-specloom-lint-disable", or else "x-lint-disable", with an array that holds the
/// rule's id. The second is not looked at where the first is present. Null is not disabled.
///
/// Rules ask this themselves, for the nodes that they choose, before they report.
[[nodiscard]] bool isDisabled(const Rule& rule, const openapi::Node* node);
/// Whether that holds for any of the nodes.
[[nodiscard]] bool isDisabled(const Rule& rule, const openapi::Node* first, const openapi::Node* second);
[[nodiscard]] bool isDisabled(const Rule& rule, const openapi::Node* first, const openapi::Node* second,
                              const openapi::Node* third);

/// The value of the extension that counts at this node itself; null without one.
[[nodiscard]] const jv::JV* disablingOf(const openapi::Node& node);

} // namespace specloom::openapi_lint
