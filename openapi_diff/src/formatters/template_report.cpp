#include "openapi_diff/formatters/template_report.h"

#include <utility> // std::move

#include <fmt/format.h>
#include <nlohmann/json.hpp>

#include "openapi_diff/formatters/utils.h"

namespace specloom::openapi_diff {
namespace {

using nlohmann::json;

json describePlace(ChangeLevel level, jv::Pos pos) {
    return {{"severity", changeLevelText(level)}, {"line", printedLine(pos)}, {"column", printedColumn(pos)}};
}

json describe(const OperationChange& operation, EscapeText escape) {
    json data = describePlace(operation.level, operation.pos);
    data["url"] = escape(operation.path);
    data["method"] = operation.method;
    return data;
}

json describe(const ParameterChange& parameter, EscapeText escape) {
    json data = describePlace(parameter.level, parameter.pos);
    data["text"] = fmt::format("{} in {}", escape(parameter.name), parameter.location);
    return data;
}

json describe(const NamedChange& change, EscapeText escape) {
    json data = describePlace(change.level, change.pos);
    data["text"] = change.name.empty() ? "Request body" : escape(change.name);
    return data;
}

json describe(const ModifiedOperation& operation, EscapeText escape);

template <typename T>
json describeList(const std::vector<T>& list, EscapeText escape) {
    json data = json::array();
    for (const T& element : list)
        data.push_back(describe(element, escape));
    return data;
}

/// Appends a block of the lists that are not empty, unless all are.
template <typename T>
void describeBlock(json& blocks, std::string_view title, const ByAction<T>& changes, EscapeText escape) {
    json lists = json::array();
    const auto add = [&](std::string_view listTitle, const std::vector<T>& list) {
        if (!list.empty())
            lists.push_back({{"title", listTitle}, {"items", describeList(list, escape)}});
    };
    add("Added", changes.added);
    add("Removed", changes.removed);
    add("Modified", changes.modified);
    if (!lists.empty())
        blocks.push_back({{"title", title}, {"lists", std::move(lists)}});
}

json describe(const ModifiedOperation& operation, EscapeText escape) {
    json data = describe(static_cast<const OperationChange&>(operation), escape);
    json metadata = json::array();
    if (operation.summaryChanged)
        metadata.push_back("summary");
    if (operation.descriptionChanged)
        metadata.push_back("description");
    if (operation.operationIdChanged)
        metadata.push_back("operation id");
    data["metadata"] = std::move(metadata);
    data["metadataSeverity"] = changeLevelText(operation.metadata.level);
    json blocks = json::array();
    describeBlock(blocks, "Parameters", operation.parameters, escape);
    describeBlock(blocks, "Request body", operation.requestBody, escape);
    describeBlock(blocks, "Response codes", operation.responses, escape);
    data["blocks"] = std::move(blocks);
    data["security"] = {{"any", operation.securityChanged},
                        {"severity", changeLevelText(operation.securityChange.level)},
                        {"added", operation.security.get(ChangeKind::ElementAdded)},
                        {"removed", operation.security.get(ChangeKind::ElementRemoved)},
                        {"modified", operation.security.get(ChangeKind::ElementModified)}};
    return data;
}

} // namespace

json describeCounts(const Report& report) {
    const std::size_t none = report.count(ChangeLevel::None);
    const std::size_t nonFunctional = report.count(ChangeLevel::NonFunctional);
    const std::size_t nonBreaking = report.count(ChangeLevel::NonBreaking);
    const std::size_t breaking = report.count(ChangeLevel::Breaking);
    return {{"total", none + nonFunctional + nonBreaking + breaking},
            {"none", none},
            {"nonFunctional", nonFunctional},
            {"nonBreaking", nonBreaking},
            {"breaking", breaking}};
}

json describeLevel(const Report& report) {
    return {{"heading", changeLevelHeading(report.level())}, {"severity", changeLevelText(report.level())}};
}

json describeChangelog(const ChangelogReport& report, EscapeText escape) {
    json metadata = json::array();
    for (const MetadataFieldName& name : metadataFieldNames(report))
        metadata.push_back(name.text);
    return {{"metadata", std::move(metadata)},
            {"metadataSeverity", changeLevelText(report.metadata().level)},
            {"added", describeList(report.added(), escape)},
            {"removed", describeList(report.removed(), escape)},
            {"deprecated", describeList(report.deprecated(), escape)},
            {"modified", describeList(report.modified(), escape)}};
}

json describeChange(const Change& change, EscapeText escape) {
    json data = describePlace(change.level, change.pos);
    data["kind"] = changeKindText(change.kind);
    data["text"] = escape(changeText(change));
    return data;
}

} // namespace specloom::openapi_diff
