#include "foundation/uri_template_syntax.h"

#include "foundation/ascii.h"

#include <algorithm> // std::find_if
#include <array>     // std::array
#include <iterator>  // std::begin, std::end

#include <utf8cpp/utf8.h>

namespace specloom {
namespace {

using Fault = UriTemplateFault;

constexpr UriTemplateOperator noOperator = {'\0', "", ",", false, "", false};

constexpr std::array<UriTemplateOperator, 7> operators = {{
    {'+', "", ",", false, "", true},
    {'#', "#", ",", false, "", true},
    {'.', ".", ".", false, "", false},
    {'/', "/", "/", false, "", false},
    {';', ";", ";", true, "", false},
    {'?', "?", "&", true, "=", false},
    {'&', "&", "&", true, "=", false},
}};
constexpr std::string_view reservedOperators = "=,!@|";

/// The ASCII characters other than letters and digits that may stand outside of expressions. The apostrophe
/// is one of them by erratum 6937, as the examples of the RFC itself have it.
constexpr std::string_view literalMarks = "!#$&'()*+,-./:;=?@[]_~";

bool isAscii(char c) noexcept {
    return static_cast<unsigned char>(c) < 0x80;
}

/// ucschar and iprivate of RFC 3987, section 2.2.
bool isInternational(char32_t c) noexcept {
    if (c < 0xa0 || (c & 0xfffe) == 0xfffe) // the last two of each plane
        return false;
    return !(c >= 0xfdd0 && c <= 0xfdef) && !(c >= 0xfff0 && c <= 0xffff) && !(c >= 0xe0000 && c <= 0xe0fff);
}

/// Reads a text once, from left to right, until its end or its first fault.
class Scanner {
  public:
    Scanner(std::string_view text, UriTemplateSyntax* syntax)
        : text_(text), syntax_(syntax),
          utf8End_(static_cast<std::size_t>(utf8::find_invalid(text.begin(), text.end()) - text.begin())) {}

    std::optional<UriTemplateFaultPlace> run() {
        while (!atEnd())
            if (!(text_[offset_] == '{' ? scanExpression() : scanLiteralCharacter()))
                return fault_;
        return std::nullopt;
    }

  private:
    bool atEnd() const noexcept { return offset_ == text_.size(); }
    bool at(char c) const noexcept { return !atEnd() && text_[offset_] == c; }
    bool take(char c) noexcept {
        if (!at(c))
            return false;
        ++offset_;
        return true;
    }

    bool fail(Fault fault, std::size_t offset) noexcept {
        fault_ = {fault, offset};
        return false;
    }
    bool fail(Fault fault) noexcept { return fail(fault, offset_); }

    bool scanLiteralCharacter() {
        const char c = text_[offset_];
        if (!isAscii(c))
            return scanInternationalCharacter();
        if (c == '}')
            return fail(Fault::UnopenedBrace);
        if (c == '%')
            return scanTriplet();
        if (!ascii::isAlphanumeric(c) && literalMarks.find(c) == std::string_view::npos)
            return fail(Fault::LiteralCharacter);
        ++offset_;
        return true;
    }

    bool scanInternationalCharacter() {
        if (offset_ == utf8End_)
            return fail(Fault::InvalidUtf8);
        const char* next = text_.data() + offset_;
        if (!isInternational(static_cast<char32_t>(utf8::unchecked::next(next))))
            return fail(Fault::LiteralCharacter);
        offset_ = static_cast<std::size_t>(next - text_.data());
        return true;
    }

    bool scanTriplet() noexcept {
        if (!isPercentEncoded(text_, offset_))
            return fail(Fault::PercentSign);
        offset_ += 3;
        return true;
    }

