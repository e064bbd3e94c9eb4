#include "openapi_generator_server_spring/schema_visitor_handler.h"

#include "code_morph_java/spring/names.h"
#include "foundation/printable.h"
#include "openapi_generator_server_spring/constraints.h"
#include "openapi_generator_server_spring/object_schema.h"

#include <iostream> // std::cout
#include <optional> // std::optional
#include <utility>  // std::move, std::pair

#include <fmt/core.h>

namespace specloom::openapi_generator::server_spring {
namespace {

using openapi::Schema;
using openapi::SchemaType;

/// Lists within lists that are written as such. Compilers recurse over them.
constexpr std::size_t deepestList = 100;

/// A plan for a schema below another.
ClassPlan planBehind(const ClassPlan& owner, std::string_view text) {
    return {owner.package, code_morph::java::joinClassName(owner.name, text), owner.isSeenEverywhere};
}

/// Whether it is true or false, which is no schema that a type could come of.
bool isBoolean(const openapi::Node* node) {
    const auto* schema = openapi::resolveTo<Schema>(node);
    return schema != nullptr && schema->types().empty() &&
           (schema->isAlwaysTrue() || schema->isAlwaysFalse());
}

/// Whether the type is all there is, so that no name is asked for; most properties are so.
bool isPlainScalar(const Schema& schema) {
    const std::optional<SchemaType> type = singleType(schema);
    return type && *type != SchemaType::Object && *type != SchemaType::Array && schema.items() == nullptr &&
           schema.additionalProperties() == nullptr && schema.oneOf().empty() && schema.anyOf().empty();
}

} // namespace

void SchemaVisitorHandler::reserveComponents() {
    for (const auto& entry : context_->document->components().schemas())
        if (entry.value->type() == openapi::NodeType::Schema &&
            isObject(static_cast<const Schema&>(*entry.value)))
            componentNames_.emplace(entry.value.get(),
                                    classNames_.take(sharedDtoName(context_->configuration, entry.name())));
}

void SchemaVisitorHandler::visit(const openapi::Parameter& parameter) {
    planElement(parameter, schemaNodeOf(parameter), paramDtoName(elementNames(), parameter));
}

void SchemaVisitorHandler::visit(const openapi::RequestBody& body) {
    for (const auto& entry : body.content()) {
        const auto& mediaType = static_cast<const openapi::MediaType&>(*entry.value);
        planElement(body, mediaType.schemaNode(), requestDtoName(elementNames(), body, mediaType));
    }
}

void SchemaVisitorHandler::visit(const openapi::Responses& responses) {
    for (const auto& entry : responses)
        if (const openapi::Node* response = entry.value->resolve())
            statuses_.insert_or_assign(response, entry.name());
}

void SchemaVisitorHandler::visit(const openapi::Response& response) {
    for (const auto& entry : response.content()) {
        const auto& mediaType = static_cast<const openapi::MediaType&>(*entry.value);
        planElement(response, mediaType.schemaNode(),
                    responseDtoName(elementNames(), response, statuses_[&response], mediaType));
    }
}

void SchemaVisitorHandler::planElement(const openapi::Node& element, const openapi::Node* schema,
                                       ClassPlan plan) {
    plan.isSeenEverywhere =
        plan.isSeenEverywhere || sharedNodes_.contains(operation_) || sharedNodes_.contains(element.parent());
    planClass(schema, plan);
}

void SchemaVisitorHandler::planClass(const openapi::Node* schema, const ClassPlan& plan) {
    if (schema != nullptr && schema->type() == openapi::NodeType::Schema)
        plans_.try_emplace(schema, plan);
}

void SchemaVisitorHandler::visit(const Schema& schema) {
    ClassPlan plan;
    if (const auto planned = plans_.extract(&schema))
        plan = std::move(planned.mapped());
    else if (const auto key = context_->document->components().schemas().nameOf(&schema))
        plan = sharedDtoName(context_->configuration, *key);
    else
        return;
    const auto [found, isNew] = context_->schemaTypes.try_emplace(&schema);
    if (!isNew)
        return;
    SchemaTypeInfo& info = found->second;
    info.schema = &schema;
    info.annotations = constraintsOf(schema, *context_);
    setType(info, plan);
    planBelow(schema, plan);
}

void SchemaVisitorHandler::setType(SchemaTypeInfo& info, ClassPlan& plan) {
    const Schema& schema = *info.schema;
    if (hasSeveralTypes(schema)) {
        context_->addIssue(
            IssueSeverity::Warning,
            formatMessage("Schemas with multiple types are not currently supported ({})", plan.name), schema);
        return;
    }
    if (isObject(schema)) {
        setClass(info, plan);
        return;
    }
    switch (singleType(schema).value_or(SchemaType::Null)) {
    case SchemaType::String:
        info.typeName = "String";
        return;
    case SchemaType::Boolean:
        info.typeName = "Boolean";
        return;
    case SchemaType::Integer:
        info.typeName = "Integer";
        return;
    case SchemaType::Number:
        info.typeName = "Double";
        return;
    case SchemaType::Array:
        info.containerClass = "java.util.List";
        lists_.push_back({&info, plan.name});
        return;
    case SchemaType::Object: // of a choice
    case SchemaType::Null:
        context_->addIssue(
            IssueSeverity::Warning,
            formatMessage(
                "Schemas with non-object type are not currently supported ({}). Falling back to Object",
                plan.name),
            schema);
    }
}

void SchemaVisitorHandler::setClass(SchemaTypeInfo& info, ClassPlan& plan) {
    const auto component = componentNames_.find(info.schema);
    info.typeName = component != componentNames_.end() ? component->second : classNames_.take(plan);
    plan.name = code_morph::java::classOf(info.typeName);
    info.record = context_->recordCycles.addRecord();
    addClass_(*info.schema, info.typeName);
}

void SchemaVisitorHandler::planBelow(const Schema& schema, const ClassPlan& owner) {
    if (context_->schemaTypes[&schema].record != SchemaTypeInfo::noRecord)
        planProperties(schema, owner);
    for (const auto& [keyword, text] : {std::pair(openapi::SchemaKeyword::Items, "Item"),
                                        std::pair(openapi::SchemaKeyword::AdditionalProperties, "Value")})
        if (const openapi::Node* node = schema.node(keyword); !isBoolean(node))
            planClass(node, planBehind(owner, text));
    planMembers(schema.oneOf(), owner);
    planMembers(schema.anyOf(), owner);
}

void SchemaVisitorHandler::planMembers(const openapi::NodeList& members, const ClassPlan& owner) {
    for (std::size_t i = 0; i < members.size(); ++i)
        planClass(members[i].get(), planBehind(owner, std::to_string(i + 1)));
}

/// Also those of inline members of allOf, whose properties are the owner's; that is not so for members behind
/// a reference, which have classes of their own.
void SchemaVisitorHandler::planProperties(const Schema& schema, const ClassPlan& owner) {
    std::vector<const Schema*> inlineMembers = {&schema};
    while (!inlineMembers.empty()) {
        const Schema& member = *inlineMembers.back();
        inlineMembers.pop_back();
        for (const auto& entry : member.properties())
            if (entry.value->type() == openapi::NodeType::Schema)
                planClass(entry.value.get(), isPlainScalar(static_cast<const Schema&>(*entry.value))
                                                 ? ClassPlan()
                                                 : planBehind(owner, entry.name()));
        for (std::size_t i = member.allOf().size(); i > 0; --i)
            if (member.allOf()[i - 1]->type() == openapi::NodeType::Schema)
                inlineMembers.push_back(static_cast<const Schema*>(member.allOf()[i - 1].get()));
    }
}

void SchemaVisitorHandler::finish() {
    std::vector<const List*> unresolved;
    for (const List& list : lists_) {
        resolveList(*list.info);
        if (list.info->containerText.empty()) {
            list.info->containerText = "List<Object>";
            unresolved.push_back(&list);
        }
    }
    if (!unresolved.empty()) {
        std::cout << fmt::format("Some of array schemas were not resolved ({}).\n", unresolved.size());
        for (const List* list : unresolved)
            std::cout << fmt::format("  - {}\n", printable(list->name));
    }
    lists_.clear();
}

/// Leaves the text empty when the lists within lists do not end.
void SchemaVisitorHandler::resolveList(SchemaTypeInfo& list) const {
    const Schema* schema = list.schema;
    std::string begin;
    std::string end;
    for (std::size_t depth = 0; depth < deepestList; ++depth) {
        begin += "List<";
        end += '>';
        schema = schema->items();
        if (schema != nullptr && context_->typeOf(*schema).isList())
            continue;
        list.typeName = schema == nullptr ? "Object" : context_->typeOf(*schema).typeName;
        list.containerText = begin.append(code_morph::java::classOf(list.typeName)) += end;
        return;
    }
}

} // namespace specloom::openapi_generator::server_spring
