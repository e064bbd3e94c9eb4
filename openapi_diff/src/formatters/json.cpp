#include "openapi_diff/formatters/json.h"

#include <ostream> // std::ostream

#include "foundation/utf8.h"
#include "jv/json_writer.h"
#include "openapi_diff/formatters/utils.h"
#include "openapi_diff/reports/changelog.h"
#include "openapi_diff/reports/detailed.h"

namespace specloom::openapi_diff {
namespace {

void write(const jv::JVDocument& report, std::ostream& stream) {
    jv::JSONWriter writer;
    writer.write(report);
    stream << writer.output() << '\n';
}

void setPlace(jv::JV& object, ChangeLevel level, jv::Pos pos) {
    object.setString("severity", changeLevelText(level));
    object.setInteger("line", printedLine(pos));
    object.setInteger("column", printedColumn(pos));
}

void setMetadata(jv::JV& changelog, const ChangelogReport& report) {
    jv::JV* metadata = changelog.setObject("metadata");
    metadata->setString("severity", changeLevelText(report.metadata().level));
    for (const MetadataFieldName& name : metadataFieldNames(report))
        metadata->setBoolean(name.key, true);
}

void describe(jv::JV& object, const OperationChange& operation) {
    object.setString("url", toValidUtf8(operation.path));
    object.setString("method", operation.method);
    setPlace(object, operation.level, operation.pos);
}

void describe(jv::JV& object, const ParameterChange& parameter) {
    object.setString("name", toValidUtf8(parameter.name));
    object.setString("location", parameter.location);
    object.setBoolean("required", parameter.isRequired);
    setPlace(object, parameter.level, parameter.pos);
}

void describe(jv::JV& object, const NamedChange& change) {
    object.setString("name", toValidUtf8(change.name));
    setPlace(object, change.level, change.pos);
}

void describe(jv::JV& object, const ModifiedOperation& operation);

template <typename T>
void setList(jv::JV& object, std::string_view key, const std::vector<T>& list) {
    jv::JV* array = object.setArray(key);
    for (const T& element : list)
        describe(*array->appendObject(), element);
}

template <typename T>
void setLists(jv::JV& object, std::string_view key, const ByAction<T>& lists) {
    jv::JV* member = object.setObject(key);
    setList(*member, "added", lists.added);
    setList(*member, "removed", lists.removed);
    setList(*member, "modified", lists.modified);
}

void describe(jv::JV& object, const ModifiedOperation& operation) {
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

} // namespace

void JSONStatusFormatter::format(const Report& report) {
    jv::JVDocument document;
    document.makeRoot(jv::Kind::Object)->setString("status", changeLevelText(report.level()));
    write(document, stream());
}

void JSONChangelogFormatter::format(const Report& report) {
    const auto& changelog = static_cast<const ChangelogReport&>(report);
    jv::JVDocument document;
    jv::JV* root = document.makeRoot(jv::Kind::Object);
    setMetadata(*root, changelog);
    setList(*root, "added", changelog.added());
    setList(*root, "removed", changelog.removed());
    setList(*root, "deprecated", changelog.deprecated());
    setList(*root, "modified", changelog.modified());
    write(document, stream());
}

void JSONDetailsFormatter::format(const Report& report) {
    jv::JVDocument document;
    jv::JV* root = document.makeRoot(jv::Kind::Array);
    for (const Change& change : static_cast<const DetailedReport&>(report).changes()) {
        jv::JV* object = root->appendObject();
        object->setString("target", nodeKindText(*change.node));
        object->setString("config_key", configKeyText(change.key));
        object->setString("key", toValidUtf8(change.name));
        object->setInteger("index", change.index);
        setPlace(*object, change.level, change.pos);
    }
    write(document, stream());
}

} // namespace specloom::openapi_diff
