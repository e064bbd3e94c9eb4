#include "foundation/uri_template.h"

#include "foundation/ascii.h"
#include "foundation/message.h"
#include "foundation/unreachable.h"
#include "foundation/utf8.h"

namespace specloom {
namespace {

const char* faultText(UriTemplateFault fault) {
    switch (fault) {
    case UriTemplateFault::InvalidUtf8:
        return "the text is not UTF-8";
    case UriTemplateFault::LiteralCharacter:
        return "this character may not stand in a URI";
    case UriTemplateFault::PercentSign:
        return "two hexadecimal digits are expected behind '%'";
    case UriTemplateFault::UnopenedBrace:
        return "'}' without a '{' before it";
    case UriTemplateFault::UnclosedBrace:
        return "'{' without a '}' behind it";
    case UriTemplateFault::ReservedOperator:
        return "this operator is reserved for extensions";
    case UriTemplateFault::MissingName:
        return "a variable name is expected";
    case UriTemplateFault::NameCharacter:
        return "this character may not stand in a variable name";
    case UriTemplateFault::NameDot:
        return "a dot may only stand between two other characters of a variable name";
    case UriTemplateFault::PrefixLength:
        return "a prefix length from 1 to 9999 is expected";
    case UriTemplateFault::BehindModifier:
        return "',' or '}' is expected behind a modifier";
    case UriTemplateFault::PrefixOfComposite:
        return "a prefix length does not apply to lists and associative arrays";
    }
    SPECLOOM_UNREACHABLE("fault of a URI template");
}

/// RFC 3986, section 2.3.
bool isUnreserved(char c) noexcept {
    return ascii::isAlphanumeric(c) || c == '-' || c == '.' || c == '_' || c == '~';
}

/// RFC 3986, section 2.2.
bool isReserved(char c) noexcept {
    constexpr std::string_view characters = ":/?#[]@!$&'()*+,;=";
    return characters.find(c) != std::string_view::npos;
}

/// The first `count` code points of `text`. With `decodes`, as many percent-encoded triplets as make one code
/// point count as one, so that no character is cut (RFC 6570, section 3.2.1). In a text that is not UTF-8 a
/// stray continuation byte belongs to what stands before it.
std::string_view firstCodePoints(std::string_view text, std::size_t count, bool decodes) noexcept {
    std::size_t begun = 0;
    std::size_t offset = 0;
    while (offset < text.size()) {
        const bool triplet = decodes && isPercentEncoded(text, offset);
        const int octet = triplet ? ascii::hexValue(text[offset + 1]) * 16 + ascii::hexValue(text[offset + 2])
                                  : static_cast<unsigned char>(text[offset]);
        const bool begins = !isContinuationByte(static_cast<char>(octet));
        if (begins && begun == count)
            break;
        begun += begins ? 1 : 0;
        offset += triplet ? 3 : 1;
    }
    return text.substr(0, offset);
}

bool isUndefined(const UriTemplateValue& value) noexcept {
    if (const auto* list = std::get_if<UriTemplateList>(&value))
        return list->empty();
    if (const auto* pairs = std::get_if<UriTemplatePairs>(&value))
        return pairs->empty();
    return std::holds_alternative<std::monostate>(value);
}

/// The text that an expansion grows.
class Output {
  public:
    explicit Output(std::size_t largest) : largest_(largest) {}

    void append(std::string_view text) {
        if (text.size() > largest_ - text_.size())
            throw std::length_error(formatMessage("URI template expands to more than {} bytes", largest_));
        text_ += text;
    }

    /// Percent-encodes all but unreserved characters and, with `keepsReserved`, reserved ones and triplets.
    void appendEncoded(std::string_view text, bool keepsReserved) {
        std::size_t kept = 0;
        for (std::size_t offset = 0; offset < text.size(); ++offset) {
            const char c = text[offset];
            if (isUnreserved(c) || (keepsReserved && (isReserved(c) || isPercentEncoded(text, offset))))
                continue; // the digits of a triplet are unreserved
            append(text.substr(kept, offset - kept));
            appendTriplet(static_cast<unsigned char>(c));
            kept = offset + 1;
        }
        append(text.substr(kept));
    }

    /// What can stand in any URI stays (RFC 6570, section 3.1).
    void appendLiteral(std::string_view text) { appendEncoded(text, true); }

