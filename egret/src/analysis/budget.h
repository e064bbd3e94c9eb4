#pragma once

#include <cstdint>   // std::uint64_t
#include <exception> // std::exception

namespace specloom::egret::checks {

/// What one check may spend on one pattern: edges of automata that it makes or follows. A check that would
/// need more says nothing, so that its time is bounded whatever the pattern.
inline constexpr std::uint64_t mostCheckSteps = 100'000;

/// Ends a check that has spent its budget.
class BudgetSpent final : public std::exception {
  public:
    [[nodiscard]] const char* what() const noexcept override { return "The check has spent its budget"; }
};

class Budget {
  public:
    /// Throws BudgetSpent when less than `steps` are left.
    void spend(std::uint64_t steps) {
        if (steps > left_)
            throw BudgetSpent();
        left_ -= steps;
    }

  private:
    std::uint64_t left_ = mostCheckSteps;
};

} // namespace specloom::egret::checks
