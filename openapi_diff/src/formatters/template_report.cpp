#include "openapi_diff/formatters/template_report.h"

#include "openapi_diff/formatters/changelog_value.h"
#include "openapi_diff/formatters/utils.h"
#include "reporting/data.h"
#include "reporting/place.h"

#include <utility> // std::move

#include <nlohmann/json.hpp>

namespace specloom::openapi_diff {
namespace {

using nlohmann::json;

json changedFields(const ModifiedOperation& operation) {
    json fields = json::array();
    if (operation.summaryChanged)
        fields.push_back("summary");
    if (operation.descriptionChanged)
        fields.push_back("description");
    if (operation.operationIdChanged)
        fields.push_back("operation id");
    return fields;
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

json changelogData(const ChangelogReport& report, reporting::EscapeText escape) {
    jv::JVDocument document;
    describeChangelog(*document.makeRoot(jv::Kind::Object), report, escape);
    json data = reporting::templateData(document);
    json fields = json::array();
    for (const MetadataFieldName& name : metadataFieldNames(report))
        fields.push_back(name.text);
    data["metadata"]["fields"] = std::move(fields);
    json& modified = data["modified"];
    for (std::size_t index = 0; index < modified.size(); ++index) {
        const ModifiedOperation& operation = report.modified()[index];
        modified[index]["metadata"]["fields"] = changedFields(operation);
        modified[index]["security"]["any"] = operation.securityChanged;
    }
    return data;
}

json describeChange(const Change& change, reporting::EscapeText escape) {
    return {{"severity", changeLevelText(change.level)},
            {"line", reporting::printedLine(change.pos)},
            {"column", reporting::printedColumn(change.pos)},
            {"kind", changeKindText(change.kind)},
            {"text", escape(changeText(change))}};
}

} // namespace specloom::openapi_diff
