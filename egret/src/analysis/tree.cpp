#include "egret/analysis/tree.h"

#include "foundation/ascii.h"
#include "foundation/printable.h"
#include "foundation/utf8.h"

#include <algorithm> // std::ranges::all_of, std::min

namespace specloom::egret::checks {

namespace {

using Kind = regex::Node::Kind;

constexpr std::size_t quotedCharacters = 60;

std::uint64_t saturatedSum(std::uint64_t a, std::uint64_t b) {
    return a > UINT64_MAX - b ? UINT64_MAX : a + b;
}

} // namespace

std::span<const regex::Node> partsOf(const regex::Node& node) {
    return node.kind == Kind::Sequence ? std::span(node.children) : std::span(&node, 1);
}

std::span<const regex::Node> alternativesOf(const regex::Node& node) {
    return node.kind == Kind::Alternation ? std::span(node.children) : std::span(&node, 1);
}

const regex::Node& withoutGroups(const regex::Node& node) {
    const regex::Node* inner = &node;
    while (inner->kind == Kind::Group)
        inner = &inner->children.front();
    return *inner;
}

const regex::Node& repeatedIn(const regex::Node& node) {
    const regex::Node* inner = &node;
    while (inner->kind == Kind::Group || inner->kind == Kind::Repetition)
        inner = &inner->children.front();
    return *inner;
}

bool isEmpty(const regex::Node& node) {
    return node.kind == Kind::Sequence && node.children.empty();
}

bool isWide(const regex::Node& node, const regex::SyntaxTree& tree) {
    if (node.kind != Kind::Class)
        return false;
    std::uint64_t members = 0;
    for (const regex::CodePointRange& range : tree.sets[node.value].ranges())
        members += range.last - range.first + 1;
    return members > regex::lastCodePoint / 2;
}

bool isNarrow(const regex::Node& node, const regex::SyntaxTree& tree) {
    return node.kind == Kind::Class && !isWide(node, tree);
}

bool isDigits(const regex::Node& node, const regex::SyntaxTree& tree) {
    if (node.kind == Kind::Character)
        return ascii::isDigit(node.value);
    if (node.kind != Kind::Class)
        return false;
    return std::ranges::all_of(tree.sets[node.value].ranges(), [](const regex::CodePointRange& range) {
        return ascii::isDigit(range.first) && ascii::isDigit(range.last);
    });
}

std::string literalOf(const regex::Node& node) {
    std::string text;
    for (const regex::Node& part : partsOf(node)) {
        const bool surrogate = part.value >= 0xD800 && part.value <= 0xDFFF;
        if (part.kind != Kind::Character || surrogate)
            return "";
        appendUtf8(part.value, text);
    }
    return text;
}

std::uint64_t ShortestLengths::measure(const regex::Node& node) {
    std::uint64_t length = 0;
    if (node.kind == Kind::Character || node.kind == Kind::Class)
        length = 1;
    else if (node.kind == Kind::Alternation)
        length = UINT64_MAX;
    for (const regex::Node& child : node.children) {
        const std::uint64_t part = measure(child);
        if (node.kind == Kind::Alternation)
            length = std::min(length, part);
        else if (node.kind == Kind::Repetition)
            length = part > UINT32_MAX && node.min > 0 ? UINT64_MAX : part * node.min;
        else if (node.kind != Kind::LookAhead && node.kind != Kind::LookBehind)
            length = saturatedSum(length, part);
    }
    lengths_.emplace(&node, length);
    return length;
}

std::string quoted(std::string_view text) {
    const std::size_t shown = bytesOfColumns(text, quotedCharacters);
    return "'" + printable(text.substr(0, shown)) + (shown < text.size() ? "…'" : "'");
}

} // namespace specloom::egret::checks
