#include "jv_schema/messages.h"

#include "foundation/utf8.h"
#include "number/exact_numbers.h"

namespace specloom::jv::schema {

namespace {

constexpr std::size_t longestQuotation = 60; // bytes

[[nodiscard]] std::string clipped(std::string_view text) {
    if (text.size() <= longestQuotation)
        return std::string(text);
    return std::string(text.substr(0, wholeCodePoints(text, longestQuotation))) + "...";
}

} // namespace

std::string quoted(std::string_view text) {
    return "'" + clipped(text) + "'";
}

std::string described(const JV& value) {
    switch (value.kind()) {
    case Kind::Null:
        return "null";
    case Kind::Boolean:
        return value.boolean() ? "true" : "false";
    case Kind::Number:
        return clipped(value.number().toString());
    case Kind::String:
        return quoted(value.text());
    case Kind::Array:
        return "an array";
    case Kind::Object:
        break;
    }
    return "an object";
}

std::string counted(std::size_t count, std::string_view one, std::string_view many) {
    return std::to_string(count).append(1, ' ').append(count == 1 ? one : many);
}

std::string alternatives(std::span<const std::string_view> names) {
    std::string text;
    for (std::size_t i = 0; i < names.size(); ++i) {
        if (i != 0)
            text += i + 1 == names.size() ? " or " : ", ";
        text += names[i];
    }
    return text;
}

std::string_view typeOf(const JV& value) {
    return value.isNumber() && number::isIntegral(value.number()) ? "integer" : typeName(value.kind());
}

} // namespace specloom::jv::schema
