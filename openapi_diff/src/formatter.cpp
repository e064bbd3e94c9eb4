#include "openapi_diff/formatter.h"

#include "foundation/message.h"
#include "foundation/registry.h"
#include "openapi_diff/formatters/html.h"
#include "openapi_diff/formatters/json.h"
#include "openapi_diff/formatters/markdown.h"
#include "openapi_diff/formatters/stylish.h"
#include "openapi_diff/formatters/unix.h"
#include "openapi_diff/formatters/visualstudio.h"
#include "openapi_diff/reports/reports.h"

#include <stdexcept>   // std::runtime_error
#include <tuple>       // std::tuple, std::tuple_size_v
#include <type_traits> // std::is_same_v

namespace specloom::openapi_diff {
namespace {

using MakeFormatter = Maker<Formatter, std::ostream&>;

struct Format {
    std::string_view name;
    Registry<MakeFormatter, std::tuple_size_v<Reports>> byReport;
};

template <typename... Formatters>
constexpr Format formatRow(std::string_view name) {
    static_assert(std::is_same_v<std::tuple<typename Formatters::Formatted...>, Reports>,
                  "a format has a formatter for each report, in the order of the reports");
    return {name, Registry({MakeFormatter::of<Formatters>(Formatters::Formatted::name)...})};
}

/// In byte-wise order of the names.
constexpr Registry formatRegistry({
    formatRow<HTMLStatusFormatter, HTMLChangelogFormatter, HTMLDetailsFormatter>("html"),
    formatRow<JSONStatusFormatter, JSONChangelogFormatter, JSONDetailsFormatter>("json"),
    formatRow<MarkdownStatusFormatter, MarkdownChangelogFormatter, MarkdownDetailsFormatter>("markdown"),
    formatRow<StylishStatusFormatter, StylishChangelogFormatter, StylishDetailsFormatter>("stylish"),
    formatRow<UnixStatusFormatter, UnixChangelogFormatter, UnixDetailsFormatter>("unix"),
    formatRow<VisualStudioStatusFormatter, VisualStudioChangelogFormatter, VisualStudioDetailsFormatter>(
        "visualstudio"),
});
static_assert(formatRegistry.find(defaultFormat) != nullptr);

} // namespace

std::unique_ptr<Formatter> createFormatter(std::string_view format, std::string_view report,
                                           std::ostream& stream) {
    const Format* const found = formatRegistry.find(format);
    const MakeFormatter* const maker = found == nullptr ? nullptr : found->byReport.find(report);
    if (maker == nullptr)
        throw std::runtime_error(formatMessage("Invalid formatter ({}) or report ({}) name", format, report));
    return maker->make(stream);
}

std::vector<std::string_view> formatNames() {
    return formatRegistry.names();
}

} // namespace specloom::openapi_diff
