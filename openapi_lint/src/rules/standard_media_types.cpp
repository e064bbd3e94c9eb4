#include "openapi_lint/rules/standard_media_types.h"

#include "foundation/validators/validators.h"
#include "openapi/header.h"
#include "openapi/parameter.h"
#include "openapi/request_body.h"
#include "openapi/response.h"
#include "openapi_lint/rule_handler.h"

#include <fmt/format.h>

namespace specloom::openapi_lint {
namespace {

constexpr const char* notStandard = "Non-standard media type is used ({})";

class StandardMediaTypesHandler final : public RuleHandler {
  public:
    using RuleHandler::RuleHandler;
    using RuleHandler::visit;

    void visit(const openapi::Header& header) override { checkValue(header.value(), header); }
    void visit(const openapi::Parameter& parameter) override { checkValue(parameter.value(), parameter); }
    void visit(const openapi::RequestBody& body) override { checkContent(body.content(), body); }
    void visit(const openapi::Response& response) override { checkContent(response.content(), response); }

  private:
    void checkValue(const openapi::SchemaOrContent& value, const openapi::Node& node) const {
        if (value.mode() == openapi::SchemaOrContent::Mode::Content && !isDisabled(node))
            checkName(value.mediaTypeName(), node);
    }
    void checkContent(const openapi::NodeMap& content, const openapi::Node& node) const {
        if (content.empty() || isDisabled(node))
            return;
        for (const auto& entry : content)
            checkName(entry.name(), node);
    }
    void checkName(std::string_view name, const openapi::Node& node) const {
        if (!isMediaType(name))
            report(fmt::format(notStandard, name), node);
    }
};

} // namespace

void StandardMediaTypes::check(LintContext& context) {
    StandardMediaTypesHandler handler(*this, context);
    context.walk(handler);
}

} // namespace specloom::openapi_lint
