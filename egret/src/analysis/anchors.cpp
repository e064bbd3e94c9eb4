#include "egret/analysis/anchors.h"

#include "egret/analysis/tree.h"
#include "foundation/ascii.h"

#include <algorithm> // std::ranges::all_of, std::ranges::any_of, std::ranges::equal

namespace specloom::egret::checks {

namespace {

using Kind = regex::Node::Kind;

const regex::Node* outermost(const regex::Node& node, Side side) {
    const std::span<const regex::Node> parts = partsOf(node);
    if (parts.empty())
        return nullptr;
    return side == Side::Start ? &parts.front() : &parts.back();
}

std::span<const regex::Node> withoutAnchors(const regex::Node& node) {
    std::span<const regex::Node> parts = partsOf(node);
    if (hasAnchor(node, Side::Start))
        parts = parts.subspan(1);
    if (!parts.empty() && parts.back().kind == Kind::TextEnd)
        parts = parts.first(parts.size() - 1);
    return parts;
}

bool isEqual(const regex::Node& a, const regex::Node& b) {
    return a.kind == b.kind && a.negated == b.negated && a.value == b.value && a.min == b.min &&
           a.max == b.max && std::ranges::equal(a.children, b.children, isEqual);
}

/// Whether it is a name as it stands in lists of names: "json", ".json", "en-US".
bool isWord(const regex::Node& alternative) {
    const std::span<const regex::Node> parts = withoutAnchors(alternative);
    return !parts.empty() && std::ranges::all_of(parts, [](const regex::Node& part) {
        return part.kind == Kind::Character && (ascii::isAlphanumeric(part.value) || part.value == '_' ||
                                                part.value == '-' || part.value == '.');
    });
}

} // namespace

bool isAnchored(const regex::Node& node, Side side) {
    const std::span<const regex::Node> parts = partsOf(node);
    // A lookahead in front looks into the match, like a lookbehind at its end.
    const Kind inward = side == Side::Start ? Kind::LookAhead : Kind::LookBehind;
    for (std::size_t i = 0; i < parts.size(); ++i) {
        const regex::Node& part = side == Side::Start ? parts[i] : parts[parts.size() - 1 - i];
        if (part.kind == inward)
            continue;
        if (part.kind == Kind::Group || part.kind == Kind::Repetition)
            return isAnchored(part.children.front(), side);
        if (part.kind == Kind::Alternation)
            return std::ranges::any_of(part.children,
                                       [&](const regex::Node& child) { return isAnchored(child, side); });
        return part.kind != Kind::Character && part.kind != Kind::Class;
    }
    return false;
}

bool hasAnchor(const regex::Node& node, Side side) {
    const regex::Node* part = outermost(node, side);
    return part != nullptr && part->kind == (side == Side::Start ? Kind::TextStart : Kind::TextEnd);
}

std::optional<SplitAnchors> splitAnchors(const regex::Node& root) {
    const regex::Node& alternation = withoutGroups(root);
    if (alternation.kind != Kind::Alternation)
        return std::nullopt;
    const std::span<const regex::Node> alternatives(alternation.children);
    const regex::Node& front = alternatives.front();
    const regex::Node& back = alternatives.back();
    const auto anchored = [](Side side) {
        return [side](const regex::Node& alternative) { return isAnchored(alternative, side); };
    };
    SplitAnchors result{hasAnchor(front, Side::Start), hasAnchor(back, Side::End)};
    const bool onlyThere =
        !isAnchored(front, Side::End) && !isAnchored(back, Side::Start) &&
        std::ranges::none_of(alternatives.subspan(1), anchored(Side::Start)) &&
        std::ranges::none_of(alternatives.first(alternatives.size() - 1), anchored(Side::End));
    const bool something = !withoutAnchors(front).empty() && !withoutAnchors(back).empty();
    if (!onlyThere || !something || (!result.start && !result.end))
        return std::nullopt;
    if (result.start && result.end) {
        // "^ +| +$" looks for one thing at both ends.
        if (std::ranges::equal(withoutAnchors(front), withoutAnchors(back), isEqual))
            return std::nullopt;
        return result;
    }
    // With one anchor it is plain in a list of names only: "^/|://" may be meant.
    return std::ranges::all_of(alternatives, isWord) ? std::optional(result) : std::nullopt;
}

} // namespace specloom::egret::checks
