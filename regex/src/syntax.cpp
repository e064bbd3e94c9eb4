#include "regex/syntax.h"

#include "regex/pattern.h"
#include "regex/properties.h"
#include "regex/utf8.h"

#include <algorithm> // std::min
#include <map>       // std::map
#include <optional>  // std::optional
#include <string>    // std::string
#include <utility>   // std::move, std::pair

namespace specloom::regex {

namespace {

using Kind = PatternNode::Kind;

constexpr std::size_t rangesOfPart = 16;

struct Bounds {
    std::uint32_t min;
    std::uint32_t max;
};

std::optional<char32_t> hexDigit(char character) {
    if (character >= '0' && character <= '9')
        return character - '0';
    if (character >= 'a' && character <= 'f')
        return character - 'a' + 10;
    if (character >= 'A' && character <= 'F')
        return character - 'A' + 10;
    return std::nullopt;
}

bool isDigit(char character) {
    return character >= '0' && character <= '9';
}
bool isLetter(char character) {
    return (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z');
}
bool isHighSurrogate(char32_t codeUnit) {
    return codeUnit >= 0xD800 && codeUnit <= 0xDBFF;
}
bool isLowSurrogate(char32_t codeUnit) {
    return codeUnit >= 0xDC00 && codeUnit <= 0xDFFF;
}

/// Whether what begins here cannot be repeated. Lookaheads can (ECMA-262, Annex B.1.2).
bool isAssertion(std::string_view source) {
    constexpr std::string_view beginnings[] = {"^", "$", "\\b", "\\B", "(?<=", "(?<!"};
    return std::ranges::any_of(beginnings, [&](std::string_view text) { return source.starts_with(text); });
}

/// Recursive descent: one round for each level of groups, which are limited.
class Parser {
  public:
    explicit Parser(std::string_view source) : source_(source) {}

    PatternSyntax parse() {
        syntax_.root = disjunction(0);
        if (!atEnd())
            fail("Unmatched ')'", position_);
        return std::move(syntax_);
    }

  private:
    [[noreturn]] static void fail(const std::string& message, std::size_t offset) {
        throw PatternError(message, offset);
    }

    [[nodiscard]] bool atEnd() const { return position_ == source_.size(); }
    [[nodiscard]] bool startsWith(std::string_view text) const {
        return source_.substr(position_).starts_with(text);
    }
    bool skip(std::string_view text) {
        if (!startsWith(text))
            return false;
        position_ += text.size();
        return true;
    }
    [[nodiscard]] char peek() const { return atEnd() ? '\0' : source_[position_]; }

    char32_t next() {
        const DecodedCharacter character = decodeCharacter(source_.substr(position_));
        if (!character.valid)
            fail("Pattern is not UTF-8", position_);
        position_ += character.length;
        return character.codePoint;
    }

    PatternNode disjunction(std::size_t depth) {
        PatternNode first = alternative(depth);
        if (peek() != '|')
            return first;
        PatternNode choice{.kind = Kind::Choice, .zeroWidth = first.zeroWidth, .size = first.size};
        choice.children.push_back(std::move(first));
        while (skip("|")) {
            PatternNode other = alternative(depth);
            choice.zeroWidth = choice.zeroWidth && other.zeroWidth;
            choice.size = sum(choice.size, other.size + 1ULL, position_);
            choice.children.push_back(std::move(other));
        }
        return choice;
    }

    PatternNode alternative(std::size_t depth) {
        PatternNode sequence;
        while (!atEnd() && peek() != '|' && peek() != ')') {
            const std::size_t begin = position_;
            PatternNode part = term(depth);
            sequence.zeroWidth = sequence.zeroWidth && part.zeroWidth;
            sequence.size = sum(sequence.size, part.size, begin);
            count(1, begin);
            sequence.children.push_back(std::move(part));
        }
        if (sequence.children.size() == 1)
            return std::move(sequence.children.front());
        return sequence;
    }

    PatternNode term(std::size_t depth) {
        const std::size_t begin = position_;
        PatternNode part = atom(depth);
        const std::size_t behind = position_;
        const std::optional<Bounds> bounds = quantifier();
        if (!bounds)
            return part;
        if (isAssertion(source_.substr(begin)))
            fail("Nothing to repeat", behind);
        return repeat(std::move(part), *bounds, behind);
    }

    PatternNode repeat(PatternNode part, Bounds bounds, std::size_t offset) {
        // What consumes nothing does no more the second time than the first.
        if (part.zeroWidth)
            return bounds.min == 0 ? PatternNode{} : std::move(part);
        PatternNode result{
            .kind = Kind::Repeat, .zeroWidth = bounds.max == 0, .min = bounds.min, .max = bounds.max};
        const std::uint64_t mandatory = std::uint64_t{bounds.min} * part.size;
        const std::uint64_t optional = bounds.max != unbounded
                                           ? (bounds.max - bounds.min) * (part.size + 1ULL)
                                       : bounds.min == 0 ? part.size + 1ULL
                                                         : 1ULL;
        result.size = sum(0, mandatory + optional, offset);
        result.children.push_back(std::move(part));
        return result;
    }

    std::optional<Bounds> quantifier() {
        const std::size_t begin = position_;
        std::optional<Bounds> bounds;
        if (skip("*"))
            bounds = Bounds{0, unbounded};
        else if (skip("+"))
            bounds = Bounds{1, unbounded};
        else if (skip("?"))
            bounds = Bounds{0, 1};
        else if (bracesFollow())
            bounds = braces();
        if (!bounds)
            return std::nullopt;
        if (bounds->min > bounds->max)
            fail("Numbers of a quantifier are out of order", begin);
        skip("?"); // Whether it is greedy or not changes no outcome.
        return bounds;
    }

    /// An opening brace that neither a digit nor a comma follows is itself.
    [[nodiscard]] bool bracesFollow() const {
        if (peek() != '{' || position_ + 1 == source_.size())
            return false;
        const char following = source_[position_ + 1];
        return isDigit(following) || following == ',';
    }

    Bounds braces() {
        const std::size_t begin = position_;
        skip("{");
        if (!isDigit(peek()))
            fail("Quantifier has no lower bound", begin);
        Bounds bounds{};
        bounds.min = bounds.max = number();
        if (skip(","))
            bounds.max = isDigit(peek()) ? number() : unbounded;
        if (!skip("}"))
            fail("Incomplete quantifier", begin);
        return bounds;
    }

    /// No text is long enough to tell a number of more than 32 bits from infinity.
    std::uint32_t number() {
        std::uint64_t value = 0;
        for (; isDigit(peek()); ++position_)
            value = std::min<std::uint64_t>(value * 10 + static_cast<std::uint64_t>(peek() - '0'), unbounded);
        return static_cast<std::uint32_t>(value);
    }

    PatternNode atom(std::size_t depth) {
        const std::size_t begin = position_;
        switch (peek()) {
        case '^':
            ++position_;
            return leaf(Kind::TextStart);
        case '$':
            ++position_;
            return leaf(Kind::TextEnd);
        case '(':
            return group(depth);
        case '[':
            return characterClass();
        case '\\':
            return escape();
        case '.':
            ++position_;
            return set(dotSet());
        case '*':
        case '+':
        case '?':
            fail("Nothing to repeat", begin);
        default:
            if (bracesFollow())
                fail("Nothing to repeat", begin);
            return character(next());
        }
    }

    PatternNode group(std::size_t depth) {
        const std::size_t begin = position_;
        if (depth == Pattern::maxNesting)
            fail("Pattern is nested too deeply", begin);
        ++position_;
        Kind kind = Kind::Sequence;
        bool negated = false;
        if (skip("?=") || skip("?!")) {
            kind = Kind::LookAhead;
            negated = source_[position_ - 1] == '!';
        } else if (skip("?<=") || skip("?<!")) {
            kind = Kind::LookBehind;
            negated = source_[position_ - 1] == '!';
        } else if (skip("?<")) {
            groupName(begin);
        } else if (!skip("?:") && peek() == '?') {
            fail("Invalid group", begin);
        }
        count(1, begin);
        PatternNode body = disjunction(depth + 1);
        if (!skip(")"))
            fail("Unterminated group", begin);
        return kind == Kind::Sequence ? std::move(body) : lookaround(kind, negated, std::move(body), begin);
    }

    void groupName(std::size_t begin) {
        const std::size_t nameBegin = position_;
        while (!atEnd() && peek() != '>') {
            const char32_t codePoint = next();
            const bool digit = codePoint >= '0' && codePoint <= '9';
            const bool known = codePoint == '_' || codePoint == '$' || codePoint >= 0x80 || digit ||
                               isLetter(static_cast<char>(codePoint));
            if (!known || (digit && position_ - nameBegin == 1))
                fail("Invalid name of a group", begin);
        }
        if (position_ == nameBegin || !skip(">"))
            fail("Invalid name of a group", begin);
    }

    PatternNode lookaround(Kind kind, bool negated, PatternNode body, std::size_t offset) {
        lookaroundSize_ = sum(lookaroundSize_, body.size + 1ULL, offset);
        PatternNode result = leaf(kind, static_cast<std::uint32_t>(syntax_.lookarounds.size()));
        result.negated = negated;
        syntax_.lookarounds.push_back(std::move(body));
        return result;
    }

    PatternNode escape() {
        const std::size_t begin = position_;
        ++position_;
        if (atEnd())
            fail("Pattern ends with a backslash", begin);
        if (skip("b"))
            return leaf(Kind::WordBoundary);
        if (skip("B")) {
            PatternNode result = leaf(Kind::WordBoundary);
            result.negated = true;
            return result;
        }
        if (const std::optional<CharSet> escaped = classEscape(begin))
            return set(*escaped);
        return character(characterEscape(begin));
    }

    /// Behind the backslash at `begin`: \d, \p{...} and their like.
    std::optional<CharSet> classEscape(std::size_t begin) {
        const char letter = peek();
        switch (letter) {
        case 'd':
        case 'D':
        case 'w':
        case 'W':
        case 's':
        case 'S': {
            ++position_;
            const char lower = static_cast<char>(letter | 0x20);
            const CharSet& named = lower == 'd' ? digitSet() : lower == 'w' ? wordSet() : spaceSet();
            return letter == lower ? named : named.complement();
        }
        case 'p':
        case 'P':
            ++position_;
            return property(begin, letter == 'P');
        default:
            return std::nullopt;
        }
    }

    const CharSet& property(std::size_t begin, bool negated) {
        const std::size_t end = source_.find('}', position_);
        if (peek() != '{' || end == std::string_view::npos)
            fail("Invalid escape", begin);
        const std::string_view expression = source_.substr(position_ + 1, end - position_ - 1);
        const auto [place, isNew] = properties_.try_emplace({expression, negated});
        if (isNew) {
            const std::optional<CharSet> members = unicodeProperty(expression);
            if (!members)
                fail("Unknown Unicode property", begin);
            place->second = negated ? members->complement() : *members;
        }
        position_ = end + 1;
        return place->second;
    }

    /// Behind the backslash at `begin`: what stands for one character, in a class and out of one.
    char32_t characterEscape(std::size_t begin) {
        const char letter = peek();
        if (isDigit(letter) || letter == 'k')
            return digitEscape(begin);
        if (!isLetter(letter))
            return next(); // Flag "u" knows fewer of these; nothing else could be meant.
        ++position_;
        switch (letter) {
        case 'f':
            return '\f';
        case 'n':
            return '\n';
        case 'r':
            return '\r';
        case 't':
            return '\t';
        case 'v':
            return '\v';
        case 'c':
            if (!isLetter(peek()))
                fail("Invalid escape", begin);
            return static_cast<char32_t>(source_[position_++]) % 32;
        case 'x':
            return hexNumber(2, begin);
        case 'u':
            return unicodeEscape(begin);
        default:
            fail("Invalid escape", begin);
        }
    }

    char32_t digitEscape(std::size_t begin) {
        const char first = source_[position_++];
        if (first != '0')
            fail("Backreferences are not supported", begin);
        if (isDigit(peek()))
            fail("Octal escapes are not supported", begin);
        return 0;
    }

    char32_t hexNumber(std::size_t digits, std::size_t begin) {
        char32_t value = 0;
        for (std::size_t i = 0; i < digits; ++i) {
            const auto digit = hexDigit(peek());
            if (!digit)
                fail("Invalid escape", begin);
            value = value * 16 + *digit;
            ++position_;
        }
        return value;
    }

    char32_t unicodeEscape(std::size_t begin) {
        if (skip("{")) {
            char32_t value = 0;
            const std::size_t digits = position_;
            while (const auto digit = hexDigit(peek())) {
                value = std::min<char32_t>(value * 16 + *digit, lastCodePoint + 1);
                ++position_;
            }
            if (position_ == digits || value > lastCodePoint || !skip("}"))
                fail("Invalid escape", begin);
            return value;
        }
        const char32_t first = hexNumber(4, begin);
        const std::size_t behind = position_;
        if (isHighSurrogate(first) && skip("\\u") && peek() != '{') {
            const char32_t second = hexNumber(4, behind);
            if (isLowSurrogate(second))
                return 0x10000 + ((first - 0xD800) << 10U) + (second - 0xDC00);
        }
        position_ = behind;
        return first;
    }

    PatternNode characterClass() {
        const std::size_t begin = position_;
        ++position_;
        const bool negated = skip("^");
        CharSet members;
        while (!skip("]")) {
            if (atEnd())
                fail("Unterminated character class", begin);
            classMember(members);
        }
        members.normalize();
        return set(negated ? members.complement() : members);
    }

    /// One member, or a range of them.
    void classMember(CharSet& members) {
        const std::size_t begin = position_;
        const std::optional<char32_t> first = classAtom(members);
        if (peek() != '-' || source_.substr(position_ + 1).starts_with(']')) {
            if (first)
                members.add(*first, *first);
            return;
        }
        ++position_;
        if (atEnd())
            return;
        const std::optional<char32_t> last = classAtom(members);
        if (first && last) {
            if (*first > *last)
                fail("Range of a character class is out of order", begin);
            members.add(*first, *last);
            return;
        }
        // A class such as \d bounds no range: it, the hyphen and the other are members (Annex B.1.2.8).
        members.add('-', '-');
        if (first)
            members.add(*first, *first);
        if (last)
            members.add(*last, *last);
    }

    /// A character, or nothing when it was a class, which is then among the members.
    std::optional<char32_t> classAtom(CharSet& members) {
        const std::size_t begin = position_;
        if (!skip("\\"))
            return next();
        if (atEnd())
            fail("Pattern ends with a backslash", begin);
        if (skip("b"))
            return '\b';
        if (const std::optional<CharSet> escaped = classEscape(begin)) {
            count(escaped->ranges().size() / rangesOfPart, begin);
            members.add(*escaped);
            return std::nullopt;
        }
        return characterEscape(begin);
    }

    PatternNode leaf(Kind kind, std::uint32_t value = 0) { return {.kind = kind, .value = value, .size = 1}; }

    PatternNode character(char32_t codePoint) {
        return {.kind = Kind::Character, .zeroWidth = false, .value = codePoint, .size = 1};
    }

    PatternNode set(const CharSet& members) {
        const auto& ranges = members.ranges();
        if (ranges.size() == 1 && ranges.front().first == ranges.front().last)
            return character(ranges.front().first);
        std::vector<char32_t> key;
        for (const CodePointRange& range : ranges)
            key.insert(key.end(), {range.first, range.last});
        const auto [place, isNew] =
            setIndex_.try_emplace(std::move(key), static_cast<std::uint32_t>(syntax_.sets.size()));
        if (isNew) {
            count(ranges.size() / rangesOfPart, position_);
            syntax_.sets.push_back(members);
        }
        return {.kind = Kind::Set, .zeroWidth = false, .value = place->second, .size = 1};
    }

    /// Keeps the memory of the syntax within bounds where it makes no instructions, as empty groups do, or
    /// large ones, as the sets of properties: 16 ranges count as one part.
    void count(std::size_t parts, std::size_t offset) { parts_ = sum(parts_, parts, offset); }

    static std::uint32_t sum(std::uint32_t size, std::uint64_t more, std::size_t offset) {
        if (more > Pattern::maxInstructions || size + more > Pattern::maxInstructions)
            fail("Pattern is too large", offset);
        return static_cast<std::uint32_t>(size + more);
    }

    std::string_view source_;
    std::size_t position_ = 0;
    std::uint32_t parts_ = 0;
    std::uint32_t lookaroundSize_ = 0;
    PatternSyntax syntax_;
    std::map<std::vector<char32_t>, std::uint32_t> setIndex_;
    /// Those met so far, by name and whether negated.
    std::map<std::pair<std::string_view, bool>, CharSet> properties_;
};

} // namespace

PatternSyntax parsePattern(std::string_view source) {
    return Parser(source).parse();
}

} // namespace specloom::regex
