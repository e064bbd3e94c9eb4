#include "foundation/ascii.h"
#include "foundation/validators/validators.h"

#include <algorithm>   // std::max
#include <array>       // std::array
#include <cstddef>     // std::size_t
#include <cstdint>     // std::uint64_t
#include <exception>   // std::exception
#include <optional>    // std::optional
#include <string_view> // std::string_view
#include <vector>      // std::vector

#include <utf8cpp/utf8.h>

namespace specloom {
namespace {

// The compiler of the standard library calls itself once for each character, so that a long text ends the
// process; only the grammar is checked here, with the open groups on a stack of our own.

/// A number that stays at its largest value instead of overflowing.
std::uint64_t saturatingAppend(std::uint64_t number, char digit) {
    constexpr std::uint64_t most = 1'000'000'000'000'000'000;
    return number >= most / 10 ? most : number * 10 + static_cast<std::uint64_t>(digit - '0');
}

/// What stands between brackets: a character by its code point, or a class of several.
struct ClassAtom {
    std::optional<char32_t> character;
};

class RegexChecker {
  public:
    explicit RegexChecker(std::string_view text) : m_text(text) {}

    [[nodiscard]] bool check() {
        while (m_at < m_text.size()) {
            if (!term())
                return false;
        }
        return m_openGroups.empty() && m_highestReference <= m_captures;
    }

  private:
    /// Whether `text` stands next; steps over it then.
    bool take(std::string_view text) {
        if (m_text.substr(m_at, text.size()) != text)
            return false;
        m_at += text.size();
        return true;
    }

    bool term() {
        const char byte = m_text[m_at++];
        switch (byte) {
        case '|':
        case '^':
        case '$':
            m_repeatable = false;
            return true;
        case '(':
            return openGroup();
        case ')':
            return closeGroup();
        case '[':
            m_repeatable = true;
            return bracketExpression();
        case '\\':
            return escape();
        case '*':
        case '+':
        case '?':
            return endQuantifier();
        case '{':
            return interval() && endQuantifier();
        default:
            m_repeatable = true;
            return true;
        }
    }

    /// Behind a quantifier, which needs something to repeat and may be lazy.
    bool endQuantifier() {
        const bool hadAtom = m_repeatable;
        m_repeatable = false;
        take("?");
        return hadAtom;
    }

    bool openGroup() {
        const bool lookahead = take("?=") || take("?!");
        if (!lookahead && !take("?:")) {
            if (take("?"))
                return false;
            ++m_captures;
        }
        m_openGroups.push_back(lookahead);
        m_repeatable = false;
        return true;
    }

    bool closeGroup() {
        if (m_openGroups.empty())
            return false;
        m_repeatable = !m_openGroups.back();
        m_openGroups.pop_back();
        return true;
    }

    std::optional<std::uint64_t> number() {
        const std::size_t start = m_at;
        std::uint64_t value = 0;
        while (m_at < m_text.size() && ascii::isDigit(m_text[m_at]))
            value = saturatingAppend(value, m_text[m_at++]);
        return m_at == start ? std::nullopt : std::optional(value);
    }

    /// Behind "{".
    bool interval() {
        const std::optional<std::uint64_t> least = number();
        if (!least)
            return false;
        if (take(",")) {
            const std::optional<std::uint64_t> most = number();
            if (most && *most < *least)
                return false;
        }
        return take("}");
    }

    /// Behind a backslash that stands outside of brackets.
    bool escape() {
        m_repeatable = true;
        if (take("b") || take("B")) {
            m_repeatable = false;
            return true;
        }
        if (m_at < m_text.size() && ascii::isDigit(m_text[m_at])) {
            // A reference may stand in front of its group, so the count of groups is known at the end only.
            m_highestReference = std::max(m_highestReference, number().value_or(0));
            return true;
        }
        return classEscape() || characterEscape().has_value();
    }

    bool classEscape() { return take("d") || take("D") || take("s") || take("S") || take("w") || take("W"); }

    std::optional<char32_t> hexNumber(std::size_t digits) {
        char32_t value = 0;
        for (; digits > 0; --digits) {
            if (m_at == m_text.size() || !ascii::isHexDigit(m_text[m_at]))
                return std::nullopt;
            const char byte = m_text[m_at++];
            const int digit = ascii::isDigit(byte) ? byte - '0' : (byte | 0x20) - 'a' + 10;
            value = value * 16 + static_cast<char32_t>(digit);
        }
        return value;
    }

