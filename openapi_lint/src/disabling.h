#pragma once

#include "openapi/node.h"
#include "openapi_lint/rule.h"

#include <cstdint> // std::uint8_t
#include <vector>  // std::vector

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

/// isDisabled() for many nodes of one tree: what was found out of a node and those around it is kept for the
/// rule that asked last, so that each list is searched once for a rule, however many nodes stand below it.
class DisabledNodes {
  public:
    [[nodiscard]] bool contain(const Rule& rule, const openapi::Node& node);
    /// To be called before the nodes of another tree are asked for.
    void clear() noexcept { rule_ = nullptr; }

  private:
    enum class State : std::uint8_t { Unknown, Enabled, Disabled };

    const Rule* rule_ = nullptr;
    std::vector<State> states_; ///< by index of the node
};

} // namespace specloom::openapi_lint
