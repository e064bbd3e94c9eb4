#include "openapi_lint/rules/schema_enum_no_duplicates.h"

#include <unordered_set> // std::unordered_set
#include <vector>        // std::vector

#include "jv/equal_values.h"
#include "openapi/schema.h"
#include "openapi_lint/rule_handler.h"

namespace specloom::openapi_lint {
namespace {

using openapi::Schema;
using openapi::Value;

constexpr const char* duplicateEnumValue = "Duplicate enum value";

/// The values without those that equal one before them.
std::vector<const jv::JV*> distinctValues(const std::vector<Value>& values) {
    std::unordered_set<const jv::JV*, jv::ValueHash, jv::ValueEqual> seen(values.size());
    std::vector<const jv::JV*> distinct;
    for (const Value& value : values)
        if (seen.insert(value.get()).second)
            distinct.push_back(value.get());
    return distinct;
}

/// Collects the schemas with repeats, in their order.
class SchemaEnumNoDuplicatesHandler final : public RuleHandler {
  public:
    using RuleHandler::RuleHandler;
    using RuleHandler::visit;
    void visit(const Schema& schema) override {
        const std::vector<Value>& values = schema.enumeration();
        if (values.size() < 2 || isDisabled(schema))
            return;
        const std::size_t repeats = values.size() - distinctValues(values).size();
        if (repeats > 0)
            found.push_back({&schema, repeats});
    }

    struct Found {
        const Schema* schema;
        std::size_t repeats;
    };
    std::vector<Found> found;
};

/// The values themselves, copied: those of the schema go when it gets others.
std::vector<Value> copies(const std::vector<const jv::JV*>& values) {
    std::vector<Value> result;
    for (const jv::JV* value : values)
        result.emplace_back(*value);
    return result;
}

} // namespace

void SchemaEnumNoDuplicates::check(LintContext& context) {
    SchemaEnumNoDuplicatesHandler handler(*this, context);
    context.walk(handler);
    for (const auto& [schema, repeats] : handler.found)
        for (std::size_t i = 0; i < repeats; ++i)
            report(context, duplicateEnumValue, *schema);
}

void SchemaEnumNoDuplicates::fix(LintContext& context) {
    SchemaEnumNoDuplicatesHandler handler(*this, context);
    context.walk(handler);
    // Walks show nodes that are not to be changed; these belong to the context's tree, which is.
    for (const auto& [schema, repeats] : handler.found)
        const_cast<Schema*>(schema)->setEnumeration(copies(distinctValues(schema->enumeration())));
}

} // namespace specloom::openapi_lint
