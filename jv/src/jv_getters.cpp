// The typed getters: one place for their messages and their one shape.

#include "foundation/message.h"
#include "jv/jv.h"
#include "jv/jv_pointer.h"

#include <charconv>  // std::from_chars
#include <limits>    // std::numeric_limits
#include <stdexcept> // std::invalid_argument

namespace specloom::jv {

namespace {

using NameMessage = MessageFormat<std::string_view>;

constexpr const char* missingProperty = "Required property '{}' is missing.";
constexpr const char* objectExpected = "An object value is expected for '{}'.";
constexpr const char* arrayExpected = "An array value is expected for '{}'.";
constexpr const char* booleanExpected = "A boolean value is expected for '{}'.";
constexpr const char* integerExpected = "An integer value is expected for '{}'.";
constexpr const char* numericExpected = "A numeric value is expected for '{}'.";
constexpr const char* stringExpected = "A string value is expected for '{}'.";

[[nodiscard]] const JV* checked(const JV& object, const JV* value, bool fits, NameMessage message,
                                std::string_view name) {
    if (value != nullptr && !fits)
        throw JVError(formatMessage(message, name), &object);
    return value;
}

[[nodiscard]] const JV* ofKind(const JV& object, const JV* value, Kind kind, NameMessage message,
                               std::string_view name) {
    return checked(object, value, value != nullptr && value->kind() == kind, message, name);
}

} // namespace

const JV* JV::getRequired(std::string_view name) const {
    const JV* value = get(name);
    if (value == nullptr)
        throw JVError(formatMessage(missingProperty, name), this);
    return value;
}

const JV* JV::getRequiredObject(std::string_view name) const {
    return ofKind(*this, getRequired(name), Kind::Object, objectExpected, name);
}

const JV* JV::getRequiredBoolean(std::string_view name) const {
    return ofKind(*this, getRequired(name), Kind::Boolean, booleanExpected, name);
}

const JV* JV::getRequiredString(std::string_view name) const {
    return ofKind(*this, getRequired(name), Kind::String, stringExpected, name);
}

const JV* JV::getArray(std::string_view name) const {
    return ofKind(*this, get(name), Kind::Array, arrayExpected, name);
}

const JV* JV::getBoolean(std::string_view name) const {
    return ofKind(*this, get(name), Kind::Boolean, booleanExpected, name);
}

const JV* JV::getInteger(std::string_view name) const {
    const JV* value = get(name);
    return checked(*this, value, value != nullptr && value->isInteger(), integerExpected, name);
}

const JV* JV::getNumeric(std::string_view name) const {
    return ofKind(*this, get(name), Kind::Number, numericExpected, name);
}

const JV* JV::getObject(std::string_view name) const {
    return ofKind(*this, get(name), Kind::Object, objectExpected, name);
}

const JV* JV::getString(std::string_view name) const {
    return ofKind(*this, get(name), Kind::String, stringExpected, name);
}

// ---- numbers

bool JV::isInteger() const {
    return kind_ == Kind::Number && number().isInteger();
}

bool JV::fitsFloat() const {
    constexpr double largest = std::numeric_limits<float>::max(); // 3.4028234663852886e38
    return kind_ == Kind::Number && number().compare(-largest) >= 0 && number().compare(largest) <= 0;
}

bool JV::fitsInt32() const {
    return isInteger() && number().compare(std::int64_t{-2147483648LL}) >= 0 &&
           number().compare(std::int64_t{2147483647}) <= 0;
}

bool JV::fitsInt64() const {
    if (!isInteger())
        return false;
    const number::Number value = number();
    if (value.kind() == number::NumberKind::Float) {
        // 2^63 is a double, the largest 64-bit integer is not.
        return value.floatValue() >= -0x1p63 && value.floatValue() < 0x1p63;
    }
    return value.compare(std::numeric_limits<std::int64_t>::min()) >= 0 &&
           value.compare(std::numeric_limits<std::int64_t>::max()) <= 0;
}

// ---- pointers

const JV* JV::resolve(const JVPointer& tokens) const {
    const JV* value = this;
    for (const std::string& token : tokens) {
        if (value->kind_ == Kind::Object) {
            value = value->get(token);
        } else if (value->kind_ == Kind::Array) {
            std::size_t index = 0;
            const auto read = std::from_chars(token.data(), token.data() + token.size(), index);
            if (read.ptr == token.data())
                throw std::invalid_argument("invalid stoul argument");
            value = read.ec == std::errc() && index < value->size() ? value->payload_.array.items[index]
                                                                    : nullptr;
        } else {
            return nullptr;
        }
        if (value == nullptr)
            return nullptr;
    }
    return value;
}

} // namespace specloom::jv
