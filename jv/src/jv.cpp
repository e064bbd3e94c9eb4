#include "jv/jv.h"

#include "foundation/unreachable.h"
#include "jv/jv_object.h"
#include "jv/jv_pointer.h"

#include <algorithm> // std::max, std::min
#include <cstdlib>   // std::free, std::malloc, std::realloc
#include <cstring>   // std::memcpy, std::memmove
#include <limits>    // std::numeric_limits
#include <new>       // std::bad_alloc
#include <stdexcept> // std::length_error
#include <variant>   // std::bad_variant_access
#include <vector>    // std::vector

namespace specloom::jv {

const char* typeName(Kind kind) {
    switch (kind) {
    case Kind::Null:
        return "null";
    case Kind::Boolean:
        return "boolean";
    case Kind::Number:
        return "number";
    case Kind::String:
        return "string";
    case Kind::Array:
        return "array";
    case Kind::Object:
        return "object";
    }
    SPECLOOM_UNREACHABLE("kind of value");
}

std::unique_ptr<JV> JV::newArray() {
    auto value = std::make_unique<JV>();
    value->makeArray();
    return value;
}

std::unique_ptr<JV> JV::newObject() {
    auto value = std::make_unique<JV>();
    value->makeObject();
    return value;
}

void JV::require(Kind kind) const {
    if (kind_ != kind)
        throw std::bad_variant_access();
}

// ---- content

bool JV::boolean() const {
    require(Kind::Boolean);
    return payload_.boolean;
}

number::Number JV::number() const {
    require(Kind::Number);
    switch (static_cast<number::NumberKind>(detail_)) {
    case number::NumberKind::Signed:
        return number::Number(payload_.signedInteger);
    case number::NumberKind::Unsigned:
        return number::Number(payload_.unsignedInteger);
    case number::NumberKind::Float:
        return number::Number(payload_.real);
    case number::NumberKind::Big:
        return *payload_.big;
    }
    SPECLOOM_UNREACHABLE("kind of number");
}

std::string_view JV::text() const {
    require(Kind::String);
    if (is(inlineText))
        return {payload_.shortText, detail_};
    return {payload_.text.data, payload_.text.length};
}

std::span<const JV* const> JV::elements() const {
    require(Kind::Array);
    return {payload_.array.items, payload_.array.count};
}

std::span<JV* const> JV::elements() {
    require(Kind::Array);
    return {payload_.array.items, payload_.array.count};
}

Members JV::members() const {
    require(Kind::Object);
    sortEntries();
    return Members(this);
}

std::size_t JV::size() const noexcept {
    if (kind_ == Kind::Array)
        return payload_.array.count;
    if (kind_ == Kind::Object)
        return is(ownsBlock) ? header().live : payload_.object.count;
    return 0;
}

std::string JV::pointer() const {
    // The way up is known, the text is not: tokens are gathered first and written from the root down.
    std::vector<const JV*> path;
    for (const JV* value = this; value->parent_ != nullptr; value = value->parent_)
        path.push_back(value);
    std::string text;
    for (std::size_t i = path.size(); i-- > 0;) {
        const JV& value = *path[i];
        const JV& parent = *value.parent_;
        text += '/';
        if (parent.kind_ == Kind::Array)
            text += std::to_string(value.slot_);
        else if (parent.kind_ == Kind::Object && value.slot_ < parent.payload_.object.count)
            JVPointer::escapeToken(parent.payload_.object.entries[value.slot_].key->text(), text);
    }
    return text;
}

const JV* JV::enclosingObject() const noexcept {
    const JV* value = parent_;
    while (value != nullptr && !(value->isObject() && value->pos_.isKnown()))
        value = value->parent_;
    return value;
}

// ---- destruction

/// Frees the block of `value` and puts its children on the heap into the list `pending`. Children in slabs
/// stay where they are: their document frees what they own when it ends.
void JV::detachChildren(JV& value, JV*& pending) noexcept {
    if (!value.is(ownsBlock))
        return;
    switch (value.kind_) {
    case Kind::String:
        std::free(value.payload_.text.data);
        break;
    case Kind::Number:
        delete value.payload_.big;
        break;
    case Kind::Array:
        for (std::uint32_t i = 0; i < value.payload_.array.count; ++i)
            linkDetached(value.payload_.array.items[i], pending);
        std::free(value.payload_.array.items);
        break;
    case Kind::Object:
        freeEntries(value, pending);
        break;
    case Kind::Null:
    case Kind::Boolean:
        break;
    }
    value.lower(ownsBlock);
}

void JV::linkDetached(JV* child, JV*& pending) noexcept {
    if (child == nullptr || child->is(inSlab))
        return;
    child->parent_ = pending;
    pending = child;
}

void JV::destroy(JV* child) noexcept {
    if (child != nullptr && !child->is(inSlab))
        delete child;
}

void JV::dropContent() noexcept {
    // A list through the parent links instead of recursion: input decides how deep a tree is.
    JV* pending = nullptr;
    detachChildren(*this, pending);
    while (pending != nullptr) {
        JV* value = pending;
        pending = value->parent_;
        detachChildren(*value, pending);
        value->kind_ = Kind::Null;
        delete value;
    }
}

// ---- setters

void JV::become(Kind kind) noexcept {
    dropContent();
    lower(inlineText | sourceOrdered | explicitOrder | plainScalar);
    kind_ = kind;
    detail_ = 0;
    payload_ = Payload{};
}

void JV::setNull() noexcept {
    become(Kind::Null);
}

void JV::setBoolean(bool value) noexcept {
    become(Kind::Boolean);
    payload_.boolean = value;
}

void JV::setInteger(std::int64_t value) noexcept {
    become(Kind::Number);
    storeMachineNumber(number::Number(value));
}

void JV::setDouble(double value) noexcept {
    become(Kind::Number);
    storeMachineNumber(number::Number(value));
}

void JV::setNumber(const number::Number& value) {
    if (value.kind() != number::NumberKind::Big) {
        become(Kind::Number);
        storeMachineNumber(value);
        return;
    }
    auto copy = std::make_unique<number::Number>(value);
    become(Kind::Number);
    detail_ = static_cast<std::uint8_t>(number::NumberKind::Big);
    payload_.big = copy.release();
    raise(ownsBlock);
}

void JV::storeMachineNumber(const number::Number& value) noexcept {
    detail_ = static_cast<std::uint8_t>(value.kind());
    if (value.kind() == number::NumberKind::Signed)
        payload_.signedInteger = value.signedValue();
    else if (value.kind() == number::NumberKind::Unsigned)
        payload_.unsignedInteger = value.unsignedValue();
    else
        payload_.real = value.floatValue();
}

void JV::setString(std::string_view value) {
    if (value.size() > std::numeric_limits<std::uint32_t>::max())
        throw std::length_error("String is too long");
    const auto length = static_cast<std::uint32_t>(value.size());
    // `value` may be a view of this very text, so the old one goes last.
    if (length <= sizeof payload_.shortText) {
        char copy[sizeof payload_.shortText] = {};
        value.copy(copy, length);
        become(Kind::String);
        std::memcpy(payload_.shortText, copy, sizeof copy);
        detail_ = static_cast<std::uint8_t>(length);
        raise(inlineText);
        return;
    }
    if (kind_ == Kind::String && is(ownsBlock) && payload_.text.capacity >= length) {
        std::memmove(payload_.text.data, value.data(), length);
        payload_.text.length = length;
        return;
    }
    char* data = static_cast<char*>(std::malloc(length));
    if (data == nullptr)
        throw std::bad_alloc();
    std::memcpy(data, value.data(), length);
    become(Kind::String);
    payload_.text = {data, length, length};
    raise(ownsBlock);
}

void JV::makeArray() noexcept {
    if (kind_ != Kind::Array)
        become(Kind::Array);
}

void JV::makeObject() noexcept {
    if (kind_ != Kind::Object)
        become(Kind::Object);
}

void JV::clear() {
    if (kind_ == Kind::Object) {
        // Gap by gap: the recorded key order of an object outlives its members.
        for (std::uint32_t slot = 0; slot < payload_.object.count; ++slot)
            vacate(slot);
    } else {
        require(Kind::Array);
        become(Kind::Array);
    }
}

// ---- arrays

JV* JV::append(std::unique_ptr<JV> child) {
    require(Kind::Array);
    auto& array = payload_.array;
    if (array.count == array.capacity || !is(ownsBlock)) {
        if (array.count == std::numeric_limits<std::uint32_t>::max())
            throw std::length_error("Array is too long");
        const std::size_t capacity = std::max<std::size_t>(4, std::size_t{array.count} * 2);
        void* items = std::realloc(is(ownsBlock) ? array.items : nullptr, capacity * sizeof(JV*));
        if (items == nullptr)
            throw std::bad_alloc();
        if (!is(ownsBlock) && array.count != 0)
            std::memcpy(items, array.items, array.count * sizeof(JV*));
        array.items = static_cast<JV**>(items);
        array.capacity = static_cast<std::uint32_t>(
            std::min<std::size_t>(capacity, std::numeric_limits<std::uint32_t>::max()));
        raise(ownsBlock);
    }
    return array.items[array.count++] = child.release();
}

JV* JV::appendNull() {
    return append(std::make_unique<JV>());
}
JV* JV::appendBoolean(bool value) {
    return append(std::make_unique<JV>(value));
}
JV* JV::appendNumber(const number::Number& value) {
    return append(std::make_unique<JV>(value));
}
JV* JV::appendString(std::string_view value) {
    return append(std::make_unique<JV>(value));
}
JV* JV::appendArray() {
    return append(newArray());
}
JV* JV::appendObject() {
    return append(newObject());
}

} // namespace specloom::jv
