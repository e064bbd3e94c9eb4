#pragma once

#include "egret/analysis/budget.h"
#include "regex/syntax.h"

#include <cstddef> // std::size_t
#include <cstdint> // std::uint32_t, std::uint64_t
#include <span>    // std::span
#include <vector>  // std::vector

namespace specloom::egret::checks {

/// The characters of one or several patterns as far as the patterns tell them apart, so that their automata
/// can be walked together. What stands at one place of a pattern, a character or a class, is a label: a set
/// of such classes of characters.
class Alphabet {
  public:
    using Label = std::uint32_t;

    /// The trees outlive it.
    Alphabet(std::span<const regex::SyntaxTree* const> trees, Budget& budget);

    /// Of a node of the kinds Character and Class, in the tree of that index.
    [[nodiscard]] Label labelOf(const regex::Node& node, std::size_t tree) const;
    /// Of all characters.
    [[nodiscard]] Label anything() const noexcept { return labels_ - 1; }

    [[nodiscard]] std::uint32_t classCount() const noexcept { return classCount_; }
    [[nodiscard]] bool contains(Label label, std::uint32_t characterClass) const noexcept {
        return (wordsOf(label)[characterClass / 64] >> (characterClass % 64) & 1U) != 0;
    }
    /// Whether a character has both labels.
    [[nodiscard]] bool meet(Label a, Label b) const noexcept;

  private:
    [[nodiscard]] std::span<const std::uint64_t> wordsOf(Label label) const noexcept {
        return std::span(members_).subspan(label * words_, words_);
    }
    void insert(Label label, std::uint32_t characterClass);

    std::vector<char32_t> characters_;
    std::vector<std::uint32_t> firstSets_; ///< for each tree the label of its first set
    std::uint32_t setCount_ = 0;
    std::uint32_t classCount_ = 0;
    Label labels_ = 0;
    std::size_t words_ = 0;
    std::vector<std::uint64_t> members_; ///< a bit for each label and class
};

} // namespace specloom::egret::checks
