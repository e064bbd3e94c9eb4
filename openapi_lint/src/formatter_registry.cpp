#include "openapi_lint/formatter_registry.h"

#include "foundation/registry.h"
#include "openapi_lint/formatters/checkstyle_formatter.h"
#include "openapi_lint/formatters/compact_formatter.h"
#include "openapi_lint/formatters/html_formatter.h"
#include "openapi_lint/formatters/json_formatter.h"
#include "openapi_lint/formatters/junit_formatter.h"
#include "openapi_lint/formatters/stylish_formatter.h"
#include "openapi_lint/formatters/tap_formatter.h"
#include "openapi_lint/formatters/unix_formatter.h"
#include "openapi_lint/formatters/visualstudio_formatter.h"

namespace specloom::openapi_lint {
namespace {

using MakeFormatter = Maker<Formatter, std::ostream&>;

/// In byte-wise order of the names.
constexpr Registry formatterRegistry({
    MakeFormatter::of<CheckstyleFormatter>("checkstyle"),
    MakeFormatter::of<CompactFormatter>("compact"),
    MakeFormatter::of<HTMLFormatter>("html"),
    MakeFormatter::of<JSONFormatter>("json"),
    MakeFormatter::of<JUnitFormatter>("junit"),
    MakeFormatter::of<StylishFormatter>("stylish"),
    MakeFormatter::of<TAPFormatter>("tap"),
    MakeFormatter::of<UnixFormatter>("unix"),
    MakeFormatter::of<VisualStudioFormatter>("visualstudio"),
});
static_assert(formatterRegistry.find(defaultFormatter) != nullptr);

} // namespace

std::unique_ptr<Formatter> findFormatter(std::string_view name, std::ostream& stream) {
    return formatterRegistry.get(name, "Formatter not found: {}").make(stream);
}

std::vector<std::string_view> formatterNames() {
    return formatterRegistry.names();
}

} // namespace specloom::openapi_lint
