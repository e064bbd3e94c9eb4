#pragma once

#include "regex/syntax.h"

#include <cstdint>       // std::uint64_t
#include <span>          // std::span
#include <string>        // std::string
#include <string_view>   // std::string_view
#include <unordered_map> // std::unordered_map

// What checks ask of the tree of a pattern. Walks are as deep as the tree, which is limited.
namespace specloom::egret::checks {

/// Calls `visit` for a node and all below it, outer ones before inner ones.
template <typename Visit>
void forEachNode(const regex::Node& node, const Visit& visit) {
    visit(node);
    for (const regex::Node& child : node.children)
        forEachNode(child, visit);
}

/// What stands one behind the other: the children of a sequence, else the node alone.
[[nodiscard]] std::span<const regex::Node> partsOf(const regex::Node& node);

/// What stands between bars: the children of an alternation, else the node alone.
[[nodiscard]] std::span<const regex::Node> alternativesOf(const regex::Node& node);

/// The node without the groups around it.
[[nodiscard]] const regex::Node& withoutGroups(const regex::Node& node);

/// The same without repetitions too: what a repetition repeats.
[[nodiscard]] const regex::Node& repeatedIn(const regex::Node& node);

/// Whether it is the empty expression.
[[nodiscard]] bool isEmpty(const regex::Node& node);

/// Whether it stands for one of more than half of all characters, as ".", "\S" and "[^/]" do.
[[nodiscard]] bool isWide(const regex::Node& node, const regex::SyntaxTree& tree);
/// Whether it is a class of fewer characters.
[[nodiscard]] bool isNarrow(const regex::Node& node, const regex::SyntaxTree& tree);

/// Whether it is a character or class of ASCII digits alone.
[[nodiscard]] bool isDigits(const regex::Node& node, const regex::SyntaxTree& tree);

/// The characters of a node of characters alone, as UTF-8; empty for any other.
[[nodiscard]] std::string literalOf(const regex::Node& node);

/// How many characters the shortest text of each node has, UINT64_MAX and above being one; assertions hold
/// nothing up.
class ShortestLengths {
  public:
    explicit ShortestLengths(const regex::Node& root) { measure(root); }
    [[nodiscard]] std::uint64_t of(const regex::Node& node) const { return lengths_.at(&node); }

  private:
    std::uint64_t measure(const regex::Node& node);

    std::unordered_map<const regex::Node*, std::uint64_t> lengths_;
};

/// `text` in single quotes, as one line; what is long is cut and ends in "…".
[[nodiscard]] std::string quoted(std::string_view text);

} // namespace specloom::egret::checks
