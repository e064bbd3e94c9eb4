#include "openapi_diff/formatters/json.h"

#include "foundation/utf8.h"
#include "openapi_diff/formatters/changelog_value.h"
#include "openapi_diff/formatters/utils.h"
#include "reporting/json.h"

namespace specloom::openapi_diff {

void JSONStatusFormatter::write(const StatusReport& report) {
    jv::JVDocument document;
    document.makeRoot(jv::Kind::Object)->setString("status", changeLevelText(report.level()));
    reporting::writeJson(document, stream());
}

void JSONChangelogFormatter::write(const ChangelogReport& report) {
    jv::JVDocument document;
    describeChangelog(*document.makeRoot(jv::Kind::Object), report, toValidUtf8);
    reporting::writeJson(document, stream());
}

void JSONDetailsFormatter::write(const DetailedReport& report) {
    jv::JVDocument document;
    jv::JV* root = document.makeRoot(jv::Kind::Array);
    for (const Change& change : report.changes()) {
        jv::JV* object = root->appendObject();
        object->setString("target", nodeKindText(*change.node));
        object->setString("config_key", configKeyText(change.key));
        object->setString("key", toValidUtf8(change.name));
        object->setInteger("index", change.index);
        setChange(*object, change.level, change.pos);
    }
    reporting::writeJson(document, stream());
}

} // namespace specloom::openapi_diff
