#include "code_morph_astro/attributes.h"

#include "code_morph_astro/escapes.h"

namespace specloom::code_morph::astro {

std::string toArrayLiteral(std::span<const std::string> texts) {
    std::string result = "[";
    for (const std::string& text : texts) {
        if (result.size() > 1)
            result += ", ";
        appendAstroLiteral(text, result);
    }
    return result += ']';
}

std::string joinLiterals(std::span<const std::string> literals) {
    std::string result = "[";
    for (const std::string& literal : literals) {
        if (result.size() > 1)
            result += ", ";
        result += literal;
    }
    return result += ']';
}

ObjectLiteral& ObjectLiteral::text(std::string_view name, std::string_view value) {
    return literal(name, toAstroLiteral(value));
}

ObjectLiteral& ObjectLiteral::textIf(std::string_view name, std::optional<std::string_view> value) {
    return value ? text(name, *value) : *this;
}

ObjectLiteral& ObjectLiteral::literal(std::string_view name, std::string_view value) {
    if (members_.size() > 1)
        members_ += ", ";
    appendAstroLiteral(name, members_);
    (members_ += ": ") += value;
    return *this;
}

Attributes& Attributes::text(std::string_view name, std::string_view value) {
    begin(name);
    attributes_ += "={";
    appendAstroLiteral(value, attributes_);
    attributes_ += '}';
    return *this;
}

Attributes& Attributes::textIf(std::string_view name, std::optional<std::string_view> value) {
    return value ? text(name, *value) : *this;
}

Attributes& Attributes::flag(std::string_view name, bool isSet) {
    if (isSet)
        begin(name);
    return *this;
}

Attributes& Attributes::literal(std::string_view name, std::string_view value) {
    begin(name);
    ((attributes_ += "={") += value) += '}';
    return *this;
}

void Attributes::begin(std::string_view name) {
    (attributes_ += ' ') += name;
}

} // namespace specloom::code_morph::astro
