#include "openapi/value.h"

#include "jv/jv_document.h"

#include <utility> // std::exchange

namespace specloom::openapi {

Value::Value(const jv::JV& value) : Value(jv::JVDocument::clone(value)) {}

Value::Value(Value&& other) noexcept
    : value_(std::exchange(other.value_, nullptr)), owned_(std::exchange(other.owned_, false)) {}

Value& Value::operator=(Value&& other) noexcept {
    if (this != &other) {
        release();
        value_ = std::exchange(other.value_, nullptr);
        owned_ = std::exchange(other.owned_, false);
    }
    return *this;
}

Value Value::borrow(const jv::JV& value) noexcept {
    Value result;
    result.value_ = &value;
    return result;
}

} // namespace specloom::openapi
