#include "openapi_diff/report.h"

#include <algorithm> // std::max
#include <stdexcept> // std::runtime_error
#include <utility>   // std::move

#include "foundation/message.h"
#include "foundation/unreachable.h"
#include "openapi_diff/reports/changelog.h"
#include "openapi_diff/reports/detailed.h"
#include "openapi_diff/reports/status.h"

namespace specloom::openapi_diff {
namespace {

struct ReportEntry {
    std::string_view name;
    std::unique_ptr<Report> (*make)();
};

template <typename T>
std::unique_ptr<Report> make() {
    return std::make_unique<T>();
}

constexpr ReportEntry reportTable[] = {
    {"changelog", make<ChangelogReport>},
    {"detailed", make<DetailedReport>},
    {"status", make<StatusReport>},
};

} // namespace

std::string_view Report::fileName(DocumentSide side) const {
    const std::optional<std::string>& name = side == DocumentSide::Source ? sourceFile_ : destinationFile_;
    return name ? std::string_view(*name) : "<unknown>";
}

void Report::setFileNames(std::optional<std::string> source, std::optional<std::string> destination) {
    sourceFile_ = std::move(source);
    destinationFile_ = std::move(destination);
}

void Report::record(ChangeLevel level) {
    const auto index = static_cast<std::size_t>(level);
    if (index >= counts_.size())
        SPECLOOM_UNREACHABLE("Unknown change level");
    level_ = std::max(level_, level);
    ++counts_[index];
}

std::unique_ptr<Report> createReport(std::string_view name) {
    for (const ReportEntry& entry : reportTable)
        if (entry.name == name)
            return entry.make();
    throw std::runtime_error(formatMessage("Result not found: {}", name));
}

} // namespace specloom::openapi_diff
