#pragma once

#include <cstddef>     // std::size_t
#include <cstdint>     // std::uint16_t
#include <optional>    // std::optional
#include <string_view> // std::string_view
#include <vector>      // std::vector

/// The grammar of URI templates (RFC 6570, section 2), apart from what becomes of one. Offsets are in bytes
/// from 0.
namespace specloom {

/// How the expressions of one operator expand (RFC 6570, appendix A).
struct UriTemplateOperator {
    char symbol; ///< 0 for an expression without an operator
    std::string_view first;
    std::string_view separator;
    bool named;             ///< values stand behind their names, as "name=value"
    std::string_view empty; ///< what follows the name of an empty value
    bool keepsReserved;     ///< reserved characters and percent-encoded triplets of values stay as they are
};

struct UriTemplateVariable {
    std::size_t nameBegin;
    std::size_t nameEnd;
    std::uint16_t prefix; ///< at most so many code points of the value, 1 to 9999; 0 without a prefix
    bool explode;
};

/// An expression. The variables of all expressions stand in one list; this one's begin at `firstVariable` and
/// end where those of the next begin.
struct UriTemplateExpression {
    std::size_t begin; ///< of "{"
    std::size_t end;   ///< behind "}"
    const UriTemplateOperator* op;
    std::size_t firstVariable;
    std::size_t variableCount;
};

/// A template taken apart. What stands between the expressions is literal.
struct UriTemplateSyntax {
    std::vector<UriTemplateExpression> expressions;
    std::vector<UriTemplateVariable> variables;
};

enum class UriTemplateFault {
    InvalidUtf8,
    LiteralCharacter,
    PercentSign,
    UnopenedBrace,
    UnclosedBrace,
    ReservedOperator,
    MissingName,
    NameCharacter,
    NameDot,
    PrefixLength,
    BehindModifier,
    PrefixOfComposite,
};

struct UriTemplateFaultPlace {
    UriTemplateFault fault;
    std::size_t offset;
};

/// The first fault of `text`, or nothing. Fills `syntax` unless it is null; nothing else is allocated. The
/// operators that RFC 6570, section 2.2, keeps for extensions are faults: nobody could expand them.
[[nodiscard]] std::optional<UriTemplateFaultPlace> scanUriTemplate(std::string_view text,
                                                                   UriTemplateSyntax* syntax);

/// Whether "%" and two hexadecimal digits stand at `offset` (RFC 3986, section 2.1).
[[nodiscard]] bool isPercentEncoded(std::string_view text, std::size_t offset) noexcept;

} // namespace specloom
