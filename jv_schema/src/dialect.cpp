#include "jv_schema/dialect.h"

#include "jv_schema/keywords/conditional.h"
#include "jv_schema/keywords/constants.h"
#include "jv_schema/keywords/contains.h"
#include "jv_schema/keywords/dependencies.h"
#include "jv_schema/keywords/format.h"
#include "jv_schema/keywords/items.h"
#include "jv_schema/keywords/limits.h"
#include "jv_schema/keywords/logic.h"
#include "jv_schema/keywords/multiple_of.h"
#include "jv_schema/keywords/pattern_keyword.h"
#include "jv_schema/keywords/properties.h"
#include "jv_schema/keywords/property_names.h"
#include "jv_schema/keywords/references.h"
#include "jv_schema/keywords/required.h"
#include "jv_schema/keywords/sizes.h"
#include "jv_schema/keywords/type.h"
#include "jv_schema/keywords/unevaluated.h"
#include "jv_schema/keywords/unique_items.h"
#include "jv_schema/node.h"

#include <array> // std::array

namespace specloom::jv::schema {

namespace {

using namespace drafts;

using enum Vocabulary;

// `dependencies` has left the drafts with 2019-09, but their meta-schemas still know it and documents use it.
constexpr std::array keywordTable{
    KeywordEntry{"definitions", all, Core, Holds::SchemaMap, nullptr},
    KeywordEntry{"$defs", from2019, Core, Holds::SchemaMap, nullptr},
    KeywordEntry{"type", all, Validation, Holds::Nothing, makeType},
    KeywordEntry{"const", from6, Validation, Holds::Nothing, makeConst},
    KeywordEntry{"enum", all, Validation, Holds::Nothing, makeEnum},
    KeywordEntry{"required", all, Validation, Holds::Nothing, makeRequired},
    KeywordEntry{"dependentRequired", from2019, Validation, Holds::Nothing, makeDependentRequired},
    KeywordEntry{"minProperties", all, Validation, Holds::Nothing, makeMinSize},
    KeywordEntry{"maxProperties", all, Validation, Holds::Nothing, makeMaxSize},
    KeywordEntry{"minItems", all, Validation, Holds::Nothing, makeMinSize},
    KeywordEntry{"maxItems", all, Validation, Holds::Nothing, makeMaxSize},
    KeywordEntry{"minLength", all, Validation, Holds::Nothing, makeMinSize},
    KeywordEntry{"maxLength", all, Validation, Holds::Nothing, makeMaxSize},
    KeywordEntry{"minimum", all, Validation, Holds::Nothing, makeMinimum},
    KeywordEntry{"maximum", all, Validation, Holds::Nothing, makeMaximum},
    KeywordEntry{"exclusiveMinimum", from6, Validation, Holds::Nothing, makeMinimum},
    KeywordEntry{"exclusiveMaximum", from6, Validation, Holds::Nothing, makeMaximum},
    KeywordEntry{"multipleOf", all, Validation, Holds::Nothing, makeMultipleOf},
    KeywordEntry{"pattern", all, Validation, Holds::Nothing, makePattern},
    KeywordEntry{"format", all, Format, Holds::Nothing, makeFormat},
    KeywordEntry{"contentSchema", from2019, Content, Holds::Schema, nullptr},
    KeywordEntry{"$ref", all, Core, Holds::Nothing, makeRef},
    KeywordEntry{"$dynamicRef", in2020, Core, Holds::Nothing, makeDynamicRef},
    KeywordEntry{"$recursiveRef", in2019, Core, Holds::Nothing, makeDynamicRef},
    KeywordEntry{"properties", all, Applicator, Holds::SchemaMap, makeProperties},
    KeywordEntry{"patternProperties", all, Applicator, Holds::SchemaMap, makeProperties},
    KeywordEntry{"additionalProperties", all, Applicator, Holds::Schema, makeProperties},
    KeywordEntry{"propertyNames", from6, Applicator, Holds::Schema, makePropertyNames},
    KeywordEntry{"dependencies", all, Applicator, Holds::Dependencies, makeDependencies},
    KeywordEntry{"dependentSchemas", from2019, Applicator, Holds::SchemaMap, makeDependencies},
    KeywordEntry{"prefixItems", in2020, Applicator, Holds::Schemas, makeItems},
    KeywordEntry{"items", in2020, Applicator, Holds::Schema, makeItems},
    KeywordEntry{"items", upTo2019, Applicator, Holds::SchemaOrSchemas, makeItems},
    KeywordEntry{"additionalItems", upTo2019, Applicator, Holds::Schema, makeItems},
    KeywordEntry{"contains", from6, Applicator, Holds::Schema, makeContains},
    KeywordEntry{"allOf", all, Applicator, Holds::Schemas, makeAllOf},
    KeywordEntry{"anyOf", all, Applicator, Holds::Schemas, makeAnyOf},
    KeywordEntry{"oneOf", all, Applicator, Holds::Schemas, makeOneOf},
    KeywordEntry{"not", all, Applicator, Holds::Schema, makeNot},
    KeywordEntry{"if", from7, Applicator, Holds::Schema, makeConditional},
    KeywordEntry{"then", from7, Applicator, Holds::Schema, nullptr},
    KeywordEntry{"else", from7, Applicator, Holds::Schema, nullptr},
    KeywordEntry{"uniqueItems", all, Validation, Holds::Nothing, makeUniqueItems},
    KeywordEntry{"unevaluatedItems", from2019, Unevaluated, Holds::Schema, makeUnevaluatedItems},
    KeywordEntry{"unevaluatedProperties", from2019, Unevaluated, Holds::Schema, makeUnevaluatedProperties},
};

struct VocabularyUri {
    std::string_view uri;
    Draft draft;
    VocabularySet vocabularies;
};

constexpr std::array vocabularyTable{
    VocabularyUri{"https://json-schema.org/draft/2019-09/vocab/core", Draft::D2019, bit(Core)},
    VocabularyUri{"https://json-schema.org/draft/2019-09/vocab/applicator", Draft::D2019,
                  bit(Applicator) | bit(Unevaluated)},
    VocabularyUri{"https://json-schema.org/draft/2019-09/vocab/validation", Draft::D2019, bit(Validation)},
    VocabularyUri{"https://json-schema.org/draft/2019-09/vocab/meta-data", Draft::D2019, bit(MetaData)},
    VocabularyUri{"https://json-schema.org/draft/2019-09/vocab/format", Draft::D2019, bit(Format)},
    VocabularyUri{"https://json-schema.org/draft/2019-09/vocab/content", Draft::D2019, bit(Content)},
    VocabularyUri{"https://json-schema.org/draft/2020-12/vocab/core", Draft::D2020, bit(Core)},
    VocabularyUri{"https://json-schema.org/draft/2020-12/vocab/applicator", Draft::D2020, bit(Applicator)},
    VocabularyUri{"https://json-schema.org/draft/2020-12/vocab/unevaluated", Draft::D2020, bit(Unevaluated)},
    VocabularyUri{"https://json-schema.org/draft/2020-12/vocab/validation", Draft::D2020, bit(Validation)},
    VocabularyUri{"https://json-schema.org/draft/2020-12/vocab/meta-data", Draft::D2020, bit(MetaData)},
    VocabularyUri{"https://json-schema.org/draft/2020-12/vocab/format-annotation", Draft::D2020, bit(Format)},
    VocabularyUri{"https://json-schema.org/draft/2020-12/vocab/format-assertion", Draft::D2020,
                  bit(Format) | bit(FormatAssertion)},
    VocabularyUri{"https://json-schema.org/draft/2020-12/vocab/content", Draft::D2020, bit(Content)},
};

struct MetaSchemaUri {
    std::string_view uri;
    Draft draft;
};

constexpr std::array metaSchemaTable{
    MetaSchemaUri{"http://json-schema.org/draft-04/schema", Draft::D4},
    MetaSchemaUri{"http://json-schema.org/draft-06/schema", Draft::D6},
    MetaSchemaUri{"http://json-schema.org/draft-07/schema", Draft::D7},
    MetaSchemaUri{"https://json-schema.org/draft/2019-09/schema", Draft::D2019},
    MetaSchemaUri{"https://json-schema.org/draft/2020-12/schema", Draft::D2020},
};

constexpr VocabularySet standardVocabularies =
    static_cast<VocabularySet>(0xff & ~bit(Vocabulary::FormatAssertion));

} // namespace

Dialect::Dialect(Draft draft, VocabularySet vocabularies) : draft_(draft), vocabularies_(vocabularies) {
    for (const KeywordEntry& entry : keywordTable) {
        if ((entry.drafts & bit(draft)) != 0 && has(entry.vocabulary))
            keywords_.emplace(entry.name, &entry);
    }
}

const KeywordEntry* Dialect::find(std::string_view keyword) const {
    const auto found = keywords_.find(keyword);
    return found == keywords_.end() ? nullptr : found->second;
}

const Dialect& Dialect::of(Draft draft) {
    static const std::array dialects{
        Dialect(Draft::D4, standardVocabularies), Dialect(Draft::D6, standardVocabularies),
        Dialect(Draft::D7, standardVocabularies), Dialect(Draft::D2019, standardVocabularies),
        Dialect(Draft::D2020, standardVocabularies)};
    std::size_t index = 0;
    while (dialects[index].draft() != draft)
        ++index;
    return dialects[index];
}

const Dialect* Dialect::byMetaSchema(std::string_view uri) {
    for (const MetaSchemaUri& entry : metaSchemaTable) {
        if (entry.uri == uri)
            return &of(entry.draft);
    }
    return nullptr;
}

std::optional<VocabularySet> Dialect::vocabulary(Draft draft, std::string_view uri) {
    for (const VocabularyUri& entry : vocabularyTable) {
        if (entry.draft == draft && entry.uri == uri)
            return entry.vocabularies;
    }
    return std::nullopt;
}

} // namespace specloom::jv::schema
