#include "openapi_lint/rules/safe_markdown.h"

#include "markdown/safety.h"
#include "openapi_lint/texts_handler.h"

#include <fmt/format.h>

namespace specloom::openapi_lint {
namespace {

constexpr const char* rawHtml = "Markdown text contains raw HTML";
constexpr const char* unsafeLink = "Markdown text contains an unsafe link: {}";

class SafeMarkdownHandler final : public TextsHandler {
  public:
    using TextsHandler::TextsHandler;

  protected:
    void visitTexts(const openapi::Node& node, const openapi::NodeTexts& texts) override {
        if (!texts.description)
            return;
        const markdown::UnsafeContent content = markdown::unsafeContentOf(*texts.description);
        if (content.html)
            report(rawHtml, node);
        if (content.destination)
            report(fmt::format(unsafeLink, *content.destination), node);
    }
};

} // namespace

void SafeMarkdown::check(LintContext& context) {
    SafeMarkdownHandler handler(*this, context);
    context.walk(handler);
}

} // namespace specloom::openapi_lint
