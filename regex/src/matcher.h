#pragma once

#include "regex/pattern.h"
#include "regex/simulation.h"

#include <cstdint>       // std::uint32_t
#include <string_view>   // std::string_view
#include <unordered_map> // std::unordered_multimap
#include <vector>        // std::vector

namespace specloom::regex {

/// Searches texts with the automata of a pattern, one after the other, and remembers what it found out: sets
/// of states become the states of a deterministic automaton, which is made as the texts need it, forgotten
/// when it has grown too large, and made anew.
class Matcher {
  public:
    /// `set` outlives it.
    explicit Matcher(const AutomatonSet& set);

    [[nodiscard]] Pattern::Outcome search(std::string_view text);

  private:
    /// Where the row of a deterministic state begins in transitions_, or one of the three below.
    using StateId = std::uint32_t;
    static constexpr StateId unknown = UINT32_MAX;
    static constexpr StateId dead = UINT32_MAX - 1;
    static constexpr StateId match = UINT32_MAX - 2;

    struct State {
        /// Of the instructions in kept_.
        std::uint32_t begin;
        std::uint32_t end;
        bool first;
        bool wordBefore;
    };

    [[nodiscard]] Pattern::Outcome searchCached(std::string_view text);
    [[nodiscard]] StateId startState();
    [[nodiscard]] StateId transition(StateId from, std::uint32_t characterClass);
    [[nodiscard]] StateId stateOf(std::vector<std::uint32_t> instructions, bool first, bool wordBefore);
    [[nodiscard]] StateId addState(std::span<const std::uint32_t> instructions, bool first, bool wordBefore);
    void forget();

    [[nodiscard]] Pattern::Outcome searchUncached(std::string_view text);
    void decode(std::string_view text);
    [[nodiscard]] Place placeAt(std::size_t index, Direction direction) const;
    [[nodiscard]] std::uint32_t characterAt(std::size_t index, Direction direction) const;
    [[nodiscard]] Pattern::Outcome runAll();
    [[nodiscard]] bool fillTable(std::size_t lookaround, std::uint64_t& budget);
    [[nodiscard]] Pattern::Outcome run(std::uint64_t budget);

    const AutomatonSet& set_;
    Simulation main_;
    std::vector<Simulation> lookarounds_;
    /// Whether deterministic states are worth their while.
    bool cached_;

    /// A row for each state: of each class, and of the end of the text.
    std::vector<StateId> transitions_;
    std::size_t rowSize_;
    std::vector<State> states_;
    std::vector<std::uint32_t> kept_;
    std::unordered_multimap<std::uint64_t, StateId> byHash_;
    StateId start_ = unknown;
    /// How often all states were forgotten.
    std::uint64_t forgotten_ = 0;

    /// The classes of the text's characters.
    std::vector<std::uint32_t> characters_;
    LookaroundTable table_;
};

} // namespace specloom::regex
