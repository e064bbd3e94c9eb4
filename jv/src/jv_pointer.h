#pragma once

#include "foundation/message.h"

#include <cstddef>     // std::size_t
#include <exception>   // std::exception
#include <string>      // std::string
#include <string_view> // std::string_view
#include <vector>      // std::vector

namespace specloom::jv {

/// A text is no JSON pointer, or a pointer has no parent.
class JVPointerError : public std::exception {
  public:
    explicit JVPointerError(Message message) : message_(std::move(message)) {}
    [[nodiscard]] const char* what() const noexcept override { return message_.composed().c_str(); }

  private:
    Message message_;
};

/// A JSON pointer (RFC 6901) as its reference tokens, unescaped. No tokens: the whole document.
class JVPointer : public std::vector<std::string> {
  public:
    using std::vector<std::string>::vector;

    /// Replaces the tokens by those of `text`. Throws JVPointerError: `text` and " does not represent a valid
    /// JSON pointer" when it is neither empty nor starts with "/"; "Invalid JSON pointer" for a "~" that is
    /// followed by neither "0" nor "1".
    void parse(std::string_view text);
    /// RFC 6901, section 3; empty for the whole document.
    [[nodiscard]] std::string toString() const;
    /// A copy without the last token. Throws JVPointerError "JSON pointer has no parent" for the whole
    /// document.
    [[nodiscard]] JVPointer parent() const;

    /// Appends `token` with "~" as "~0" and "/" as "~1".
    static void escapeToken(std::string_view token, std::string& out);
    /// Reverses escapeToken(). Throws JVPointerError "Invalid JSON pointer" as parse() does.
    [[nodiscard]] static std::string unescapeToken(std::string_view token);
};

/// `out` becomes `base`, "/" and the escaped `key`.
void childPointer(std::string& out, std::string_view base, std::string_view key);
/// `out` becomes `base`, "/" and `index` in decimal, counted from 0.
void childPointer(std::string& out, std::string_view base, std::size_t index);

/// The pieces between the separators; one more than there are separators, so an empty text gives one empty
/// piece.
[[nodiscard]] std::vector<std::string_view> splitString(std::string_view text, char separator);

} // namespace specloom::jv
