#pragma once

#include <cstddef> // std::size_t
#include <vector>  // std::vector

namespace specloom::openapi_generator::server_spring {

/// Which records hold which others, by their numbers, and which of them would construct themselves.
class RecordCycles {
  public:
    /// Adds a record that holds none yet, and returns its number: 0, 1 and so on.
    std::size_t addRecord();
    /// Notes that a record has a component of another, or of itself.
    void addComponent(std::size_t record, std::size_t component) { components_[record].push_back(component); }
    /// Finds the cycles among what was added so far.
    void find();
    /// Whether to construct `component` would, on some path, construct `record` again.
    [[nodiscard]] bool leadsBack(std::size_t record, std::size_t component) const {
        return cycles_[record] == cycles_[component];
    }

  private:
    class Search;

    std::vector<std::vector<std::size_t>> components_; ///< by record
    std::vector<std::size_t> cycles_; ///< by record: the same number for all that lead to one another
};

} // namespace specloom::openapi_generator::server_spring
