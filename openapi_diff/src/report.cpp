#include "openapi_diff/report.h"

#include "foundation/registry.h"
#include "foundation/unreachable.h"
#include "openapi_diff/reports/reports.h"

#include <algorithm>   // std::max
#include <tuple>       // std::tuple
#include <type_traits> // std::type_identity

namespace specloom::openapi_diff {
namespace {

using MakeReport = Maker<Report>;

constexpr auto registryOf = []<typename... R>(std::type_identity<std::tuple<R...>>) {
    return Registry({MakeReport::of<R>(R::name)...});
};
constexpr auto reportRegistry = registryOf(std::type_identity<Reports>());
static_assert(reportRegistry.find(defaultReport) != nullptr);

} // namespace

void Report::record(ChangeLevel level) {
    const auto index = static_cast<std::size_t>(level);
    if (index >= counts_.size())
        SPECLOOM_UNREACHABLE("Unknown change level");
    level_ = std::max(level_, level);
    ++counts_[index];
}

std::unique_ptr<Report> createReport(std::string_view name) {
    return reportRegistry.get(name, "Result not found: {}").make();
}

std::vector<std::string_view> reportNames() {
    return reportRegistry.names();
}

} // namespace specloom::openapi_diff
