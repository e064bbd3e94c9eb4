#pragma once

#include <cstddef>     // std::size_t
#include <exception>   // std::exception
#include <string>      // std::string
#include <string_view> // std::string_view
#include <type_traits> // std::conditional_t, std::is_convertible_v

#include <fmt/core.h>

// Messages for the user. What they say of a document, a configuration, a path or the command line is data: it
// must neither reach the terminal as commands nor pass for lines of ours. So a message is made of constants
// of the program and of arguments that are cleaned, and our exceptions take nothing else.
namespace specloom {

/// The text of a failure. Made from a constant, or by formatMessage().
class Message {
  public:
    template <std::size_t size>
    Message(const char (&constant)[size]) : text_(constant) {} // implicit: a constant is a message

    /// What an exception says. Its lines stay lines; what else could act in them is escaped, because the
    /// texts of libraries are not made here.
    explicit Message(const std::exception& error);

    [[nodiscard]] const std::string& composed() const noexcept { return text_; }
    operator const std::string&() const noexcept { return text_; } // so that standard exceptions take it

  private:
    friend Message composeMessage(std::string_view text);
    Message() = default;

    std::string text_;
};

/// The most code points that an argument brings into a message; what is longer is cut there and ends in "…".
inline constexpr std::size_t longestMessageArgument = 1000;

/// `text` by printable(), cut to what a message can bear.
[[nodiscard]] std::string messageArgument(std::string_view text);

/// How the format string sees an argument of type T: texts as std::string, all else as it is.
template <typename T>
using MessageArgument = std::conditional_t<std::is_convertible_v<const T&, std::string_view>, std::string, T>;

/// A format string of fmt, a constant, for arguments of these types.
template <typename... Arguments>
using MessageFormat = fmt::format_string<MessageArgument<Arguments>...>;

/// Of formatMessage() alone. Arguments that are harmless one by one may act where they meet, or at the
/// beginning of a line.
[[nodiscard]] Message composeMessage(std::string_view text);

/// The message of that format, each text among the arguments by messageArgument().
template <typename... Arguments>
[[nodiscard]] Message formatMessage(MessageFormat<Arguments...> format, const Arguments&... arguments) {
    [[maybe_unused]] const auto cleaned = []<typename T>(const T& argument) -> MessageArgument<T> {
        if constexpr (std::is_convertible_v<const T&, std::string_view>)
            return messageArgument(argument);
        else
            return argument;
    };
    return composeMessage(fmt::format(format, cleaned(arguments)...));
}

} // namespace specloom