    /// Behind a backslash: the escapes of a single character.
    std::optional<char32_t> characterEscape() {
        if (m_at == m_text.size())
            return std::nullopt;
        if (!ascii::isLetter(m_text[m_at]))
            return character();
        constexpr std::string_view names = "fnrtv";
        constexpr std::array<char32_t, 5> controls = {0x0C, 0x0A, 0x0D, 0x09, 0x0B};
        const char letter = m_text[m_at++];
        if (const std::size_t found = names.find(letter); found != std::string_view::npos)
            return controls[found];
        if (letter == 'x')
            return hexNumber(2);
        if (letter == 'u')
            return hexNumber(4);
        if (letter == 'c' && m_at < m_text.size() && ascii::isLetter(m_text[m_at]))
            return static_cast<char32_t>(m_text[m_at++] & 0x1F);
        return std::nullopt;
    }

    char32_t character() {
        const char* next = m_text.data() + m_at;
        const auto value = static_cast<char32_t>(utf8::unchecked::next(next));
        m_at = static_cast<std::size_t>(next - m_text.data());
        return value;
    }

    /// Behind "[".
    bool bracketExpression() {
        take("^");
        while (!take("]")) {
            const std::optional<ClassAtom> first = classAtom();
            if (!first)
                return false;
            if (m_text.substr(m_at, 1) != "-" || m_text.substr(m_at, 2) == "-]")
                continue;
            ++m_at;
            const std::optional<ClassAtom> last = classAtom();
            // A class of several characters is no end of a range.
            if (!last || !first->character || !last->character || *last->character < *first->character)
                return false;
        }
        return true;
    }

    /// Nothing at the end of the text and at a fault.
    std::optional<ClassAtom> classAtom() {
        if (m_at == m_text.size())
            return std::nullopt;
        for (const std::string_view kind : {"[:", "[.", "[="}) {
            if (take(kind))
                return namedClass(kind.back());
        }
        if (!take("\\"))
            return ClassAtom{character()};
        if (classEscape())
            return ClassAtom{};
        if (take("b"))
            return ClassAtom{U'\b'};
        if (take("0"))
            return ClassAtom{U'\0'};
        if (m_at < m_text.size() && ascii::isDigit(m_text[m_at]))
            return std::nullopt;
        const std::optional<char32_t> escaped = characterEscape();
        return escaped ? std::optional(ClassAtom{escaped}) : std::nullopt;
    }

    /// Behind "[:", "[." or "[=".
    std::optional<ClassAtom> namedClass(char kind) {
        constexpr std::array<std::string_view, 15> classes = {"alnum", "alpha", "blank", "cntrl", "d",
                                                              "digit", "graph", "lower", "print", "punct",
                                                              "s",     "space", "upper", "w",     "xdigit"};
        if (kind == ':') {
            for (const std::string_view name : classes) {
                if (m_text.substr(m_at, name.size()) == name &&
                    m_text.substr(m_at + name.size(), 2) == ":]") {
                    m_at += name.size() + 2;
                    return ClassAtom{};
                }
            }
            return std::nullopt;
        }
        // Of collating elements and equivalence classes those of one character are known.
        if (m_at == m_text.size())
            return std::nullopt;
        const char32_t element = character();
        if (!take(kind == '.' ? ".]" : "=]"))
            return std::nullopt;
        return kind == '.' ? ClassAtom{element} : ClassAtom{};
    }

    std::string_view m_text;
    std::size_t m_at = 0;
    /// For each open group whether it is a look-ahead, which cannot be repeated.
    std::vector<bool> m_openGroups;
    /// Whether a quantifier may stand next.
    bool m_repeatable = false;
    std::uint64_t m_captures = 0;
    std::uint64_t m_highestReference = 0;
};

} // namespace

bool isRegex(std::string_view text) noexcept {
    try {
        return utf8::is_valid(text.begin(), text.end()) && RegexChecker(text).check();
    } catch (const std::exception&) {
        return false; // no memory for the open groups
    }
}

} // namespace specloom
