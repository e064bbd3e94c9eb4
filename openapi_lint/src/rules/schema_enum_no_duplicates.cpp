#include "openapi_lint/rules/schema_enum_no_duplicates.h"

#include "jv/equal_values.h"
#include "openapi/node_visitor.h"
#include "openapi/schema.h"
#include "openapi_lint/rule_handler.h"

#include <span>          // std::span
#include <unordered_set> // std::unordered_set
#include <vector>        // std::vector

namespace specloom::openapi_lint {
namespace {

using openapi::Schema;
using openapi::Value;

constexpr const char* duplicateEnumValue = "Duplicate enum value";

/// The values without those that equal one before them.
std::vector<const jv::JV*> distinctValues(std::span<const jv::JV* const> values) {
    std::unordered_set<const jv::JV*, jv::ValueHash, jv::ValueEqual> seen(values.size());
    std::vector<const jv::JV*> distinct;
    for (const jv::JV* value : values)
        if (seen.insert(value).second)
            distinct.push_back(value);
    return distinct;
}

std::vector<const jv::JV*> distinctValues(const std::vector<Value>& values) {
    std::vector<const jv::JV*> pointers;
    pointers.reserve(values.size());
    for (const Value& value : values)
        pointers.push_back(value.get());
    return distinctValues(std::span<const jv::JV* const>(pointers));
}

/// The list that the values of the schema were read from; null for values that were made in code.
const jv::JV* sourceOfValues(const Schema& schema) {
    const jv::JV* source = schema.source();
    const jv::JV* list = source != nullptr && source->isObject() ? source->get("enum") : nullptr;
    return list != nullptr && list->isArray() ? list : nullptr;
}

std::size_t repeatsIn(const Schema& schema) {
    const std::vector<Value>& values = schema.enumeration();
    return values.size() < 2 ? 0 : values.size() - distinctValues(values).size();
}

class SchemaEnumNoDuplicatesHandler final : public RuleHandler {
  public:
    using RuleHandler::RuleHandler;
    using RuleHandler::visit;
    void visit(const Schema& schema) override {
        if (schema.enumeration().size() < 2 || isDisabled(schema))
            return;
        for (std::size_t repeats = repeatsIn(schema); repeats > 0; --repeats)
            report(duplicateEnumValue, schema);
    }
};

/// The values themselves, copied: those of the schema go when it gets others.
std::vector<Value> copies(const std::vector<const jv::JV*>& values) {
    std::vector<Value> result;
    result.reserve(values.size());
    for (const jv::JV* value : values)
        result.emplace_back(*value);
    return result;
}

} // namespace

void SchemaEnumNoDuplicates::check(LintContext& context) {
    SchemaEnumNoDuplicatesHandler handler(*this, context);
    context.walk(handler);
}

void SchemaEnumNoDuplicates::fix(LintContext& context) {
    openapi::changeEach<Schema>(context.root(), [&](Schema& schema) {
        if (repeatsIn(schema) == 0 || context.isDisabled(*this, schema))
            return;
        if (const jv::JV* list = sourceOfValues(schema))
            context.edits().arrangeElements(*list, distinctValues(list->elements()));
        schema.setEnumeration(copies(distinctValues(schema.enumeration())));
    });
}

} // namespace specloom::openapi_lint
