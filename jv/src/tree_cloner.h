#pragma once

#include "jv/jv.h"

#include <memory> // std::unique_ptr
#include <vector> // std::vector

namespace specloom::jv {

/// Makes deep copies without recursion.
class TreeCloner {
  public:
    /// A copy on the heap, without positions, pointers and key orders.
    [[nodiscard]] std::unique_ptr<JV> clone(const JV& source);

    /// Moves the content of a value on the heap to `target`, whose own content is destroyed.
    static void moveContent(JV& source, JV& target) noexcept;

  private:
    struct Task {
        const JV* source;
        JV* copy;
    };
    void copyShallow(const JV& source, JV& copy);

    std::vector<Task> open_;
};

} // namespace specloom::jv
