#include "egret/checks/shadowed_alternative.h"

#include "egret/analysis/tree.h"
#include "egret/checks/language.h"
#include "egret/checks/matches_everything.h"

#include <algorithm>     // std::ranges::none_of
#include <map>           // std::map
#include <optional>      // std::optional
#include <string>        // std::string, std::to_string
#include <unordered_map> // std::unordered_map

namespace specloom::egret::checks {

namespace {

using Kind = regex::Node::Kind;

/// The alternatives of one alternation, tried by leaving some of them out of the whole pattern.
class ShadowedAlternatives {
  public:
    ShadowedAlternatives(const Language& language, const regex::Node& alternation, Budget& budget)
        : language_(language), alternation_(alternation), budget_(budget), kept_(size(), true),
          withNone_(automatonOf(std::vector<bool>(size()))), shadows_(size()) {}

    /// For each alternative the one that matches all that it matches; itself where it takes several.
    const std::vector<std::optional<std::size_t>>& find() {
        for (std::size_t i = size(); i-- > 0;)
            if (isShadowed(i)) {
                kept_[i] = false;
                shadows_[i] = shadowOf(i);
            }
        return shadows_;
    }

  private:
    [[nodiscard]] std::size_t size() const { return alternation_.children.size(); }

    TextAutomaton automatonOf(std::vector<bool> kept) {
        return language_.restricted({&alternation_, std::move(kept)}, budget_);
    }
    TextAutomaton automatonOfOne(std::size_t index) {
        std::vector<bool> kept(size());
        kept[index] = true;
        return automatonOf(std::move(kept));
    }

    bool isShadowed(std::size_t index) {
        const TextAutomaton alone = automatonOfOne(index);
        // Where the pattern does without all of them, no one of them shadows another.
        if (isIncluded(alone, withNone_, budget_))
            return false;
        std::vector<bool> others = kept_;
        others[index] = false;
        const TextAutomaton rest = automatonOf(std::move(others));
        // The first question is answered sooner; the second one is the one that matters.
        return isIncluded(alone, rest, budget_) && isIncluded(automatonOf(kept_), rest, budget_);
    }

    std::size_t shadowOf(std::size_t index) {
        const TextAutomaton alone = automatonOfOne(index);
        for (std::size_t i = 0; i < size(); ++i)
            if (kept_[i] && isIncluded(alone, automatonOfOne(i), budget_))
                return i;
        return index;
    }

    const Language& language_;
    const regex::Node& alternation_;
    Budget& budget_;
    std::vector<bool> kept_;
    TextAutomaton withNone_;
    std::vector<std::optional<std::size_t>> shadows_;
};

/// What is said of `count` alternatives with the first of them.
std::string described(const Subject& subject, const regex::Node& first, std::size_t count,
                      const regex::Node& shadow) {
    const std::string name = quoted(subject.textOf(first));
    if (&first == &shadow)
        return name + " changes nothing: the other alternatives match all that it matches";
    const std::string other = quoted(subject.textOf(shadow));
    if (name == other)
        return name + " stands among the alternatives more than once";
    if (count == 1)
        return name + " changes nothing: " + other + " matches all that it matches";
    return name + " and " + std::to_string(count - 1) + (count == 2 ? " other" : " others") +
           " change nothing: " + other + " matches all that they match";
}

void report(const Subject& subject, const regex::Node& alternation,
            const std::vector<std::optional<std::size_t>>& shadows, Findings& findings) {
    // One warning for each alternative that shadows others, at the first of those.
    struct Shadowed {
        std::size_t first;
        std::size_t count = 0;
    };
    std::map<std::size_t, Shadowed> byShadow;
    for (std::size_t i = 0; i < shadows.size(); ++i)
        if (shadows[i])
            ++byShadow.try_emplace(*shadows[i], Shadowed{i}).first->second.count;
    for (const auto& [shadow, shadowed] : byShadow) {
        const regex::Node& first = alternation.children[shadowed.first];
        findings.add(first.begin, described(subject, first, shadowed.count, alternation.children[shadow]));
    }
}

/// Equal spelling shows without an automaton, however long the pattern.
void findRepeated(const Subject& subject, const regex::Node& alternation, Findings& findings) {
    std::unordered_map<std::string_view, std::size_t> seen;
    std::vector<std::optional<std::size_t>> shadows(alternation.children.size());
    for (std::size_t i = 0; i < shadows.size(); ++i) {
        const auto [place, isNew] = seen.try_emplace(subject.textOf(alternation.children[i]), i);
        if (!isNew && !isEmpty(alternation.children[i]))
            shadows[i] = place->second;
    }
    report(subject, alternation, shadows, findings);
}

} // namespace

void findShadowedAlternative(const Subject& subject, Findings& findings) {
    std::vector<const regex::Node*> alternations;
    forEachNode(subject.tree.root, [&](const regex::Node& node) {
        if (node.kind == Kind::Alternation)
            alternations.push_back(&node);
    });
    for (const regex::Node* alternation : alternations)
        findRepeated(subject, *alternation, findings);
    if (alternations.empty() || !findings.warnings().empty() || isWithoutEffect(subject))
        return;
    Budget budget;
    const Language language(subject, budget);
    if (!language.automaton.isExact())
        return;
    for (const regex::Node* alternation : alternations)
        if (std::ranges::none_of(alternation->children, isEmpty)) // which is for another check
            report(subject, *alternation, ShadowedAlternatives(language, *alternation, budget).find(),
                   findings);
}

} // namespace specloom::egret::checks
