#include "openapi_diff/formatters/template_report.h"

#include "openapi_diff/formatters/changelog_value.h"
#include "openapi_diff/formatters/utils.h"
#include "reporting/place.h"

namespace specloom::openapi_diff {
namespace {

void setChangedFields(jv::JV& metadata, const ModifiedOperation& operation) {
    jv::JV* fields = metadata.setArray("fields");
    if (operation.summaryChanged)
        fields->appendString("summary");
    if (operation.descriptionChanged)
        fields->appendString("description");
    if (operation.operationIdChanged)
        fields->appendString("operation id");
}

void describeChange(jv::JV& object, const Change& change, reporting::EscapeText escape) {
    object.setString("severity", changeLevelText(change.level));
    object.setInteger("line", reporting::printedLine(change.pos));
    object.setInteger("column", reporting::printedColumn(change.pos));
    object.setString("kind", changeKindText(change.kind));
    object.setString("text", escape(changeText(change)));
}

} // namespace

void setCounts(jv::JV& data, const Report& report) {
    const auto count = [&report](ChangeLevel level) {
        return static_cast<std::int64_t>(report.count(level));
    };
    const std::int64_t none = count(ChangeLevel::None);
    const std::int64_t nonFunctional = count(ChangeLevel::NonFunctional);
    const std::int64_t nonBreaking = count(ChangeLevel::NonBreaking);
    const std::int64_t breaking = count(ChangeLevel::Breaking);
    jv::JV* counts = data.setObject("counts");
    counts->setInteger("total", none + nonFunctional + nonBreaking + breaking);
    counts->setInteger("none", none);
    counts->setInteger("nonFunctional", nonFunctional);
    counts->setInteger("nonBreaking", nonBreaking);
    counts->setInteger("breaking", breaking);
}

void setLevel(jv::JV& data, const Report& report) {
    jv::JV* level = data.setObject("level");
    level->setString("heading", changeLevelHeading(report.level()));
    level->setString("severity", changeLevelText(report.level()));
}

void setChangelog(jv::JV& data, const ChangelogReport& report, reporting::EscapeText escape) {
    describeChangelog(data, report, escape);
    jv::JV* fields = data.get("metadata")->setArray("fields");
    for (const MetadataFieldName& name : metadataFieldNames(report))
        fields->appendString(name.text);
    for (std::size_t index = 0; jv::JV * modified : data.get("modified")->elements()) {
        const ModifiedOperation& operation = report.modified()[index++];
        setChangedFields(*modified->get("metadata"), operation);
        modified->get("security")->setBoolean("any", operation.securityChanged);
    }
}

void setChanges(jv::JV& data, const DetailedReport& report, reporting::EscapeText escape,
                std::optional<ChangeLevel> level) {
    jv::JV* changes = data.setArray("changes");
    for (const Change& change : report.changes())
        if (!level || change.level == *level)
            describeChange(*changes->appendObject(), change, escape);
}

} // namespace specloom::openapi_diff
