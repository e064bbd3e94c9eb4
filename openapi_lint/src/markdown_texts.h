#pragma once

#include "openapi_lint/rule_handler.h"

#include <optional>    // std::optional
#include <string_view> // std::string_view

namespace specloom::openapi_lint {

/// The texts of one object that are written for people.
struct NodeTexts {
    std::optional<std::string_view> title;   ///< plain text
    std::optional<std::string_view> summary; ///< plain text
    /// The one kind of text that OpenAPI 3.1.0, section 4.5 lets be CommonMark.
    std::optional<std::string_view> description;

    [[nodiscard]] bool isEmpty() const { return !title && !summary && !description; }
};

/// Those of an object of any class.
[[nodiscard]] NodeTexts textsOf(const openapi::Node& node);

/// A handler that is shown the texts of every object that has any and where the rule is not disabled. A
/// reference may have texts in place of those of its target (OpenAPI 3.1.0, section 4.8.23); they are shown
/// behind those of the target, each with the reference as their node.
class MarkdownTextsHandler : public RuleHandler {
  public:
    using RuleHandler::RuleHandler;
    using RuleHandler::visit;
    void visit(const openapi::Node& node) final;

  protected:
    virtual void visitTexts(const openapi::Node& node, const NodeTexts& texts) = 0;

  private:
    void show(const openapi::Node& node);
};

} // namespace specloom::openapi_lint
