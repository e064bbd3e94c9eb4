#include "templating/functions.h"

#include "foundation/case_style.h"
#include "foundation/escapes.h"
#include "foundation/printable.h"
#include "foundation/strings.h"

namespace specloom::templating {
namespace {

constexpr TextFunction textFunctionTable[] = {
    {"escapeDoubleQuoted", escapeDoubleQuoted},
    {"escapeHtml", escapeHtml},
    {"escapeHtmlDoubleQuoted", escapeHtmlDoubleQuoted},
    {"escapeMarkdown", escapeMarkdown},
    {"escapeSingleQuoted", escapeSingleQuoted},
    {"escapeTap", escapeTap},
    {"printable", printable},
    {"printableAtLineStart", printableAtLineStart},
    {"toCamelCase", toCamelCase},
    {"toConstCase", toConstCase},
    {"toHeaderCase", toHeaderCase},
    {"toJavaScriptLiteral", toJavaScriptLiteral},
    {"toJsonLiteral", toJsonLiteral},
    {"toKebabCase", toKebabCase},
    {"toPascalCase", toPascalCase},
    {"toSnakeCase", toSnakeCase},
    {"trim", trim},
    {"trimLines", trimLines},
};

} // namespace

std::span<const TextFunction> textFunctions() noexcept {
    return textFunctionTable;
}

} // namespace specloom::templating
