#include "egret/contexts.h"

#include <algorithm> // std::ranges::binary_search, std::ranges::find, std::ranges::includes, std::ranges::sort
#include <unordered_set> // std::unordered_set
#include <utility>       // std::move

namespace specloom::egret {

namespace {

using StateKind = State::Kind;

/// Of all contexts of a search: states looked at, copied and kept.
constexpr std::uint64_t mostContextSteps = 3'000'000;

/// Of one place, with one another.
constexpr std::size_t mostComparedContexts = 100;

constexpr std::uint32_t mustMatch(std::uint32_t state) {
    return state * 2;
}
constexpr std::uint32_t mustNotMatch(std::uint32_t state) {
    return state * 2 + 1;
}

void sortUnique(std::vector<std::uint32_t>& numbers) {
    std::ranges::sort(numbers);
    numbers.erase(std::unique(numbers.begin(), numbers.end()), numbers.end());
}

std::uint8_t allBut(std::uint8_t following) {
    return static_cast<std::uint8_t>(AnyFollowing & ~following);
}

bool promise(Context& context, std::uint8_t following) {
    context.following &= following;
    return context.following != 0;
}

/// What has to follow for a condition of the text's end or of a word's.
std::uint8_t followingOf(const Context& context, const State& condition) {
    if (condition.kind == StateKind::TextEnd)
        return TheEnd;
    const std::uint8_t boundary = context.behindWord ? TheEnd | OtherCharacter : WordCharacter;
    return condition.negated ? allBut(boundary) : boundary;
}

} // namespace

/// A context in the making.
struct Contexts::Draft {
    Context context{};
    /// What is owed from here on, not yet brought to the states that wait for a character.
    std::vector<std::uint32_t> agenda{};
    /// The states that attempts of lookbehinds have come to, likewise.
    std::vector<std::uint32_t> moved{};
    std::vector<std::uint32_t> closing{};
    /// The lookaround whose attempts are being closed.
    std::uint32_t lookaround = 0;
    std::unordered_set<std::uint32_t> seen{};
    /// The splits that what is owed has come through without a character: to come back is no way.
    std::vector<std::uint32_t> path{};

