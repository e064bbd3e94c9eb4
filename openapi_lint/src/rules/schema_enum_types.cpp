#include "openapi_lint/rules/schema_enum_types.h"

#include "foundation/unreachable.h"
#include "openapi/schema.h"
#include "openapi_lint/rule_handler.h"

#include <algorithm> // std::all_of

namespace specloom::openapi_lint {
namespace {

using openapi::SchemaType;

constexpr const char* wrongType = "Enum value type is not in the schema type";

bool isOfType(const jv::JV& value, const openapi::SchemaTypes& types) {
    switch (value.kind()) {
    case jv::Kind::Null:
        return types.has(SchemaType::Null);
    case jv::Kind::Boolean:
        return types.has(SchemaType::Boolean);
    case jv::Kind::Number:
        return types.has(SchemaType::Number) || (types.has(SchemaType::Integer) && value.isInteger());
    case jv::Kind::String:
        return types.has(SchemaType::String);
    case jv::Kind::Array:
        return types.has(SchemaType::Array);
    case jv::Kind::Object:
        return types.has(SchemaType::Object);
    }
    // The place is part of a published text, which outlives the files that it names.
    unreachable(nullptr, "openapi_lint/src/rules/schema_enum_types", 58);
}

/// Whether a schema names a type itself: `nullable` alone, which the tree keeps as a type, names none.
bool declaresType(const openapi::Schema& schema) {
    const jv::JV* source = schema.source();
    return !schema.types().empty() && (source == nullptr || !source->isObject() || source->has("type"));
}

class SchemaEnumTypesHandler final : public RuleHandler {
  public:
    using RuleHandler::RuleHandler;
    using RuleHandler::visit;
    void visit(const openapi::Schema& schema) override {
        const auto& values = schema.enumeration();
        if (values.empty() || !declaresType(schema) || isDisabled(schema))
            return;
        if (!std::all_of(values.begin(), values.end(),
                         [&](const openapi::Value& value) { return isOfType(*value, schema.types()); }))
            report(wrongType, schema);
    }
};

} // namespace

void SchemaEnumTypes::check(LintContext& context) {
    SchemaEnumTypesHandler handler(*this, context);
    context.walk(handler);
}

} // namespace specloom::openapi_lint
