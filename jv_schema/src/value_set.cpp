#include "jv_schema/value_set.h"

#include "jv/equal_values.h"

namespace specloom::jv::schema {

namespace {

constexpr std::size_t fewValues = 8; // are compared one by one

} // namespace

ValueSet::ValueSet(std::span<const JV* const> values) : values_(values.begin(), values.end()) {
    if (values_.size() <= fewValues)
        return;
    std::size_t visited = 0;
    for (const JV* value : values_)
        byHash_.emplace(hashOfValue(*value, visited), value);
}

bool ValueSet::contains(const JV& value, std::size_t& visited) const {
    if (byHash_.empty()) {
        for (const JV* candidate : values_) {
            if (equalValues(*candidate, value))
                return true;
        }
        return false;
    }
    const auto [begin, end] = byHash_.equal_range(hashOfValue(value, visited));
    for (auto entry = begin; entry != end; ++entry) {
        if (equalValues(*entry->second, value))
            return true;
    }
    return false;
}

} // namespace specloom::jv::schema
