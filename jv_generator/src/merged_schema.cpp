#include "jv_generator/merged_schema.h"

#include "foundation/utf8.h"
#include "number/exact_numbers.h"

#include <algorithm> // std::max, std::min, std::ranges::any_of, std::ranges::sort
#include <utility>   // std::move

namespace specloom::jv_generator {

namespace {

using jv::JV;

[[nodiscard]] bool holds(const std::vector<const JV*>& values, const JV& value) {
    return std::ranges::any_of(values, [&](const JV* other) { return other->equals(value); });
}

template <typename T>
void append(std::vector<T>& all, const std::vector<T>& more) {
    all.insert(all.end(), more.begin(), more.end());
}

/// The schemas that hold where `from` does, and belong to it: what its `unevaluated...` looks at.
[[nodiscard]] std::vector<SchemaId> reachOf(SchemaGraph& graph, SchemaId from, const Closure& closure) {
    Closure reach;
    reach.add(from);
    for (std::size_t i = 0; i < reach.schemas.size(); ++i) {
        const SchemaNode& node = graph.node(reach.schemas[i]);
        const auto follow = [&](SchemaId id) {
            if (id != noSchema && closure.has(id))
                reach.add(id);
        };
        follow(node.reference);
        std::ranges::for_each(node.allOf, follow);
        std::ranges::for_each(node.oneOf, follow);
        for (const std::vector<SchemaId>& alternatives : node.anyOf)
            std::ranges::for_each(alternatives, follow);
    }
    return std::move(reach.schemas);
}

[[nodiscard]] bool isAbove(const number::Number& value, const Limit& limit) {
    const int order = number::compareExactly(value, limit.value).value_or(0);
    return order > 0 || (order == 0 && !limit.isExclusive);
}

[[nodiscard]] bool isBelow(const number::Number& value, const Limit& limit) {
    const int order = number::compareExactly(value, limit.value).value_or(0);
    return order < 0 || (order == 0 && !limit.isExclusive);
}

[[nodiscard]] bool divides(const number::Number& divisor, const number::Number& value) {
    const std::optional<number::Divisor> compiled = number::Divisor::of(divisor);
    return compiled && compiled->divides(value);
}

/// Big numbers cannot be written as JSON, at whatever depth they stand.
[[nodiscard]] bool holdsBigNumber(const JV& value) {
    std::vector<const JV*> open{&value};
    while (!open.empty()) {
        const JV& next = *open.back();
        open.pop_back();
        if (next.isNumber() && next.number().kind() == number::NumberKind::Big)
            return true;
        if (next.isArray())
            open.insert(open.end(), next.elements().begin(), next.elements().end());
        if (!next.isObject())
            continue;
        for (const jv::Member member : next.members())
            open.push_back(member.value);
    }
    return false;
}

} // namespace

MergedSchema::MergedSchema(SchemaGraph& graph, const Closure& closure) {
    for (const SchemaId id : closure.schemas) {
        const SchemaNode& node = graph.node(id);
        nodes.push_back(&node);
        kinds &= node.kinds;
        hints |= node.hints;
        if (place == nullptr)
            place = node.source;
        if (node.hasEnumeration && !hasEnumeration)
            candidates = node.enumeration;
        else if (node.hasEnumeration)
            std::erase_if(candidates, [&](const JV* value) { return !holds(node.enumeration, *value); });
        hasEnumeration |= node.hasEnumeration;
        append(excluded, node.excluded);
        append(lower, node.lower);
        append(upper, node.upper);
        append(divisors, node.divisors);
        append(nonDivisors, node.nonDivisors);
        minLength = std::max(minLength, node.minLength);
        maxLength = std::min(maxLength, node.maxLength);
        if (node.hasPattern)
            patterns.push_back(node.pattern);
        if (node.hasOtherThanPattern)
            otherThanPatterns.push_back(node.otherThanPattern);
        addFormats(node);
        if (!node.encoding.empty())
            encoding = node.encoding;
        minItems = std::max(minItems, node.minItems);
        maxItems = std::min(maxItems, node.maxItems);
        uniqueItems |= node.uniqueItems;
        duplicateItems |= node.duplicateItems;
        if (node.contains != noSchema && (node.minContains > 0 || node.maxContains != UINT64_MAX))
            containing.push_back({node.contains, node.minContains, node.maxContains});
        minProperties = std::max(minProperties, node.minProperties);
        maxProperties = std::min(maxProperties, node.maxProperties);
        append(required, node.required);
        if (node.unevaluatedItems != noSchema)
            unevaluatedItems.push_back({node.unevaluatedItems, reachOf(graph, id, closure)});
        if (node.unevaluatedProperties != noSchema)
            unevaluatedProperties.push_back({node.unevaluatedProperties, reachOf(graph, id, closure)});
    }
    std::ranges::sort(required);
    required.erase(std::unique(required.begin(), required.end()), required.end());
    std::erase_if(candidates, [&](const JV* value) { return !admits(graph, *value); });
}

/// A format that nothing checks is one that every text has.
void MergedSchema::addFormats(const SchemaNode& node) {
    if (!node.format.empty()) {
        formats.push_back(node.format);
        if (const TextCheck check = textCheckOf(node.format))
            checks.push_back(check);
    }
    if (node.otherThanFormat.empty())
        return;
    if (const TextCheck check = textCheckOf(node.otherThanFormat))
        otherChecks.push_back(check);
    else
        kinds = static_cast<ValueKinds>(kinds & ~value_kind::string);
}

bool MergedSchema::admits(SchemaGraph& graph, const JV& value) const {
    if (holdsBigNumber(value))
        return false;
    if ((kindOf(value) & kinds) == 0 || holds(excluded, value))
        return false;
    if (value.isString())
        return admitsText(graph, value.text());
    return !value.isNumber() || admitsNumber(value.number());
}

bool MergedSchema::admitsNumber(const number::Number& number) const {
    const ValueKinds kind = number::isIntegral(number) ? value_kind::integer : value_kind::fraction;
    return (kind & kinds) != 0 && (excluded.empty() || !holds(excluded, JV(number))) &&
           std::ranges::all_of(lower, [&](const Limit& limit) { return isAbove(number, limit); }) &&
           std::ranges::all_of(upper, [&](const Limit& limit) { return isBelow(number, limit); }) &&
           std::ranges::all_of(divisors, [&](const auto& divisor) { return divides(divisor, number); }) &&
           std::ranges::none_of(nonDivisors, [&](const auto& divisor) { return divides(divisor, number); });
}

bool MergedSchema::admitsText(SchemaGraph& graph, std::string_view text) const {
    if (minLength > 0 || maxLength != UINT64_MAX) {
        const std::uint64_t length = columnsOf(text);
        if (length < minLength || length > maxLength)
            return false;
    }
    const auto isMatched = [&](std::string_view pattern) { return graph.matches(pattern, text); };
    const auto isPassed = [&](TextCheck check) { return check(text); };
    return (excluded.empty() || !holds(excluded, JV(text))) && std::ranges::all_of(patterns, isMatched) &&
           std::ranges::none_of(otherThanPatterns, isMatched) && std::ranges::all_of(checks, isPassed) &&
           std::ranges::none_of(otherChecks, isPassed);
}

bool Admission::admits(const JV& value) const {
    const auto isValue = [&](const JV* other) { return other->equals(value); };
    return !isNever_ && schema_.admits(*graph_, value) &&
           (!schema_.hasEnumeration || std::ranges::any_of(schema_.candidates, isValue));
}

} // namespace specloom::jv_generator
