#include "openapi/schema_fields.h"

namespace specloom::openapi {

SchemaField& SchemaFields::set(SchemaKeyword keyword, SchemaField field) {
    const std::size_t slot = slotOf(keyword);
    if (has(keyword))
        return fields_[slot] = std::move(field);
    present_.add(keyword);
    return *fields_.insert(fields_.begin() + static_cast<std::ptrdiff_t>(slot), std::move(field));
}

void SchemaFields::remove(SchemaKeyword keyword) {
    if (!has(keyword))
        return;
    fields_.erase(fields_.begin() + static_cast<std::ptrdiff_t>(slotOf(keyword)));
    present_.remove(keyword);
}

} // namespace specloom::openapi
