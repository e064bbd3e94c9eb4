#include "openapi/schema_fields.h"

#include <algorithm> // std::max, std::min, std::move, std::move_backward

namespace specloom::openapi {

void SchemaFields::reserve(std::size_t count) {
    const std::size_t capacity = std::min(count, schemaKeywordCount);
    if (capacity <= capacity_)
        return;
    auto fields = std::make_unique<SchemaField[]>(capacity);
    std::move(fields_.get(), fields_.get() + size(), fields.get());
    fields_ = std::move(fields);
    capacity_ = static_cast<std::uint8_t>(capacity);
}

SchemaField& SchemaFields::set(SchemaKeyword keyword, SchemaField field) {
    const std::size_t slot = slotOf(keyword);
    if (has(keyword))
        return fields_[slot] = std::move(field);
    if (size() == capacity_)
        reserve(std::max<std::size_t>(4, size() * 2));
    SchemaField* const end = fields_.get() + size();
    std::move_backward(fields_.get() + slot, end, end + 1);
    present_.add(keyword);
    return fields_[slot] = std::move(field);
}

void SchemaFields::remove(SchemaKeyword keyword) {
    if (!has(keyword))
        return;
    SchemaField* const end = fields_.get() + size();
    SchemaField* const removed = fields_.get() + slotOf(keyword);
    std::move(removed + 1, end, removed);
    *(end - 1) = SchemaField();
    present_.remove(keyword);
}

} // namespace specloom::openapi
