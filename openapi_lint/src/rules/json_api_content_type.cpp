#include "openapi_lint/rules/json_api_content_type.h"

#include "openapi/request_body.h"
#include "openapi/response.h"
#include "openapi_lint/rule_handler.h"

namespace specloom::openapi_lint {
namespace {

constexpr const char* wrongRequest = "Request body media type is not application/vnd.api+json";
constexpr const char* wrongResponse = "Response media type is not application/vnd.api+json";
constexpr std::string_view jsonApiMediaType = "application/vnd.api+json";

class JSONAPIContentTypeHandler final : public RuleHandler {
  public:
    using RuleHandler::RuleHandler;
    using RuleHandler::visit;
    void visit(const openapi::RequestBody& body) override {
        if (!isDisabled(body) && body.mediaType(jsonApiMediaType) == nullptr)
            report(wrongRequest, body);
    }
    void visit(const openapi::Response& response) override {
        if (!response.content().empty() && !isDisabled(response) &&
            response.mediaType(jsonApiMediaType) == nullptr)
            report(wrongResponse, response);
    }
};

} // namespace

void JSONAPIContentType::check(LintContext& context) {
    JSONAPIContentTypeHandler handler(*this, context);
    context.walk(handler);
}

} // namespace specloom::openapi_lint