    [[nodiscard]] std::size_t size() const {
        return 1 + context.owed.size() + context.waiting.size() + agenda.size() + moved.size() +
               closing.size() + seen.size() + path.size();
    }
};

std::vector<ContextId> Contexts::initial() {
    return settle({.context = {.atStart = true}});
}

Contexts::Ids Contexts::behind(ContextId context, std::uint32_t symbol) {
    const std::uint64_t question = (std::uint64_t{context} << 32U) | (std::uint64_t{symbol} << 1U);
    Ids known;
    if (isKnown(question, known))
        return known;
    const Context& before = contexts_[context];
    const bool word = alphabet_.isWord[symbol];
    if ((before.following & (word ? WordCharacter : OtherCharacter)) == 0)
        return remember(question, {});
    Draft draft{.context = {.behindWord = word}};
    for (const std::uint32_t owed : before.owed) {
        const State& state = nfa_.states[owed / 2];
        if (alphabet_.contains(state.value, symbol))
            draft.agenda.push_back(state.next * 2 + owed % 2);
        else if (owed % 2 == 0)
            return remember(question, {});
    }
    for (const std::uint32_t waiting : before.waiting) {
        const State& state = nfa_.states[waiting];
        if (alphabet_.contains(state.value, symbol))
            draft.moved.push_back(state.next);
    }
    sortUnique(draft.moved);
    return remember(question, settle(std::move(draft)));
}

Contexts::Ids Contexts::holding(ContextId context, const State& condition) {
    const auto number = static_cast<std::uint64_t>(&condition - nfa_.states.data());
    const std::uint64_t question = (std::uint64_t{context} << 32U) | (number << 1U) | 1U;
    Ids known;
    if (isKnown(question, known))
        return known;
    const Context here = contexts_[context];
    return remember(question, holdingNow(here, condition));
}

std::vector<ContextId> Contexts::holdingNow(const Context& context, const State& condition) {
    Context result = context;
    switch (condition.kind) {
    case StateKind::TextStart:
        if (!context.atStart)
            return {};
        break;
    case StateKind::Lookaround: {
        const Nfa::Body& body = nfa_.lookarounds[condition.value];
        if (!body.behind)
            return settle({.context = result,
                           .agenda = {body.start * 2 + (condition.negated ? 1U : 0U)},
                           .lookaround = static_cast<std::uint32_t>(lookarounds_)});
        if (std::ranges::binary_search(context.held, condition.value) == condition.negated)
            return {};
        break;
    }
    default:
        if (!promise(result, followingOf(context, condition)))
            return {};
    }
    return {intern(result)};
}

bool Contexts::canEnd(ContextId context) const {
    const Context& here = contexts_[context];
    const auto demands = [](std::uint32_t owed) { return owed % 2 == 0; };
    return (here.following & TheEnd) != 0 && std::ranges::none_of(here.owed, demands);
}

ContextId Contexts::intern(const Context& context) {
    std::u32string key;
    key.push_back(context.following | (context.atStart ? 8U : 0U) | (context.behindWord ? 16U : 0U));
    for (const auto* list : {&context.owed, &context.waiting, &context.held}) {
        key.push_back(static_cast<char32_t>(list->size()));
        key.append(list->begin(), list->end());
    }
    const auto [place, isNew] = ids_.try_emplace(std::move(key), static_cast<ContextId>(contexts_.size()));
    if (isNew)
        contexts_.push_back(context);
    return place->second;
}

Contexts::Ids Contexts::remember(std::uint64_t question, const std::vector<ContextId>& answer) {
    const std::size_t first = answerIds_.size();
    answerIds_.insert(answerIds_.end(), answer.begin(), answer.end());
    answers_.emplace(question, Answer{first, answer.size()});
    return Ids(answerIds_).subspan(first);
}

bool Contexts::isKnown(std::uint64_t question, Ids& answer) const {
    const auto found = answers_.find(question);
    if (found == answers_.end())
        return false;
    answer = Ids(answerIds_).subspan(found->second.first, found->second.count);
    return true;
}

bool Contexts::spend(std::size_t steps) {
    steps_ += steps;
    incomplete_ = incomplete_ || steps_ > mostContextSteps;
    return !incomplete_;
}

std::vector<ContextId> Contexts::settle(Draft first) {
    std::vector<ContextId> result;
    std::vector<Draft> drafts;
    drafts.push_back(std::move(first));
    while (!drafts.empty()) {
        Draft draft = std::move(drafts.back());
        drafts.pop_back();
        if (!spend(draft.size()))
            break;
        if (!closeLookbehinds(draft, drafts) || !payOwed(draft, drafts))
            continue;
        sortUnique(draft.context.owed);
        sortUnique(draft.context.waiting);
        sortUnique(draft.context.held);
        result.push_back(intern(draft.context));
    }
    sortUnique(result);
    dropDemanding(result);
    return result;
}

/// Leaves out what owes all that another one owes, and more: nothing follows it that cannot follow the other.
void Contexts::dropDemanding(std::vector<ContextId>& ids) const {
    if (ids.size() > mostComparedContexts)
        return;
    const auto isWorse = [](const Context& left, const Context& right) {
        return (left.following & ~right.following) == 0 && left.waiting == right.waiting &&
               left.held == right.held && std::ranges::includes(left.owed, right.owed);
    };
    std::vector<ContextId> kept;
    for (std::size_t i = 0; i < ids.size(); ++i) {
        // They differ, so that no two of them are worse than each other.
        const auto beats = [&](ContextId other) {
            return other != ids[i] && isWorse(contexts_[ids[i]], contexts_[other]);
        };
        if (std::ranges::none_of(ids, beats))
            kept.push_back(ids[i]);
    }
    ids = std::move(kept);
}

/// False when the draft has come to a contradiction; what was decided otherwise is in `others`.
bool Contexts::closeLookbehinds(Draft& draft, std::vector<Draft>& others) {
    for (; draft.lookaround < lookarounds_; ++draft.lookaround) {
        const Nfa::Body& body = nfa_.lookarounds[draft.lookaround];
        if (!body.behind)
            continue;
        // Once for each body, and not again in a copy that goes on with it.
        if (!draft.seen.contains(body.start)) {
            draft.closing.push_back(body.start);
            for (const std::uint32_t state : draft.moved) {
                if (state >= body.first && state < body.end)
                    draft.closing.push_back(state);
            }
        }
        while (!draft.closing.empty()) {
            const std::uint32_t state = draft.closing.back();
            draft.closing.pop_back();
            if (!spend(1) || draft.context.following == 0)
                return false;
            if (draft.seen.insert(state).second)
                closeState(draft, state, others);
        }
    }
    return draft.context.following != 0;
}

void Contexts::closeState(Draft& draft, std::uint32_t number, std::vector<Draft>& others) const {
    const State& state = nfa_.states[number];
    switch (state.kind) {
    case StateKind::Match:
        draft.context.held.push_back(draft.lookaround);
        return;
    case StateKind::Split:
        for (const Branch& branch : nfa_.branchesOf(state))
            draft.closing.push_back(branch.target);
        return;
    case StateKind::Character:
        draft.context.waiting.push_back(number);
        return;
    case StateKind::TextStart:
        if (draft.context.atStart)
            draft.closing.push_back(state.next);
        return;
    case StateKind::TextEnd:
    case StateKind::WordBoundary: {
        const std::uint8_t following = followingOf(draft.context, state);
        others.push_back(draft);
        others.back().context.following &= allBut(following);
        draft.context.following &= following;
        draft.closing.push_back(state.next);
        return;
    }
    case StateKind::Lookaround:
        break;
    }
    const Nfa::Body& body = nfa_.lookarounds[state.value];
    if (body.behind) {
        // An inner one has the lower number, and is closed.
        const auto& held = draft.context.held;
        if ((std::ranges::find(held, state.value) != held.end()) != state.negated)
            draft.closing.push_back(state.next);
        return;
    }
    others.push_back(draft);
    others.back().agenda.push_back(body.start * 2 + (state.negated ? 0U : 1U));
    draft.agenda.push_back(body.start * 2 + (state.negated ? 1U : 0U));
    draft.closing.push_back(state.next);
}

/// The same, when the lookbehinds are closed.
bool Contexts::payOwed(Draft& draft, std::vector<Draft>& others) {
    while (!draft.agenda.empty()) {
        const std::uint32_t owed = draft.agenda.back();
        draft.agenda.pop_back();
        if (!spend(1))
            return false;
        const bool holds =
            owed % 2 == 0 ? followOwed(draft, owed / 2, others) : followForbidden(draft, owed / 2, others);
        if (!holds)
            return false;
    }
    return true;
}

/// One way of a body that shall match, for which one of the drafts is in charge each. The state that it is at
/// is the last of the agenda, with its path.
bool Contexts::followOwed(Draft& draft, std::uint32_t number, std::vector<Draft>& others) const {
    const State& state = nfa_.states[number];
    std::uint32_t next = state.next;
    switch (state.kind) {
    case StateKind::Match:
        draft.path.clear();
        return true;
    case StateKind::Character:
        draft.path.clear();
        draft.context.owed.push_back(mustMatch(number));
        return true;
    case StateKind::Split: {
        if (std::ranges::find(draft.path, number) != draft.path.end())
            return false;
        draft.path.push_back(number);
        const auto branches = nfa_.branchesOf(state);
        for (const Branch& branch : branches.subspan(1)) {
            others.push_back(draft);
            others.back().agenda.push_back(mustMatch(branch.target));
        }
        next = branches.front().target;
        break;
    }
    case StateKind::TextStart:
        if (!draft.context.atStart)
            return false;
        break;
    case StateKind::TextEnd:
    case StateKind::WordBoundary:
        if (!promise(draft.context, followingOf(draft.context, state)))
            return false;
        break;
    case StateKind::Lookaround: {
        const Nfa::Body& body = nfa_.lookarounds[state.value];
        if (!body.behind) {
            // Below what this one goes on with.
            draft.agenda.push_back(body.start * 2 + (state.negated ? 1U : 0U));
        } else if (std::ranges::find(draft.context.held, state.value) == draft.context.held.end()) {
            if (!state.negated)
                return false;
        } else if (state.negated) {
            return false;
        }
        break;
    }
    }
    draft.agenda.push_back(mustMatch(next));
    return true;
}

/// All ways of a body that shall not match.
bool Contexts::followForbidden(Draft& draft, std::uint32_t number, std::vector<Draft>& others) const {
    if (!draft.seen.insert(number).second)
        return true;
    const State& state = nfa_.states[number];
    bool holds = true;
    switch (state.kind) {
    case StateKind::Match:
        return false;
    case StateKind::Character:
        draft.context.owed.push_back(mustNotMatch(number));
        return true;
    case StateKind::Split:
        for (const Branch& branch : nfa_.branchesOf(state))
            draft.agenda.push_back(mustNotMatch(branch.target));
        return true;
    case StateKind::TextStart:
        holds = draft.context.atStart;
        break;
    case StateKind::TextEnd:
    case StateKind::WordBoundary:
        // Either the condition fails, or what is behind it.
        others.push_back(draft);
        if (!promise(others.back().context, allBut(followingOf(draft.context, state))))
            others.pop_back();
        break;
    case StateKind::Lookaround: {
        const Nfa::Body& body = nfa_.lookarounds[state.value];
        if (body.behind) {
            const auto& held = draft.context.held;
            holds = (std::ranges::find(held, state.value) != held.end()) != state.negated;
        } else {
            others.push_back(draft);
            others.back().agenda.push_back(body.start * 2 + (state.negated ? 0U : 1U));
        }
        break;
    }
    }
    if (holds)
        draft.agenda.push_back(mustNotMatch(state.next));
    return true;
}

} // namespace specloom::egret