    bool scanExpression() {
        UriTemplateExpression expression = {offset_, 0, &noOperator, 0, 0};
        if (syntax_ != nullptr)
            expression.firstVariable = syntax_->variables.size();
        ++offset_;
        if (!scanOperator(expression))
            return false;
        do {
            if (!scanVariable(expression.begin))
                return false;
            ++expression.variableCount;
        } while (take(','));
        ++offset_; // scanVariable() stops before "," and "}" only
        expression.end = offset_;
        if (syntax_ != nullptr)
            syntax_->expressions.push_back(expression);
        return true;
    }

    bool scanOperator(UriTemplateExpression& expression) {
        if (atEnd())
            return true; // scanName() complains
        const char c = text_[offset_];
        if (reservedOperators.find(c) != std::string_view::npos)
            return fail(Fault::ReservedOperator);
        const auto* op = std::find_if(std::begin(operators), std::end(operators),
                                      [c](const auto& o) { return o.symbol == c; });
        if (op != std::end(operators)) {
            expression.op = op;
            ++offset_;
        }
        return true;
    }

    /// A variable and what must follow it, "," or "}", before which it stops.
    bool scanVariable(std::size_t expressionBegin) {
        UriTemplateVariable variable = {offset_, 0, 0, false};
        if (!scanName(expressionBegin))
            return false;
        variable.nameEnd = offset_;
        variable.explode = take('*');
        if (!variable.explode && take(':') && !scanPrefix(variable))
            return false;
        if (atEnd())
            return fail(Fault::UnclosedBrace, expressionBegin);
        if (!at(',') && !at('}'))
            return fail(Fault::BehindModifier);
        if (syntax_ != nullptr)
            syntax_->variables.push_back(variable);
        return true;
    }

    /// Stops before the first byte that may follow a name.
    bool scanName(std::size_t expressionBegin) {
        constexpr std::string_view followers = ",}:*";
        const auto atFollower = [&] { return followers.find(text_[offset_]) != std::string_view::npos; };
        if (!atEnd() && atFollower())
            return fail(Fault::MissingName);
        bool dotMayFollow = false;
        while (!atEnd() && !atFollower()) {
            const bool dot = at('.');
            if (dot && !dotMayFollow)
                return fail(Fault::NameDot);
            if (!scanNameCharacter())
                return false;
            dotMayFollow = !dot;
        }
        if (atEnd())
            return fail(Fault::UnclosedBrace, expressionBegin);
        return dotMayFollow || fail(Fault::NameDot, offset_ - 1);
    }

    bool scanNameCharacter() noexcept {
        const char c = text_[offset_];
        if (c == '%')
            return scanTriplet();
        if (!ascii::isAlphanumeric(c) && c != '_' && c != '.')
            return fail(Fault::NameCharacter);
        ++offset_;
        return true;
    }

    bool scanPrefix(UriTemplateVariable& variable) noexcept {
        const std::size_t begin = offset_;
        unsigned length = 0;
        while (!atEnd() && ascii::isDigit(text_[offset_]) && offset_ - begin < 4)
            length = length * 10 + static_cast<unsigned>(text_[offset_++] - '0');
        const bool tooLong = !atEnd() && ascii::isDigit(text_[offset_]);
        if (offset_ == begin || text_[begin] == '0' || tooLong)
            return fail(Fault::PrefixLength, begin);
        variable.prefix = static_cast<std::uint16_t>(length);
        return true;
    }

    std::string_view text_;
    UriTemplateSyntax* syntax_;
    std::size_t utf8End_; ///< where the text stops being UTF-8
    std::size_t offset_ = 0;
    UriTemplateFaultPlace fault_ = {};
};

} // namespace

std::optional<UriTemplateFaultPlace> scanUriTemplate(std::string_view text, UriTemplateSyntax* syntax) {
    return Scanner(text, syntax).run();
}

bool isPercentEncoded(std::string_view text, std::size_t offset) noexcept {
    return text.size() - offset >= 3 && text[offset] == '%' && ascii::isHexDigit(text[offset + 1]) &&
           ascii::isHexDigit(text[offset + 2]);
}

} // namespace specloom
