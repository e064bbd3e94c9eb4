#include "openapi_generator_server_spring/context.h"

#include "code_morph_java/spring/names.h"
#include "code_morph_java/string_literal.h"
#include "foundation/strings.h"
#include "openapi_generator_server_spring/spring_templates.h"

#include <algorithm> // std::any_of

namespace specloom::openapi_generator::server_spring {

Context::Context(FileSystem& fileSystem) : PluginContextOf(fileSystem), templates({springTemplates()}) {}

void Context::addIssue(IssueSeverity severity, const Message& message, const openapi::Node& node) {
    issues.push_back({severity, message.composed(), nodePos(node)});
}

bool Context::hasIssue(IssueSeverity least) const noexcept {
    return std::any_of(issues.begin(), issues.end(),
                       [least](const Issue& issue) { return issue.severity >= least; });
}

std::string Context::methodName(std::string_view prefix, const openapi::OperationRef& ref) const {
    const std::optional<std::string> name = actionName(nameSources, ref);
    return name ? code_morph::java::toMemberName(joinWith(prefix, *name)) : "";
}

const SchemaTypeInfo& Context::typeOf(const openapi::Schema& schema) const {
    static const SchemaTypeInfo object;
    const auto found = schemaTypes.find(&schema);
    return found == schemaTypes.end() ? object : found->second;
}

void Context::checkAnnotationText(std::string_view text, const openapi::Node& node) {
    if (!code_morph::java::fitsConstant(text))
        addIssue(IssueSeverity::Error, formatMessage("Text is too long for Java: '{}'", text), node);
    if (text.find("${") != std::string_view::npos || text.find("#{") != std::string_view::npos)
        addIssue(IssueSeverity::Error, formatMessage("Spring would evaluate the expression in '{}'", text),
                 node);
}

} // namespace specloom::openapi_generator::server_spring
