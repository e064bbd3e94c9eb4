#include "openapi_diff/formatters/changelog_value.h"

#include "openapi_diff/formatters/utils.h"
#include "reporting/place.h"

namespace specloom::openapi_diff {
namespace {

class ChangelogDescription {
  public:
    explicit ChangelogDescription(reporting::EscapeText escape) : escape_(escape) {}

    void describe(jv::JV& object, const ChangelogReport& report) const {
        jv::JV* metadata = object.setObject("metadata");
        metadata->setString("severity", changeLevelText(report.metadata().level));
        for (const MetadataFieldName& name : metadataFieldNames(report))
            metadata->setBoolean(name.key, true);
        setList(object, "added", report.added());
        setList(object, "removed", report.removed());
        setList(object, "deprecated", report.deprecated());
        setList(object, "modified", report.modified());
    }

  private:
    void describe(jv::JV& object, const OperationChange& operation) const {
        object.setString("url", escape_(operation.path));
        object.setString("method", operation.method);
        setChange(object, operation.level, operation.pos);
    }

    void describe(jv::JV& object, const ParameterChange& parameter) const {
        object.setString("name", escape_(parameter.name));
        object.setString("location", parameter.location);
        object.setBoolean("required", parameter.isRequired);
        setChange(object, parameter.level, parameter.pos);
    }

    void describe(jv::JV& object, const NamedChange& change) const {
        object.setString("name", escape_(change.name));
        setChange(object, change.level, change.pos);
    }

    void describe(jv::JV& object, const ModifiedOperation& operation) const {
        describe(object, static_cast<const OperationChange&>(operation));
        jv::JV* metadata = object.setObject("metadata");
        metadata->setString("severity", changeLevelText(operation.metadata.level));
        if (operation.summaryChanged)
            metadata->setBoolean("summary", true);
        if (operation.descriptionChanged)
            metadata->setBoolean("description", true);
        object.setBoolean("operationId", operation.operationIdChanged);
        setLists(object, "parameters", operation.parameters);
        setLists(object, "request_body", operation.requestBody);
        setLists(object, "responses", operation.responses);
        jv::JV* security = object.setObject("security");
        security->setString("severity", changeLevelText(operation.securityChange.level));
        security->setInteger("added", operation.security.get(ChangeKind::ElementAdded));
        security->setInteger("removed", operation.security.get(ChangeKind::ElementRemoved));
        security->setInteger("modified", operation.security.get(ChangeKind::ElementModified));
    }

    template <typename T>
    void setList(jv::JV& object, std::string_view key, const std::vector<T>& list) const {
        jv::JV* array = object.setArray(key);
        for (const T& element : list)
            describe(*array->appendObject(), element);
    }

    template <typename T>
    void setLists(jv::JV& object, std::string_view key, const ByAction<T>& lists) const {
        jv::JV* member = object.setObject(key);
        setList(*member, "added", lists.added);
        setList(*member, "removed", lists.removed);
        setList(*member, "modified", lists.modified);
    }

    reporting::EscapeText escape_;
};

} // namespace

void setChange(jv::JV& object, ChangeLevel level, jv::Pos pos) {
    object.setString("severity", changeLevelText(level));
    reporting::setPos(object, pos);
}

void describeChangelog(jv::JV& object, const ChangelogReport& report, reporting::EscapeText escape) {
    ChangelogDescription(escape).describe(object, report);
}

} // namespace specloom::openapi_diff
