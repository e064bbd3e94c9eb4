#pragma once

#include "regex/automaton.h"

#include <cstddef> // std::size_t
#include <cstdint> // std::uint64_t
#include <span>    // std::span
#include <vector>  // std::vector

namespace specloom::regex {

/// What an automaton can ask of a place between two characters. "Before" and "after" are of its direction.
struct Place {
    bool first = false;
    bool last = false;
    bool wordBefore = false;
    bool wordAfter = false;
    /// From the beginning of the text, in characters.
    std::size_t position = 0;
};

/// For each lookaround of a pattern whether its body matches at a place.
using LookaroundTable = std::vector<std::vector<bool>>;

/// All states of one automaton at one place of a text, brought from place to place (the method of Thompson):
/// at each place a new attempt begins. A round is
///     start() or step(); then decide(); then step() over the next character.
class Simulation {
  public:
    /// Both outlive it.
    Simulation(const AutomatonSet& set, const Automaton& automaton) : set_(set), automaton_(automaton) {}

    /// The states at the first place.
    void start();
    /// The states as kept from states().
    void restore(std::span<const std::uint32_t> states);
    /// Follows what depends on the place.
    void decide(const Place& place, const LookaroundTable& lookarounds);
    /// Consumes a character.
    void step(std::uint32_t characterClass);

    /// Whether an attempt has come to its end at this place.
    [[nodiscard]] bool matched() const noexcept { return matched_; }
    /// The instructions that wait for a character or a decision. None: no attempt will ever come to its end.
    [[nodiscard]] std::span<const std::uint32_t> states() const noexcept { return states_; }

    /// Work done since the last reset.
    [[nodiscard]] std::uint64_t steps() const noexcept { return steps_; }
    void resetSteps() noexcept { steps_ = 0; }

  private:
    void clear();
    void follow(std::uint32_t instruction, bool first);
    [[nodiscard]] bool holds(const Instruction& instruction, const Place& place,
                             const LookaroundTable& lookarounds) const;
    [[nodiscard]] bool consumes(const Instruction& instruction, std::uint32_t characterClass) const;

    const AutomatonSet& set_;
    const Automaton& automaton_;
    std::vector<std::uint32_t> states_;
    std::vector<std::uint32_t> before_;
    std::vector<std::uint32_t> pending_;
    /// The round in which an instruction was met last.
    std::vector<std::uint32_t> seen_;
    std::uint32_t round_ = 0;
    std::uint64_t steps_ = 0;
    bool matched_ = false;
};

} // namespace specloom::regex
