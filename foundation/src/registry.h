#pragma once

#include "foundation/message.h"

#include <array>       // std::array, std::to_array
#include <cstddef>     // std::size_t
#include <memory>      // std::unique_ptr
#include <stdexcept>   // std::logic_error, std::runtime_error
#include <string_view> // std::string_view
#include <vector>      // std::vector

namespace specloom {

/// A row of a registry: what is made under a name.
template <typename Product, typename... Arguments>
struct Maker {
    std::string_view name;
    std::unique_ptr<Product> (*make)(Arguments... arguments);

    /// The row that makes a T.
    template <typename T>
    [[nodiscard]] static constexpr Maker of(std::string_view name) {
        return {name, [](Arguments... arguments) -> std::unique_ptr<Product> {
                    // Not make_unique: a pointer class for each of many T takes seconds to compile.
                    return std::unique_ptr<Product>(new T(arguments...));
                }};
    }
};

/// A constant table of rows with a `name`, in the order in which the names are offered. A name that stands
/// twice does not compile.
template <typename Row, std::size_t count>
class Registry {
  public:
    constexpr explicit Registry(const Row (&rows)[count]) : rows_(std::to_array(rows)) {
        for (const Row& row : rows_)
            if (find(row.name) != &row)
                throw std::logic_error("A name stands twice");
    }

    /// Null for a name that is not there.
    [[nodiscard]] constexpr const Row* find(std::string_view name) const noexcept {
        for (const Row& row : rows_)
            if (row.name == name)
                return &row;
        return nullptr;
    }

    /// The same; throws std::runtime_error with `notFound`, where {} is the name.
    [[nodiscard]] const Row& get(std::string_view name, MessageFormat<std::string_view> notFound) const {
        if (const Row* row = find(name); row != nullptr)
            return *row;
        throw std::runtime_error(formatMessage(notFound, name));
    }

    [[nodiscard]] std::vector<std::string_view> names() const {
        std::vector<std::string_view> result;
        for (const Row& row : rows_)
            result.push_back(row.name);
        return result;
    }

  private:
    std::array<Row, count> rows_;
};

} // namespace specloom
