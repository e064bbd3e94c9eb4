#include "openapi_generator/operation_grouper.h"

#include "foundation/case_style.h"
#include "foundation/message.h"
#include "foundation/unreachable.h"
#include "openapi_generator/codegen_extensions.h"

#include <optional>  // std::optional
#include <stdexcept> // std::runtime_error

namespace specloom::openapi_generator {
namespace {

std::optional<std::string> groupNameBy(GroupingCriterion criterion, const openapi::OperationRef& ref) {
    switch (criterion) {
    case GroupingCriterion::Tag:
        if (ref.operation->tags().empty())
            return std::nullopt;
        return std::string(ref.operation->tags().front()->name());
    case GroupingCriterion::Extension: {
        const std::optional<std::string_view> own = controllerNameOf(*ref.operation);
        return std::optional<std::string>(own ? own : controllerNameOf(*ref.pathItem));
    }
    case GroupingCriterion::Url:
        return toCamelCase(ref.path);
    }
    SPECLOOM_UNREACHABLE("no criterion of groups");
}

std::optional<std::string> groupName(const std::vector<GroupingCriterion>& criteria,
                                     const openapi::OperationRef& ref) {
    for (const GroupingCriterion criterion : criteria)
        if (std::optional<std::string> name = groupNameBy(criterion, ref))
            return name;
    return std::nullopt;
}

} // namespace

GroupingCriterion parseGroupingCriterion(std::string_view text) {
    if (text == "tag")
        return GroupingCriterion::Tag;
    if (text == "extension")
        return GroupingCriterion::Extension;
    if (text == "url")
        return GroupingCriterion::Url;
    throw std::runtime_error(formatMessage("Unknown grouping criterium: {}", text));
}

void OperationGrouper::group(const openapi::OpenAPI& root) {
    for (const openapi::OperationRef& ref : openapi::operationsOf(root)) {
        if (isSkipped(ref))
            continue;
        const std::optional<std::string> name = groupName(criteria_, ref);
        (name ? groups_[*name] : ungrouped_).push_back(ref);
    }
}

bool OperationGrouper::isSkipped(const openapi::OperationRef& ref) const {
    return (skipDeprecated_ && ref.operation->deprecated()) ||
           (skipDisabled_ && (isDisabled(*ref.operation) || isDisabled(*ref.pathItem)));
}

} // namespace specloom::openapi_generator
