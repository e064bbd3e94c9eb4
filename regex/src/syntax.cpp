#include "regex/syntax.h"

#include "regex/properties.h"
#include "regex/utf8.h"

#include <algorithm> // std::min
#include <map>       // std::map
#include <optional>  // std::optional
#include <string>    // std::string
#include <utility>   // std::move, std::pair

namespace specloom::regex {

namespace {

using Kind = Node::Kind;

constexpr std::size_t rangesOfPart = 16;

struct Quantifier {
    std::uint32_t min;
    std::uint32_t max;
    bool greedy = true;
};

std::optional<char32_t> hexValue(char character) {
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

/// Whether it cannot be repeated. Lookaheads can (ECMA-262, Annex B.1.2).
bool isAssertion(const Node& node) {
    return node.kind == Kind::TextStart || node.kind == Kind::TextEnd || node.kind == Kind::WordBoundary ||
           node.kind == Kind::LookBehind;
}

/// Recursive descent: one round for each level of groups, which are limited.
class Parser {
  public:
    /// Tells how the pattern is spelt, unless `spelling` is null.
    Parser(std::string_view source, Spelling* spelling) : source_(source), spelling_(spelling) {}

    SyntaxTree parse() {
        tree_.root = disjunction(0);
        if (!atEnd())
            fail("Unmatched ')'", position_);
        return std::move(tree_);
    }

  private:
    [[noreturn]] static void fail(const std::string& message, std::size_t offset) {
        throw SyntaxError(message, offset);
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

    [[nodiscard]] std::uint32_t here() const { return static_cast<std::uint32_t>(position_); }

    Node disjunction(std::size_t depth) {
        const std::uint32_t begin = here();
        Node first = alternative(depth);
        if (peek() != '|')
            return first;
        Node alternation{
            .kind = Kind::Alternation, .zeroWidth = first.zeroWidth, .size = first.size, .begin = begin};
        alternation.children.push_back(std::move(first));
        while (skip("|")) {
            Node other = alternative(depth);
            alternation.zeroWidth = alternation.zeroWidth && other.zeroWidth;
            alternation.size = sum(alternation.size, other.size + 1ULL, position_);
            alternation.children.push_back(std::move(other));
        }
        alternation.end = here();
        return alternation;
    }

    Node alternative(std::size_t depth) {
        Node sequence{.begin = here()};
        while (!atEnd() && peek() != '|' && peek() != ')') {
            const std::size_t begin = position_;
            Node part = term(depth);
            sequence.zeroWidth = sequence.zeroWidth && part.zeroWidth;
            sequence.size = sum(sequence.size, part.size, begin);
            count(1, begin);
            sequence.children.push_back(std::move(part));
        }
        if (sequence.children.size() == 1)
            return std::move(sequence.children.front());
        sequence.end = here();
        return sequence;
    }

    Node term(std::size_t depth) {
        const std::uint32_t begin = here();
        Node part = atom(depth);
        part.begin = begin;
        part.end = here();
        const std::size_t behind = position_;
        const std::optional<Quantifier> quantifier = quantifierBehind();
        if (!quantifier)
            return part;
        if (isAssertion(part))
            fail("Nothing to repeat", behind);
        Node result = repetition(std::move(part), *quantifier, behind);
        result.begin = begin;
        result.end = here();
        return result;
    }

    static Node repetition(Node part, const Quantifier& quantifier, std::size_t offset) {
        Node result{.kind = Kind::Repetition,
                    .greedy = quantifier.greedy,
                    .zeroWidth = part.zeroWidth || quantifier.max == 0,
                    .min = quantifier.min,
                    .max = quantifier.max,
                    .size = sum(0, sizeOf(part, quantifier), offset)};
        result.children.push_back(std::move(part));
        return result;
    }

    static std::uint64_t sizeOf(const Node& part, const Quantifier& quantifier) {
        // What consumes nothing does no more the second time than the first.
        if (part.zeroWidth)
            return quantifier.min == 0 ? 0 : part.size;
        const std::uint64_t mandatory = std::uint64_t{quantifier.min} * part.size;
        if (quantifier.max == unbounded)
            return mandatory + (quantifier.min == 0 ? part.size + 1ULL : 1ULL);
        return mandatory + (quantifier.max - quantifier.min) * (part.size + 1ULL);
    }

    std::optional<Quantifier> quantifierBehind() {
        const std::size_t begin = position_;
        std::optional<Quantifier> quantifier;
        if (skip("*"))
            quantifier = Quantifier{0, unbounded};
        else if (skip("+"))
            quantifier = Quantifier{1, unbounded};
        else if (skip("?"))
            quantifier = Quantifier{0, 1};
        else if (bracesFollow())
            quantifier = braces();
        if (!quantifier)
            return std::nullopt;
        if (quantifier->min > quantifier->max)
            fail("Numbers of a quantifier are out of order", begin);
        quantifier->greedy = !skip("?");
        return quantifier;
    }

    /// An opening brace that neither a digit nor a comma follows is itself.
    [[nodiscard]] bool bracesFollow() const {
        if (peek() != '{' || position_ + 1 == source_.size())
            return false;
        const char following = source_[position_ + 1];
        return isDigit(following) || following == ',';
    }

    Quantifier braces() {
        const std::size_t begin = position_;
        skip("{");
        if (!isDigit(peek()))
            fail("Quantifier has no lower bound", begin);
        Quantifier quantifier{};
        quantifier.min = quantifier.max = number();
        if (skip(","))
            quantifier.max = isDigit(peek()) ? number() : unbounded;
        if (!skip("}"))
            fail("Incomplete quantifier", begin);
        return quantifier;
    }

    /// No text is long enough to tell a number of more than 32 bits from infinity.
    std::uint32_t number() {
        std::uint64_t value = 0;
        for (; isDigit(peek()); ++position_)
            value = std::min<std::uint64_t>(value * 10 + static_cast<std::uint64_t>(peek() - '0'), unbounded);
        return static_cast<std::uint32_t>(value);
    }

    Node atom(std::size_t depth) {
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

    Node group(std::size_t depth) {
        const std::size_t begin = position_;
        if (depth == maxNesting)
            fail("Pattern is nested too deeply", begin);
        ++position_;
        Node result = groupOpening(begin);
        count(1, begin);
        Node body = disjunction(depth + 1);
        if (!skip(")"))
            fail("Unterminated group", begin);
        if (result.kind == Kind::Group) {
            result.zeroWidth = body.zeroWidth;
            result.size = body.size;
        } else {
            lookaroundSize_ = sum(lookaroundSize_, body.size + 1ULL, begin);
            result.value = lookarounds_++;
            result.size = 1;
        }
        result.children.push_back(std::move(body));
        return result;
    }

    /// Behind the parenthesis at `begin`.
    Node groupOpening(std::size_t begin) {
        if (skip("?:"))
            return {.kind = Kind::Group};
        if (skip("?=") || skip("?!"))
            return {.kind = Kind::LookAhead, .negated = source_[position_ - 1] == '!'};
        if (skip("?<=") || skip("?<!"))
            return {.kind = Kind::LookBehind, .negated = source_[position_ - 1] == '!'};
        std::string_view name;
        if (skip("?<"))
            name = groupName(begin);
        else if (peek() == '?')
            fail("Invalid group", begin);
        tree_.groupNames.emplace_back(name);
        return {.kind = Kind::Group, .value = static_cast<std::uint32_t>(tree_.groupNames.size())};
    }

    std::string_view groupName(std::size_t begin) {
        const std::size_t nameBegin = position_;
        while (!atEnd() && peek() != '>') {
            const char32_t codePoint = next();
            const bool digit = codePoint >= '0' && codePoint <= '9';
            const bool known = codePoint == '_' || codePoint == '$' || codePoint >= 0x80 || digit ||
                               isLetter(static_cast<char>(codePoint));
            if (!known || (digit && position_ - nameBegin == 1))
                fail("Invalid name of a group", begin);
        }
        const std::string_view name = source_.substr(nameBegin, position_ - nameBegin);
        if (name.empty() || !skip(">"))
            fail("Invalid name of a group", begin);
        return name;
    }

    Node escape() {
        const std::size_t begin = position_;
        ++position_;
        if (atEnd())
            fail("Pattern ends with a backslash", begin);
        if (skip("b") || skip("B")) {
            Node result = leaf(Kind::WordBoundary);
            result.negated = source_[position_ - 1] == 'B';
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
        if (!isLetter(letter)) {
            if (spelling_ != nullptr)
                spelling_->escapes.push_back({static_cast<std::uint32_t>(begin), inClass_});
            return next(); // Flag "u" knows fewer of these; nothing else could be meant.
        }
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
            const auto digit = hexValue(peek());
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
            while (const auto digit = hexValue(peek())) {
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

    Node characterClass() {
        const std::size_t begin = position_;
        ++position_;
        const bool negated = skip("^");
        if (spelling_ != nullptr)
            spelling_->classes.push_back({static_cast<std::uint32_t>(begin), 0, negated});
        CharSet members;
        inClass_ = true;
        while (!skip("]")) {
            if (atEnd())
                fail("Unterminated character class", begin);
            classMember(members);
        }
        inClass_ = false;
        if (spelling_ != nullptr)
            spelling_->classes.back().end = here();
        members.normalize();
        return set(negated ? members.complement() : members);
    }

    /// One member, or a range of them.
    void classMember(CharSet& members) {
        const std::size_t begin = position_;
        const std::optional<char32_t> first = classAtom(members);
        if (peek() != '-' || source_.substr(position_ + 1).starts_with(']')) {
            if (first)
                addRange(members, *first, *first, begin);
            return;
        }
        const std::size_t hyphen = position_;
        ++position_;
        if (atEnd())
            return;
        const std::size_t second = position_;
        const std::optional<char32_t> last = classAtom(members);
        if (first && last) {
            if (*first > *last)
                fail("Range of a character class is out of order", begin);
            addRange(members, *first, *last, begin);
            return;
        }
        // A class such as \d quantifier no range: it, the hyphen and the other are members (Annex B.1.2.8).
        addRange(members, '-', '-', hyphen, hyphen + 1);
        if (first)
            addRange(members, *first, *first, begin, hyphen);
        if (last)
            addRange(members, *last, *last, second);
    }

    /// What is spelt from `begin` to here.
    void addRange(CharSet& members, char32_t first, char32_t last, std::size_t begin) {
        addRange(members, first, last, begin, position_);
    }
    void addRange(CharSet& members, char32_t first, char32_t last, std::size_t begin, std::size_t end) {
        members.add(first, last);
        if (spelling_ != nullptr)
            addEntry({static_cast<std::uint32_t>(begin), static_cast<std::uint32_t>(end), first, last});
    }

    void addEntry(Spelling::ClassEntry entry) {
        spelling_->classes.back().entries.push_back(std::move(entry));
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
            if (spelling_ != nullptr)
                addEntry({.begin = static_cast<std::uint32_t>(begin), .end = here(), .named = *escaped});
            return std::nullopt;
        }
        return characterEscape(begin);
    }

    static Node leaf(Kind kind) { return {.kind = kind, .size = 1}; }

    static Node character(char32_t codePoint) {
        return {.kind = Kind::Character, .zeroWidth = false, .value = codePoint, .size = 1};
    }

    Node set(const CharSet& members) {
        const auto& ranges = members.ranges();
        if (ranges.size() == 1 && ranges.front().first == ranges.front().last)
            return character(ranges.front().first);
        std::vector<char32_t> key;
        for (const CodePointRange& range : ranges)
            key.insert(key.end(), {range.first, range.last});
        const auto [place, isNew] =
            setIndex_.try_emplace(std::move(key), static_cast<std::uint32_t>(tree_.sets.size()));
        if (isNew) {
            count(ranges.size() / rangesOfPart, position_);
            tree_.sets.push_back(members);
        }
        return {.kind = Kind::Class, .zeroWidth = false, .value = place->second, .size = 1};
    }

    /// Keeps the memory of the syntax within quantifier where it makes no instructions, as empty groups do,
    /// or large ones, as the sets of properties: 16 ranges count as one part.
    void count(std::size_t parts, std::size_t offset) { parts_ = sum(parts_, parts, offset); }

    static std::uint32_t sum(std::uint32_t size, std::uint64_t more, std::size_t offset) {
        if (more > maxInstructions || size + more > maxInstructions)
            fail("Pattern is too large", offset);
        return static_cast<std::uint32_t>(size + more);
    }

    std::string_view source_;
    Spelling* spelling_;
    std::size_t position_ = 0;
    bool inClass_ = false;
    std::uint32_t parts_ = 0;
    std::uint32_t lookarounds_ = 0;
    std::uint32_t lookaroundSize_ = 0;
    SyntaxTree tree_;
    std::map<std::vector<char32_t>, std::uint32_t> setIndex_;
    /// Those met so far, by name and whether negated.
    std::map<std::pair<std::string_view, bool>, CharSet> properties_;
};

} // namespace

SyntaxTree parse(std::string_view source) {
    return Parser(source, nullptr).parse();
}

SyntaxTree parse(std::string_view source, Spelling& spelling) {
    return Parser(source, &spelling).parse();
}

} // namespace specloom::regex
