#include "templating/snippet.h"

#include "templating/template_set.h"

#include <algorithm> // std::find
#include <cstddef>   // std::size_t

namespace specloom::templating {

Snippet::Snippet(std::string_view text, std::initializer_list<std::string_view> names) {
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t open = text.find("{{", at);
        const std::size_t close = open == std::string_view::npos ? open : text.find("}}", open);
        if (close == std::string_view::npos) {
            pieces_.push_back({text.substr(at), names.size()});
            return;
        }
        const std::string_view name = text.substr(open + 2, close - open - 2);
        const auto* const found = std::find(names.begin(), names.end(), name);
        if (found == names.end())
            throw TemplateError(formatMessage("Unknown place in a snippet: {}", name));
        pieces_.push_back({text.substr(at, open - at), static_cast<std::size_t>(found - names.begin())});
        at = close + 2;
    }
}

void Snippet::append(std::initializer_list<std::string_view> values, std::string& out) const {
    for (const Piece& piece : pieces_) {
        out += piece.text;
        if (piece.value < values.size())
            out += values.begin()[piece.value];
    }
}

} // namespace specloom::templating
