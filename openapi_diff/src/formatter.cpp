#include "openapi_diff/formatter.h"

#include <stdexcept> // std::runtime_error

#include "foundation/message.h"
#include "openapi_diff/formatters/html.h"
#include "openapi_diff/formatters/json.h"
#include "openapi_diff/formatters/markdown.h"
#include "openapi_diff/formatters/stylish.h"
#include "openapi_diff/formatters/unix.h"
#include "openapi_diff/formatters/visualstudio.h"

namespace specloom::openapi_diff {
namespace {

struct FormatterEntry {
    std::string_view format;
    std::string_view report;
    std::unique_ptr<Formatter> (*make)(std::ostream& stream);
};

template <typename T>
std::unique_ptr<Formatter> make(std::ostream& stream) {
    return std::make_unique<T>(stream);
}

constexpr FormatterEntry formatterTable[] = {
    {"html", "changelog", make<HTMLChangelogFormatter>},
    {"html", "detailed", make<HTMLDetailsFormatter>},
    {"html", "status", make<HTMLStatusFormatter>},
    {"json", "changelog", make<JSONChangelogFormatter>},
    {"json", "detailed", make<JSONDetailsFormatter>},
    {"json", "status", make<JSONStatusFormatter>},
    {"markdown", "changelog", make<MarkdownChangelogFormatter>},
    {"markdown", "detailed", make<MarkdownDetailsFormatter>},
    {"markdown", "status", make<MarkdownStatusFormatter>},
    {"stylish", "changelog", make<StylishChangelogFormatter>},
    {"stylish", "detailed", make<StylishDetailsFormatter>},
    {"stylish", "status", make<StylishStatusFormatter>},
    {"unix", "changelog", make<UnixChangelogFormatter>},
    {"unix", "detailed", make<UnixDetailsFormatter>},
    {"unix", "status", make<UnixStatusFormatter>},
    {"visualstudio", "changelog", make<VisualStudioChangelogFormatter>},
    {"visualstudio", "detailed", make<VisualStudioDetailsFormatter>},
    {"visualstudio", "status", make<VisualStudioStatusFormatter>},
};

} // namespace

std::unique_ptr<Formatter> createFormatter(std::string_view format, std::string_view report,
                                           std::ostream& stream) {
    for (const FormatterEntry& entry : formatterTable)
        if (entry.format == format && entry.report == report)
            return entry.make(stream);
    throw std::runtime_error(formatMessage("Invalid formatter ({}) or report ({}) name", format, report));
}

} // namespace specloom::openapi_diff
