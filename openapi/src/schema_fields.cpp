#include "openapi/schema_fields.h"

#include <algorithm> // std::max, std::min, std::move, std::move_backward
#include <memory>    // std::destroy_n, std::uninitialized_default_construct_n

namespace specloom::openapi {

void SchemaFields::reserve(std::size_t count) {
    const std::size_t capacity = std::min(count, schemaKeywordCount);
    if (capacity <= capacity_)
        return;
    SchemaField* fields = PoolAllocator<SchemaField>().allocate(capacity);
    std::uninitialized_default_construct_n(fields, capacity); // which cannot fail, nor can the moves
    std::move(fields_, fields_ + size(), fields);
    release();
    fields_ = fields;
    capacity_ = static_cast<std::uint8_t>(capacity);
}

void SchemaFields::release() noexcept {
    std::destroy_n(fields_, capacity_);
    if (fields_ != nullptr)
        PoolAllocator<SchemaField>().deallocate(fields_, capacity_);
}

SchemaField& SchemaFields::set(SchemaKeyword keyword, SchemaField field) {
    const std::size_t slot = slotOf(keyword);
    if (has(keyword))
        return fields_[slot] = std::move(field);
    if (size() == capacity_)
        reserve(std::max<std::size_t>(4, size() * 2));
    SchemaField* const end = fields_ + size();
    std::move_backward(fields_ + slot, end, end + 1);
    present_.add(keyword);
    return fields_[slot] = std::move(field);
}

void SchemaFields::remove(SchemaKeyword keyword) {
    if (!has(keyword))
        return;
    SchemaField* const end = fields_ + size();
    SchemaField* const removed = fields_ + slotOf(keyword);
    std::move(removed + 1, end, removed);
    *(end - 1) = SchemaField();
    present_.remove(keyword);
}

} // namespace specloom::openapi
