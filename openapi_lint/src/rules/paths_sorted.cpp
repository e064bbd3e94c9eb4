#include "openapi_lint/rules/paths_sorted.h"

#include "openapi_lint/disabling.h"
#include "openapi_lint/lint_context.h"

#include <algorithm>   // std::stable_sort
#include <string>      // std::string
#include <string_view> // std::string_view
#include <tuple>       // std::tie
#include <vector>      // std::vector

namespace specloom::openapi_lint {
namespace {

constexpr const char* notSorted = "Paths are not sorted: ";

struct WrittenPath {
    std::string_view url;
    const openapi::Node* item;
    jv::Pos pos;
};

/// The tree holds the paths in the order of their names; that of the source is known from the positions
/// alone.
std::vector<WrittenPath> inSourceOrder(const LintContext& context) {
    std::vector<WrittenPath> paths;
    for (const auto& entry : context.root().paths())
        paths.push_back({entry.name(), entry.value.get(), context.document->locationOf(*entry.value).pos});
    std::stable_sort(paths.begin(), paths.end(), [](const WrittenPath& a, const WrittenPath& b) {
        return std::tie(a.pos.line, a.pos.column) < std::tie(b.pos.line, b.pos.column);
    });
    return paths;
}

} // namespace

void PathsSorted::check(LintContext& context) {
    if (isDisabled(*this, &context.root()))
        return;
    std::string_view previous;
    for (const WrittenPath& path : inSourceOrder(context)) {
        if (!previous.empty() && previous >= path.url)
            report(context, notSorted + std::string(path.url), *path.item);
        previous = path.url;
    }
}

} // namespace specloom::openapi_lint
