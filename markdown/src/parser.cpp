#include "markdown/parser.h"

#include <algorithm> // std::find_if
#include <array>     // std::array
#include <cstdint>   // std::uint32_t
#include <exception> // std::exception_ptr
#include <iterator>  // std::back_inserter
#include <new>       // std::bad_alloc
#include <optional>  // std::optional

#include <md4c.h>

#include "foundation/ascii.h"
#include "foundation/utf8.h"

namespace specloom::markdown {
namespace {

constexpr std::string_view replacementCharacter = "\uFFFD";

struct NamedCharacter {
    std::string_view name;
    std::string_view text;
};

/// The named character references that matter to those who ask: what can make up the scheme of a link, and
/// what stands between words.
constexpr std::array<NamedCharacter, 24> namedCharacters = {{
    {"Tab", "\t"},        {"NewLine", "\n"},   {"colon", ":"},       {"plus", "+"},       {"period", "."},
    {"sol", "/"},         {"amp", "&"},        {"lt", "<"},          {"gt", ">"},         {"quot", "\""},
    {"apos", "'"},        {"lowbar", "_"},     {"nbsp", "\u00A0"},   {"ensp", "\u2002"},  {"emsp", "\u2003"},
    {"thinsp", "\u2009"}, {"ndash", "\u2013"}, {"mdash", "\u2014"},  {"lsquo", "\u2018"}, {"rsquo", "\u2019"},
    {"ldquo", "\u201C"},  {"rdquo", "\u201D"}, {"hellip", "\u2026"}, {"bull", "\u2022"},
}};

/// "&#1234;" and "&#x12AB;" without the leading "&#" and the semicolon. CommonMark has at most seven digits.
std::string numericCharacter(std::string_view number) {
    const bool hexadecimal = number.starts_with('x') || number.starts_with('X');
    number.remove_prefix(hexadecimal ? 1 : 0);
    std::uint32_t code = 0;
    for (const char c : number) {
        code = code * (hexadecimal ? 16 : 10) + static_cast<std::uint32_t>(ascii::hexValue(c));
    }
    std::string text;
    if (code == 0 || code > 0x10FFFF || (code >= 0xD800 && code <= 0xDFFF))
        text = replacementCharacter;
    else
        appendUtf8(static_cast<char32_t>(code), text);
    return text;
}

/// The text of a character reference such as "&amp;"; empty when its name is not known.
std::string resolveCharacter(std::string_view reference) {
    const std::string_view name = reference.substr(1, reference.size() - 2);
    if (name.starts_with('#'))
        return numericCharacter(name.substr(1));
    const auto* found = std::find_if(namedCharacters.begin(), namedCharacters.end(),
                                     [&](const NamedCharacter& known) { return known.name == name; });
    return found == namedCharacters.end() ? std::string() : std::string(found->text);
}

/// What stands beside the text: a destination or a title.
std::string attributeText(const MD_ATTRIBUTE& attribute) {
    std::string text;
    for (std::size_t i = 0; attribute.size > 0 && attribute.substr_offsets[i] < attribute.size; ++i) {
        const std::string_view piece(attribute.text + attribute.substr_offsets[i],
                                     attribute.substr_offsets[i + 1] - attribute.substr_offsets[i]);
        const std::string resolved =
            attribute.substr_types[i] == MD_TEXT_ENTITY ? resolveCharacter(piece) : std::string();
        if (attribute.substr_types[i] == MD_TEXT_NULLCHAR)
            text += replacementCharacter;
        else
            text += resolved.empty() ? piece : std::string_view(resolved);
    }
    return text;
}

Link toLink(const MD_ATTRIBUTE& destination, const MD_ATTRIBUTE& title) {
    return {.destination = attributeText(destination),
            .writtenDestination = {destination.text, destination.size},
            .title = attributeText(title)};
}

/// The parser is written in C: exceptions must not pass through it.
class Callbacks {
  public:
    explicit Callbacks(Handler& handler) : handler_(handler) {}

    void parse(std::string_view text) {
        MD_PARSER parser{};
        parser.flags = MD_DIALECT_COMMONMARK;
        parser.enter_block = [](MD_BLOCKTYPE, void*, void*) { return 0; };
        parser.leave_block = [](MD_BLOCKTYPE, void*, void* self) {
            return guarded(self, [](Handler& handler) { handler.lineEnd(); });
        };
        parser.enter_span = [](MD_SPANTYPE type, void* detail, void* self) {
            return guarded(self, [&](Handler& handler) { enterSpan(type, detail, handler); });
        };
        parser.leave_span = [](MD_SPANTYPE, void*, void*) { return 0; };
        parser.text = [](MD_TEXTTYPE type, const MD_CHAR* piece, MD_SIZE size, void* self) {
            return guarded(self, [&](Handler& handler) { showText(type, {piece, size}, handler); });
        };
        const int status = md_parse(text.data(), static_cast<MD_SIZE>(text.size()), &parser, this);
        if (failure_)
            std::rethrow_exception(failure_);
        if (status != 0) // the parser itself fails for lack of memory alone
            throw std::bad_alloc();
    }

  private:
    template <typename Function>
    static int guarded(void* self, const Function& call) {
        auto& callbacks = *static_cast<Callbacks*>(self);
        try {
            call(callbacks.handler_);
            return 0;
        } catch (...) {
            callbacks.failure_ = std::current_exception();
            return 1;
        }
    }

    static void enterSpan(MD_SPANTYPE type, const void* detail, Handler& handler) {
        if (type == MD_SPAN_A) {
            const auto& link = *static_cast<const MD_SPAN_A_DETAIL*>(detail);
            handler.link(toLink(link.href, link.title));
        } else if (type == MD_SPAN_IMG) {
            const auto& image = *static_cast<const MD_SPAN_IMG_DETAIL*>(detail);
            handler.link(toLink(image.src, image.title));
        } else if (type == MD_SPAN_CODE) {
            handler.code();
        }
    }

    static void showText(MD_TEXTTYPE type, std::string_view text, Handler& handler) {
        switch (type) {
        case MD_TEXT_NORMAL:
            handler.text(text);
            break;
        case MD_TEXT_NULLCHAR:
            handler.text(replacementCharacter);
            break;
        case MD_TEXT_ENTITY: {
            const std::string resolved = resolveCharacter(text);
            handler.text(resolved.empty() ? replacementCharacter : std::string_view(resolved));
            break;
        }
        case MD_TEXT_BR:
        case MD_TEXT_SOFTBR:
            handler.lineEnd();
            break;
        case MD_TEXT_HTML:
            handler.html();
            break;
        case MD_TEXT_CODE:
        case MD_TEXT_LATEXMATH:
            break;
        }
    }

    Handler& handler_;
    std::exception_ptr failure_;
};

} // namespace

void parse(std::string_view text, Handler& handler) {
    Callbacks(handler).parse(text);
}

} // namespace specloom::markdown
