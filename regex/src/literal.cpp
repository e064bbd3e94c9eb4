#include "regex/literal.h"

#include "regex/utf8.h"

#include <span> // std::span

namespace specloom::regex {

namespace {

using Kind = PatternNode::Kind;

} // namespace

bool PatternLiteral::matches(std::string_view searched) const {
    if (atStart && atEnd)
        return searched == text;
    if (atStart)
        return searched.starts_with(text);
    return atEnd ? searched.ends_with(text) : searched.find(text) != std::string_view::npos;
}

std::optional<PatternLiteral> literalOf(const PatternNode& root) {
    std::span<const PatternNode> parts(&root, 1);
    if (root.kind == Kind::Sequence)
        parts = root.children;
    PatternLiteral result;
    if (!parts.empty() && parts.front().kind == Kind::TextStart) {
        result.atStart = true;
        parts = parts.subspan(1);
    }
    if (!parts.empty() && parts.back().kind == Kind::TextEnd) {
        result.atEnd = true;
        parts = parts.first(parts.size() - 1);
    }
    for (const PatternNode& part : parts) {
        // Bytes that are not UTF-8 match U+FFFD, and surrogates stand in no text.
        const bool plain = part.kind == Kind::Character && part.value != replacementCharacter &&
                           (part.value < 0xD800 || part.value > 0xDFFF);
        if (!plain)
            return std::nullopt;
        appendCharacter(result.text, part.value);
    }
    return result;
}

} // namespace specloom::regex
