#pragma once

#include "openapi/node_texts.h"
#include "openapi_lint/rule_handler.h"

namespace specloom::openapi_lint {

/// A handler that is shown the texts of every object and reference that has any and where the rule is not
/// disabled.
class TextsHandler : public RuleHandler {
  public:
    using RuleHandler::RuleHandler;
    using RuleHandler::visit;
    void visit(const openapi::Node& node) final {
        openapi::forEachTexts(node, [this](const openapi::Node& owner, const openapi::NodeTexts& texts) {
            if (!isDisabled(owner))
                visitTexts(owner, texts);
        });
    }

  protected:
    virtual void visitTexts(const openapi::Node& node, const openapi::NodeTexts& texts) = 0;
};

} // namespace specloom::openapi_lint
