#include "egret/analysis/alphabet.h"

#include "egret/analysis/tree.h"
#include "regex/classes.h"

#include <algorithm> // std::ranges::sort, std::ranges::lower_bound, std::unique

namespace specloom::egret::checks {

Alphabet::Alphabet(std::span<const regex::SyntaxTree* const> trees, Budget& budget) {
    std::vector<regex::CharSet> sets;
    std::size_t ranges = 0;
    for (const regex::SyntaxTree* tree : trees) {
        firstSets_.push_back(static_cast<std::uint32_t>(sets.size()));
        sets.insert(sets.end(), tree->sets.begin(), tree->sets.end());
        for (const regex::CharSet& set : tree->sets)
            ranges += set.ranges().size();
        forEachNode(tree->root, [&](const regex::Node& node) {
            if (node.kind == regex::Node::Kind::Character)
                characters_.push_back(node.value);
        });
    }
    std::ranges::sort(characters_);
    characters_.erase(std::unique(characters_.begin(), characters_.end()), characters_.end());
    budget.spend(characters_.size() + (sets.size() + 1) * (ranges + characters_.size()));

    const regex::CharacterClasses classes(sets, characters_);
    setCount_ = static_cast<std::uint32_t>(sets.size());
    classCount_ = classes.count();
    labels_ = setCount_ + static_cast<Label>(characters_.size()) + 1;
    words_ = (classCount_ + 63) / 64;
    budget.spend(labels_ * words_ + std::uint64_t{setCount_} * classCount_);
    members_.resize(labels_ * words_);
    for (std::uint32_t characterClass = 0; characterClass < classCount_; ++characterClass) {
        insert(anything(), characterClass);
        for (std::uint32_t set = 0; set < setCount_; ++set)
            if (classes.contains(set, characterClass))
                insert(set, characterClass);
    }
    for (std::size_t i = 0; i < characters_.size(); ++i)
        insert(setCount_ + static_cast<Label>(i), classes.of(characters_[i]));
}

void Alphabet::insert(Label label, std::uint32_t characterClass) {
    members_[label * words_ + characterClass / 64] |= std::uint64_t{1} << (characterClass % 64);
}

Alphabet::Label Alphabet::labelOf(const regex::Node& node, std::size_t tree) const {
    if (node.kind == regex::Node::Kind::Class)
        return firstSets_[tree] + node.value;
    const auto place = std::ranges::lower_bound(characters_, static_cast<char32_t>(node.value));
    return setCount_ + static_cast<Label>(place - characters_.begin());
}

bool Alphabet::meet(Label a, Label b) const noexcept {
    const auto first = wordsOf(a);
    const auto second = wordsOf(b);
    for (std::size_t i = 0; i < words_; ++i)
        if ((first[i] & second[i]) != 0)
            return true;
    return false;
}

} // namespace specloom::egret::checks
