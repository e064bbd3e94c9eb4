#pragma once

#include "foundation/text_tables.h"

#include <cstddef> // std::size_t
#include <string>  // std::string

namespace specloom::openapi_generator {

/// Names of one scope, each taken once.
class UniqueNames {
  public:
    /// `name` or, when that is taken, the same with the least number from 2 behind it that is free.
    [[nodiscard]] std::string take(std::string name) {
        const auto [found, isNew] = lastNumbers_.try_emplace(name, 1);
        if (isNew)
            return name;
        std::size_t& number = found->second;
        std::string numbered;
        do
            numbered = name + std::to_string(++number);
        while (!lastNumbers_.try_emplace(numbered, 1).second);
        return numbered;
    }

  private:
    TextMap<std::size_t> lastNumbers_; ///< by name; 1 where no number was needed yet
};

} // namespace specloom::openapi_generator
