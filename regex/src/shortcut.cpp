#include "regex/shortcut.h"

#include "regex/utf8.h"

#include <algorithm> // std::ranges::all_of, std::ranges::any_of
#include <iterator>  // std::back_inserter
#include <span>      // std::span

#include <utf8cpp/utf8.h>

namespace specloom::regex {

namespace {

using Kind = Node::Kind;

/// With more texts than these an automaton is faster than a look at each.
constexpr std::size_t maxTexts = 16;

std::span<const Node> partsOf(const Node& node) {
    return node.kind == Kind::Sequence ? std::span(node.children) : std::span(&node, 1);
}

bool canBeLeftOut(const Node& node) {
    return node.kind == Kind::Repetition && node.min == 0;
}

std::optional<std::string> textOf(std::span<const Node> parts) {
    std::string text;
    for (const Node& part : parts) {
        // Bytes that are not UTF-8 match U+FFFD, and surrogates stand in no text.
        const bool plain = part.kind == Kind::Character && part.value != replacementCharacter &&
                           (part.value < 0xD800 || part.value > 0xDFFF);
        if (!plain)
            return std::nullopt;
        utf8::unchecked::append(part.value, std::back_inserter(text));
    }
    return text;
}

/// Empty when the parts are something else than a text, or a few of them to choose from.
std::vector<std::string> textsOf(std::span<const Node> parts) {
    if (parts.size() == 1 && parts.front().kind == Kind::Group)
        parts = partsOf(parts.front().children.front());
    std::vector<std::span<const Node>> alternatives{parts};
    if (parts.size() == 1 && parts.front().kind == Kind::Alternation) {
        if (parts.front().children.size() > maxTexts)
            return {};
        alternatives.clear();
        for (const Node& alternative : parts.front().children)
            alternatives.push_back(partsOf(alternative));
    }
    std::vector<std::string> texts;
    for (const std::span<const Node> alternative : alternatives) {
        std::optional<std::string> text = textOf(alternative);
        if (!text)
            return {};
        texts.push_back(std::move(*text));
    }
    return texts;
}

} // namespace

std::optional<Shortcut> Shortcut::of(const SyntaxTree& tree) {
    std::span<const Node> parts = partsOf(tree.root);
    Texts result;
    if (!parts.empty() && parts.front().kind == Kind::TextStart) {
        result.atStart = true;
        parts = parts.subspan(1);
    }
    if (!parts.empty() && parts.back().kind == Kind::TextEnd) {
        result.atEnd = true;
        parts = parts.first(parts.size() - 1);
    }
    // Where anything may stand around a match, what can be left out of it need not be looked for.
    while (!result.atStart && !parts.empty() && canBeLeftOut(parts.front()))
        parts = parts.subspan(1);
    while (!result.atEnd && !parts.empty() && canBeLeftOut(parts.back()))
        parts = parts.first(parts.size() - 1);
    result.texts = textsOf(parts);
    if (!result.texts.empty())
        return Shortcut(std::move(result));
    if (result.atStart && result.atEnd && parts.size() == 1) {
        if (const std::optional<Bytes> bytes = bytesOf(parts.front(), tree))
            return Shortcut(*bytes);
    }
    return std::nullopt;
}

std::optional<Shortcut::Bytes> Shortcut::bytesOf(const Node& node, const SyntaxTree& tree) {
    Bytes result{.min = 1, .max = 1};
    const Node* repeated = &node;
    if (node.kind == Kind::Repetition) {
        result.min = node.min;
        result.max = node.max == unbounded ? SIZE_MAX : node.max;
        repeated = &node.children.front();
    }
    if (repeated->kind != Kind::Class && repeated->kind != Kind::Character)
        return std::nullopt;
    const CharSet character{{repeated->value, repeated->value}};
    const CharSet& set = repeated->kind == Kind::Class ? tree.sets[repeated->value] : character;
    for (const CodePointRange& range : set.ranges()) {
        if (range.last >= 0x80)
            return std::nullopt;
        std::fill(result.accepted.begin() + range.first, result.accepted.begin() + range.last + 1, true);
    }
    return result;
}

bool Shortcut::matches(std::string_view searched) const {
    if (const Bytes* bytes = std::get_if<Bytes>(&form_)) {
        return searched.size() >= bytes->min && searched.size() <= bytes->max &&
               std::ranges::all_of(
                   searched, [&](char byte) { return bytes->accepted[static_cast<unsigned char>(byte)]; });
    }
    const Texts& form = *std::get_if<Texts>(&form_);
    return std::ranges::any_of(form.texts, [&](const std::string& text) {
        if (form.atStart)
            return form.atEnd ? searched == text : searched.starts_with(text);
        return form.atEnd ? searched.ends_with(text) : searched.find(text) != std::string_view::npos;
    });
}

char Shortcut::firstByte() const {
    const Texts* form = std::get_if<Texts>(&form_);
    const bool known = form != nullptr && form->atStart && form->texts.size() == 1;
    return known && !form->texts.front().empty() ? form->texts.front().front() : '\0';
}

} // namespace specloom::regex
