#include "jv_schema/embedded_schemas.h"

#include "jv/json_reader.h"
#include "jv_schema/schema_data.h"

#include <array> // std::array
#include <map>   // std::map

namespace specloom::jv::schema {

namespace {

struct Embedded {
    std::string_view uri;
    std::string_view file;
};

constexpr std::array embedded{
    Embedded{"http://json-schema.org/draft-04/schema", "draft-04.json"},
    Embedded{"http://json-schema.org/draft-06/schema", "draft-06.json"},
    Embedded{"http://json-schema.org/draft-07/schema", "draft-07.json"},
    Embedded{"https://json-schema.org/draft/2019-09/schema", "2019-09-schema.json"},
    Embedded{"https://json-schema.org/draft/2019-09/meta/applicator", "2019-09-meta-applicator.json"},
    Embedded{"https://json-schema.org/draft/2019-09/meta/content", "2019-09-meta-content.json"},
    Embedded{"https://json-schema.org/draft/2019-09/meta/core", "2019-09-meta-core.json"},
    Embedded{"https://json-schema.org/draft/2019-09/meta/format", "2019-09-meta-format.json"},
    Embedded{"https://json-schema.org/draft/2019-09/meta/meta-data", "2019-09-meta-meta-data.json"},
    Embedded{"https://json-schema.org/draft/2019-09/meta/validation", "2019-09-meta-validation.json"},
    Embedded{"https://json-schema.org/draft/2020-12/schema", "2020-12-schema.json"},
    Embedded{"https://json-schema.org/draft/2020-12/meta/applicator", "2020-12-meta-applicator.json"},
    Embedded{"https://json-schema.org/draft/2020-12/meta/content", "2020-12-meta-content.json"},
    Embedded{"https://json-schema.org/draft/2020-12/meta/core", "2020-12-meta-core.json"},
    Embedded{"https://json-schema.org/draft/2020-12/meta/format-annotation",
             "2020-12-meta-format-annotation.json"},
    Embedded{"https://json-schema.org/draft/2020-12/meta/format-assertion",
             "2020-12-meta-format-assertion.json"},
    Embedded{"https://json-schema.org/draft/2020-12/meta/meta-data", "2020-12-meta-meta-data.json"},
    Embedded{"https://json-schema.org/draft/2020-12/meta/unevaluated", "2020-12-meta-unevaluated.json"},
    Embedded{"https://json-schema.org/draft/2020-12/meta/validation", "2020-12-meta-validation.json"},
};

[[nodiscard]] std::shared_ptr<const JV> read(std::string_view file) {
    const std::shared_ptr<const JVDocument> document = parseJSON(schemaData(file));
    return {document, document->root()};
}

} // namespace

std::shared_ptr<const JV> embeddedSchema(std::string_view uri) {
    static std::map<std::string_view, std::shared_ptr<const JV>> known;
    for (const Embedded& entry : embedded) {
        if (entry.uri != uri)
            continue;
        std::shared_ptr<const JV>& schema = known[entry.file];
        if (schema == nullptr)
            schema = read(entry.file);
        return schema;
    }
    return nullptr;
}

} // namespace specloom::jv::schema
