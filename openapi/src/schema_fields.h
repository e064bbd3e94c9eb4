#pragma once

#include "number/number.h"
#include "openapi/node.h"
#include "openapi/schema_format.h"
#include "openapi/schema_keyword.h"

#include <cstdint> // std::uint64_t
#include <utility> // std::move
#include <variant> // std::variant
#include <vector>  // std::vector

namespace specloom::openapi {

using NodeList = std::vector<NodePointer, PoolAllocator<NodePointer>>;

/// A value under a name or, in a list, without one.
struct NamedValue {
    Text key; ///< absent in a list
    Value value;
    [[nodiscard]] std::string_view name() const noexcept { return key.view(); }
};

/// What one keyword of a schema holds. Alternatives by keyword; Schema's accessors tell which.
using SchemaField = std::variant<bool, std::uint64_t, number::Number, Text, Value, const SchemaFormat*,
                                 NodePointer, NodeList, NodeMap, std::vector<Value>, std::vector<NamedValue>,
                                 std::vector<Text>, NameMap<std::vector<Text>>>;

/// The keywords that a schema has, of the many that it may have: a bit for each, and the fields themselves
/// side by side in the order of SchemaKeyword. Documents hold a schema for every few values, and most have
/// three keywords.
class SchemaFields {
  public:
    SchemaFields() noexcept = default;
    SchemaFields(const SchemaFields&) = delete;
    SchemaFields& operator=(const SchemaFields&) = delete;
    ~SchemaFields() { release(); }

    [[nodiscard]] bool has(SchemaKeyword keyword) const noexcept { return present_.has(keyword); }
    [[nodiscard]] SchemaKeywords keywords() const noexcept { return present_; }
    [[nodiscard]] std::size_t size() const noexcept { return present_.size(); }
    /// Room for so many fields in all.
    void reserve(std::size_t count);

    /// The field of this alternative; null when the schema has no such keyword.
    template <typename T>
    [[nodiscard]] const T* find(SchemaKeyword keyword) const noexcept {
        return has(keyword) ? std::get_if<T>(&fields_[slotOf(keyword)]) : nullptr;
    }
    template <typename T>
    [[nodiscard]] T* find(SchemaKeyword keyword) noexcept {
        return has(keyword) ? std::get_if<T>(&fields_[slotOf(keyword)]) : nullptr;
    }

    /// The field as a T, made empty when it is absent or of another alternative.
    template <typename T>
    T& open(SchemaKeyword keyword) {
        if (T* present = find<T>(keyword); present != nullptr)
            return *present;
        return std::get<T>(set(keyword, T()));
    }

    SchemaField& set(SchemaKeyword keyword, SchemaField field);
    void remove(SchemaKeyword keyword);

  private:
    void release() noexcept;
    [[nodiscard]] std::size_t slotOf(SchemaKeyword keyword) const noexcept {
        return present_.rankOf(keyword);
    }

    // Not a vector: this takes half its room in every schema.
    SchemaKeywords present_;
    SchemaField* fields_ = nullptr; ///< as many as the keywords, then empty ones up to capacity_
    std::uint8_t capacity_ = 0;
};

} // namespace specloom::openapi
