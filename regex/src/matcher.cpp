#include "regex/matcher.h"

#include "regex/utf8.h"

#include <algorithm> // std::ranges::sort

namespace specloom::regex {

namespace {

using Outcome = Pattern::Outcome;

/// Bounds of what is remembered: 256 kB of transitions and 256 kB of sets, or one set that is larger.
constexpr std::size_t maxTransitions = 65'536;
constexpr std::size_t maxKept = 65'536;
/// With more classes rows are too long to be filled.
constexpr std::uint32_t maxCachedClasses = 1'000;

std::uint64_t hashOf(std::span<const std::uint32_t> instructions, bool wordBefore) {
    std::uint64_t hash = wordBefore ? 0x9E3779B97F4A7C15U : 0xCBF29CE484222325U;
    for (const std::uint32_t instruction : instructions)
        hash = (hash ^ instruction) * 0x100000001B3U;
    return hash ^ (hash >> 29U);
}

} // namespace

Matcher::Matcher(const AutomatonSet& set)
    : set_(set), main_(set, set.main),
      cached_(set.lookarounds.empty() && set.classes.count() <= maxCachedClasses),
      rowSize_(set.classes.count() + std::size_t{1}) {
    for (const Automaton& automaton : set.lookarounds)
        lookarounds_.emplace_back(set, automaton);
}

Outcome Matcher::search(std::string_view text) {
    return cached_ ? searchCached(text) : searchUncached(text);
}

Outcome Matcher::searchCached(std::string_view text) {
    main_.resetSteps();
    StateId state = startState();
    while (state < match) {
        std::uint32_t characterClass = set_.classes.count(); // The end of the text.
        if (!text.empty()) {
            const auto byte = static_cast<unsigned char>(text.front());
            if (byte < 0x80) {
                characterClass = set_.classes.ofAscii(byte);
                text.remove_prefix(1);
            } else {
                const DecodedCharacter character = decodeCharacter(text);
                characterClass = set_.classes.of(character.codePoint);
                text.remove_prefix(character.length);
            }
        }
        const StateId next = transitions_[state + characterClass];
        if (next != unknown) {
            state = next;
            continue;
        }
        state = transition(state, characterClass);
        if (main_.steps() > Pattern::maxSteps)
            return Outcome::TooCostly;
    }
    return state == match ? Outcome::Match : Outcome::NoMatch;
}

Matcher::StateId Matcher::startState() {
    if (start_ == unknown) {
        main_.start();
        start_ = main_.matched() ? match : addState(main_.states(), true, false);
    }
    return start_;
}

/// Finds and remembers where a character, or the end of the text, leads.
Matcher::StateId Matcher::transition(StateId from, std::uint32_t characterClass) {
    const State state = states_[from / rowSize_];
    const bool last = characterClass == set_.classes.count();
    const bool wordAfter = !last && set_.wordClasses[characterClass];
    main_.restore(std::span(kept_).subspan(state.begin, state.end - state.begin));
    main_.decide({.first = state.first, .last = last, .wordBefore = state.wordBefore, .wordAfter = wordAfter},
                 table_);
    StateId to = main_.matched() ? match : dead;
    if (to == dead && !last) {
        main_.step(characterClass);
        if (main_.matched())
            to = match;
        else if (!main_.states().empty()) {
            const std::uint64_t before = forgotten_;
            to = stateOf({main_.states().begin(), main_.states().end()}, false, wordAfter);
            if (forgotten_ != before)
                return to; // `from` is forgotten.
        }
    }
    transitions_[from + characterClass] = to;
    return to;
}

Matcher::StateId Matcher::stateOf(std::vector<std::uint32_t> instructions, bool first, bool wordBefore) {
    std::ranges::sort(instructions);
    const std::uint64_t hash = hashOf(instructions, wordBefore);
    for (auto [place, end] = byHash_.equal_range(hash); place != end; ++place) {
        const State& state = states_[place->second / rowSize_];
        const auto kept = std::span(kept_).subspan(state.begin, state.end - state.begin);
        if (state.first == first && state.wordBefore == wordBefore && std::ranges::equal(kept, instructions))
            return place->second;
    }
    if (kept_.size() + instructions.size() > maxKept || transitions_.size() + rowSize_ > maxTransitions)
        forget();
    const StateId result = addState(instructions, first, wordBefore);
    byHash_.emplace(hash, result);
    return result;
}

Matcher::StateId Matcher::addState(std::span<const std::uint32_t> instructions, bool first, bool wordBefore) {
    const auto begin = static_cast<std::uint32_t>(kept_.size());
    kept_.insert(kept_.end(), instructions.begin(), instructions.end());
    states_.push_back({begin, static_cast<std::uint32_t>(kept_.size()), first, wordBefore});
    const auto row = static_cast<StateId>(transitions_.size());
    transitions_.resize(transitions_.size() + rowSize_, unknown);
    return row;
}

void Matcher::forget() {
    transitions_.clear();
    states_.clear();
    kept_.clear();
    byHash_.clear();
    start_ = unknown;
    ++forgotten_;
}

Outcome Matcher::searchUncached(std::string_view text) {
    // The tables of the lookarounds are memory, a bit for each place.
    if (text.size() > Pattern::maxSteps / (set_.lookarounds.size() + 1))
        return Outcome::TooCostly;
    decode(text);
    const Outcome outcome = runAll();
    if (characters_.capacity() > maxKept) { // A large text is not paid for when the next one is small.
        characters_ = {};
        table_ = {};
    }
    return outcome;
}

void Matcher::decode(std::string_view text) {
    characters_.clear();
    while (!text.empty()) {
        const DecodedCharacter character = decodeCharacter(text);
        characters_.push_back(set_.classes.of(character.codePoint));
        text.remove_prefix(character.length);
    }
}

/// The character behind the place with this index, both counted in the direction.
std::uint32_t Matcher::characterAt(std::size_t index, Direction direction) const {
    return direction == Direction::Forward ? characters_[index] : characters_[characters_.size() - 1 - index];
}

Place Matcher::placeAt(std::size_t index, Direction direction) const {
    const std::size_t count = characters_.size();
    return {.first = index == 0,
            .last = index == count,
            .wordBefore = index > 0 && set_.wordClasses[characterAt(index - 1, direction)],
            .wordAfter = index < count && set_.wordClasses[characterAt(index, direction)],
            .position = direction == Direction::Forward ? index : count - index};
}

/// A lookahead's body matches at a place when its mirror image, read from the end of the text, ends there; a
/// lookbehind's when it ends there itself. So one run for each decides all places.
bool Matcher::fillTable(std::size_t lookaround, std::uint64_t& budget) {
    const Direction direction = set_.lookarounds[lookaround].direction;
    Simulation& simulation = lookarounds_[lookaround];
    std::vector<bool>& row = table_[lookaround];
    row.assign(characters_.size() + 1, false);
    simulation.resetSteps();
    simulation.start();
    for (std::size_t index = 0;; ++index) {
        const Place place = placeAt(index, direction);
        simulation.decide(place, table_);
        row[place.position] = simulation.matched();
        if (simulation.steps() > budget)
            return false;
        if (place.last)
            break;
        simulation.step(characterAt(index, direction));
    }
    budget -= simulation.steps();
    return true;
}

Outcome Matcher::runAll() {
    std::uint64_t budget = Pattern::maxSteps;
    table_.resize(lookarounds_.size());
    for (std::size_t i = 0; i < lookarounds_.size(); ++i) {
        if (!fillTable(i, budget))
            return Outcome::TooCostly;
    }
    return run(budget);
}

Outcome Matcher::run(std::uint64_t budget) {
    main_.resetSteps();
    main_.start();
    for (std::size_t index = 0;; ++index) {
        const Place place = placeAt(index, Direction::Forward);
        main_.decide(place, table_);
        if (main_.matched())
            return Outcome::Match;
        if (main_.steps() > budget)
            return Outcome::TooCostly;
        if (place.last || main_.states().empty())
            return Outcome::NoMatch;
        main_.step(characterAt(index, Direction::Forward));
    }
}

} // namespace specloom::regex
