#pragma once

#include "egret/alphabet.h"
#include "egret/nfa.h"

#include <cstddef>       // std::size_t
#include <cstdint>       // std::uint8_t, std::uint32_t, std::uint64_t
#include <span>          // std::span
#include <string>        // std::u32string
#include <unordered_map> // std::unordered_map
#include <vector>        // std::vector

namespace specloom::egret {

/// What can follow a place, as bits: whether a choice that was made leaves it open.
enum Following : std::uint8_t { TheEnd = 1, WordCharacter = 2, OtherCharacter = 4, AnyFollowing = 7 };

/// What is known of the text in front of a place, and what was promised of the text behind it.
struct Context {
    std::uint8_t following = AnyFollowing;
    bool atStart = false;
    bool behindWord = false;
    /// Of the bodies of lookaheads, states from which a match has to lead, or must not: their number times
    /// two, and one more for what must not. Sorted.
    std::vector<std::uint32_t> owed{};
    /// Of the bodies of lookbehinds: the states of all attempts that wait for a character. Sorted.
    std::vector<std::uint32_t> waiting{};
    /// The lookbehinds whose body ends here, by their numbers. Sorted.
    std::vector<std::uint32_t> held{};
};

using ContextId = std::uint32_t;

/// Whether boundaries of words and lookarounds are heeded. Those of the text always are.
enum class Conditions : std::uint8_t { Hold, Ignored };

/// All contexts that were met, each once. A lookahead is an alternating automaton: that it holds is one
/// choice among the ways of its body, that it does not is a promise about all of them. A lookbehind is
/// followed from the beginning of the text, by the set of its states. What depends on characters to come is
/// decided both ways, and each decision is a promise. So nothing is left out and nothing is let in.
class Contexts {
  public:
    /// Both outlive it.
    Contexts(const Nfa& nfa, const Alphabet& alphabet, Conditions conditions)
        : nfa_(nfa), alphabet_(alphabet),
          lookarounds_(conditions == Conditions::Hold ? nfa.lookarounds.size() : 0) {}

    using Ids = std::span<const ContextId>;

    /// Those at the beginning of a text.
    [[nodiscard]] std::vector<ContextId> initial();
    /// Those behind a character of the symbol; none when it breaks a promise. Valid until the next call.
    [[nodiscard]] Ids behind(ContextId context, std::uint32_t symbol);
    /// Those at the same place in which a condition holds. Valid until the next call.
    [[nodiscard]] Ids holding(ContextId context, const State& condition);
    /// Whether a text may end here.
    [[nodiscard]] bool canEnd(ContextId context) const;
    /// Whether something was left out since there was too much to look at.
    [[nodiscard]] bool isIncomplete() const noexcept { return incomplete_; }

  private:
    struct Draft;

    ContextId intern(const Context& context);
    Ids remember(std::uint64_t question, const std::vector<ContextId>& answer);
    [[nodiscard]] bool isKnown(std::uint64_t question, Ids& answer) const;
    [[nodiscard]] bool spend(std::size_t steps);
    [[nodiscard]] std::vector<ContextId> settle(Draft first);
    void dropDemanding(std::vector<ContextId>& ids) const;
    bool closeLookbehinds(Draft& draft, std::vector<Draft>& others);
    void closeState(Draft& draft, std::uint32_t state, std::vector<Draft>& others) const;
    bool payOwed(Draft& draft, std::vector<Draft>& others);
    bool followOwed(Draft& draft, std::uint32_t state, std::vector<Draft>& others) const;
    bool followForbidden(Draft& draft, std::uint32_t state, std::vector<Draft>& others) const;
    [[nodiscard]] std::vector<ContextId> holdingNow(const Context& context, const State& condition);

    const Nfa& nfa_;
    const Alphabet& alphabet_;
    std::size_t lookarounds_; ///< that are heeded
    std::vector<Context> contexts_;
    std::unordered_map<std::u32string, ContextId> ids_;
    struct Answer {
        std::size_t first;
        std::size_t count;
    };
    std::unordered_map<std::uint64_t, Answer> answers_;
    std::vector<ContextId> answerIds_;
    std::uint64_t steps_ = 0;
    bool incomplete_ = false;
};

} // namespace specloom::egret