    [[nodiscard]] std::string take() && { return std::move(text_); }

  private:
    void appendTriplet(unsigned char octet) {
        constexpr std::string_view digits = "0123456789ABCDEF"; // RFC 3986, section 2.1, wants upper case
        const char triplet[] = {'%', digits[octet >> 4], digits[octet & 0x0f]};
        append({triplet, sizeof triplet});
    }

    std::string text_;
    std::size_t largest_;
};

/// Appends what one variable of an expression expands to.
class VariableExpansion {
  public:
    VariableExpansion(const UriTemplateOperator& op, const UriTemplateVariable& variable,
                      std::string_view name, Output& output)
        : op_(op), variable_(variable), name_(name), output_(output) {}

    void operator()(std::monostate) {}

    void operator()(const std::string& text) {
        std::string_view value = text;
        if (variable_.prefix != 0)
            value = firstCodePoints(value, variable_.prefix, op_.keepsReserved);
        appendItem(value);
    }

    void operator()(const UriTemplateList& list) {
        requireNoPrefix();
        if (!variable_.explode && op_.named)
            appendName(name_, false);
        std::string_view separator;
        for (const std::string& member : list) {
            output_.append(separator);
            if (variable_.explode)
                appendItem(member);
            else
                appendValue(member);
            separator = variable_.explode ? op_.separator : ",";
        }
    }

    void operator()(const UriTemplatePairs& pairs) {
        requireNoPrefix();
        if (!variable_.explode && op_.named)
            appendName(name_, false);
        std::string_view separator;
        for (const auto& [name, value] : pairs) {
            output_.append(separator);
            appendPair(name, value);
            separator = variable_.explode ? op_.separator : ",";
        }
    }

  private:
    void requireNoPrefix() const {
        if (variable_.prefix != 0)
            throw UriTemplateError({UriTemplateFault::PrefixOfComposite, variable_.nameEnd});
    }

    void appendPair(std::string_view name, std::string_view value) {
        if (variable_.explode && op_.named) {
            appendName(name, value.empty());
        } else {
            appendValue(name);
            output_.append(variable_.explode ? "=" : ",");
        }
        appendValue(value);
    }

    void appendItem(std::string_view value) {
        if (op_.named)
            appendName(name_, value.empty());
        appendValue(value);
    }

    void appendName(std::string_view name, bool valueIsEmpty) {
        output_.appendLiteral(name);
        output_.append(valueIsEmpty ? op_.empty : "=");
    }

    void appendValue(std::string_view value) { output_.appendEncoded(value, op_.keepsReserved); }

    const UriTemplateOperator& op_;
    const UriTemplateVariable& variable_;
    std::string_view name_;
    Output& output_;
};

} // namespace

UriTemplateError::UriTemplateError(const UriTemplateFaultPlace& place)
    : std::runtime_error(
          formatMessage("Invalid URI template at byte {}: {}", place.offset, faultText(place.fault))),
      place_(place) {}

UriTemplate::UriTemplate(std::string text) : text_(std::move(text)) {
    if (const auto place = scanUriTemplate(text_, &syntax_))
        throw UriTemplateError(*place);
}

std::string UriTemplate::expand(const UriTemplateVariables& variables, std::size_t largest) const {
    const std::string_view text = text_;
    Output output(largest);
    std::size_t literalBegin = 0;
    for (const UriTemplateExpression& expression : syntax_.expressions) {
        output.appendLiteral(text.substr(literalBegin, expression.begin - literalBegin));
        literalBegin = expression.end;
        bool isFirst = true;
        for (std::size_t i = 0; i < expression.variableCount; ++i) {
            const UriTemplateVariable& variable = syntax_.variables[expression.firstVariable + i];
            const std::string_view name =
                text.substr(variable.nameBegin, variable.nameEnd - variable.nameBegin);
            const auto found = variables.find(name);
            if (found == variables.end() || isUndefined(found->second))
                continue;
            output.append(isFirst ? expression.op->first : expression.op->separator);
            isFirst = false;
            std::visit(VariableExpansion(*expression.op, variable, name, output), found->second);
        }
    }
    output.appendLiteral(text.substr(literalBegin));
    return std::move(output).take();
}

bool isValidUriTemplate(std::string_view text) {
    return !scanUriTemplate(text, nullptr).has_value();
}

} // namespace specloom
