#include "openapi_lint/formatter_registry.h"

#include <stdexcept> // std::runtime_error
#include <string>    // std::string

#include "foundation/message.h"
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

struct FormatterEntry {
    std::string_view name;
    std::unique_ptr<Formatter> (*make)(std::ostream& stream);
};

template <typename T>
std::unique_ptr<Formatter> make(std::ostream& stream) {
    return std::make_unique<T>(stream);
}

/// In byte-wise order of the names.
constexpr FormatterEntry formatterTable[] = {
    {"checkstyle", make<CheckstyleFormatter>},
    {"compact", make<CompactFormatter>},
    {"html", make<HTMLFormatter>},
    {"json", make<JSONFormatter>},
    {"junit", make<JUnitFormatter>},
    {"stylish", make<StylishFormatter>},
    {"tap", make<TAPFormatter>},
    {"unix", make<UnixFormatter>},
    {"visualstudio", make<VisualStudioFormatter>},
};

} // namespace

std::unique_ptr<Formatter> findFormatter(std::string_view name, std::ostream& stream) {
    for (const FormatterEntry& entry : formatterTable)
        if (entry.name == name)
            return entry.make(stream);
    throw std::runtime_error(formatMessage("Formatter not found: {}", name));
}

std::vector<std::string_view> formatterNames() {
    std::vector<std::string_view> names;
    for (const FormatterEntry& entry : formatterTable)
        names.push_back(entry.name);
    return names;
}

} // namespace specloom::openapi_lint
