#pragma once

#include "configuration/config_error.h"
#include "foundation/message.h"
#include "jv/jv.h"

#include <array>            // std::array
#include <cstddef>          // std::size_t
#include <cstdint>          // std::int32_t
#include <functional>       // std::function
#include <initializer_list> // std::initializer_list
#include <optional>         // std::optional
#include <span>             // std::span
#include <string_view>      // std::string_view
#include <variant>          // std::variant
#include <vector>           // std::vector

namespace specloom::configuration {

/// A name that a configuration may choose, and what it stands for.
template <typename T>
struct Choice {
    std::string_view name;
    T meaning;
};

template <typename T, std::size_t count>
using Choices = std::array<Choice<T>, count>;

/// The text of a string. Throws ConfigError with `otherwise` for a value of another kind.
[[nodiscard]] std::string_view textOf(const jv::JV& value, const Message& otherwise);

/// The texts of an array of strings, or the one of a string. Throws ConfigError with `otherwise` for a value
/// of another kind, or for the first element of another kind.
[[nodiscard]] std::vector<std::string_view> textsOf(const jv::JV& value, const Message& otherwise);

/// What the text of a string stands for. Throws ConfigError with `unknown`, which may quote the text, when it
/// is none of the names.
template <typename T, std::size_t count>
[[nodiscard]] T choiceOf(const jv::JV& value, const Choices<T, count>& choices,
                         MessageFormat<std::string_view> unknown) {
    for (const Choice<T>& choice : choices)
        if (choice.name == value.text())
            return choice.meaning;
    throw ConfigError(formatMessage(unknown, value.text()), &value);
}

/// The same for any value. Throws ConfigError with `otherwise` when it is no string.
template <typename T, std::size_t count>
[[nodiscard]] T choiceOf(const jv::JV& value, const Choices<T, count>& choices, const Message& otherwise,
                         MessageFormat<std::string_view> unknown) {
    static_cast<void>(textOf(value, otherwise));
    return choiceOf(value, choices, unknown);
}

/// The error for a member that nobody asks for: "Unexpected properties".
[[nodiscard]] ConfigError unexpectedMember(const jv::JV& value);

/// An object of a configuration, read member by member. An object that the file does not have has no members,
/// so that what stands below it needs no question first.
///
/// Whoever asks for a member of a certain kind gets nothing when there is no such member, and for one of
/// another kind the JVError of JV's typed getter: "A boolean value is expected for '{}'." and the like.
/// Members that nobody asks for are left alone, unless requireKnown() refuses them.
class Section {
  public:
    /// An object, or null.
    explicit Section(const jv::JV* object);
    explicit Section(const jv::JV& object) : Section(&object) {}

    /// A member of any kind; null when there is none.
    [[nodiscard]] const jv::JV* get(std::string_view name) const { return object_->get(name); }
    /// Throws JVError "Required property '{}' is missing.".
    [[nodiscard]] const jv::JV& getRequired(std::string_view name) const {
        return *object_->getRequired(name);
    }

    [[nodiscard]] std::optional<bool> boolean(std::string_view name) const;
    /// Throws JVError "Required property '{}' is missing.".
    [[nodiscard]] bool requiredBoolean(std::string_view name) const {
        return object_->getRequiredBoolean(name)->boolean();
    }
    /// Throws ConfigError with `tooLarge` for a number above `most`. Below INT32_MIN it is that.
    [[nodiscard]] std::optional<std::int32_t> integer(std::string_view name, std::int32_t most,
                                                      const Message& tooLarge) const;
    [[nodiscard]] std::optional<std::string_view> text(std::string_view name) const;
    /// A member of another kind counts as none.
    [[nodiscard]] std::optional<std::string_view> textIfString(std::string_view name) const;
    /// Throws ConfigError with `otherwise` for a member of another kind.
    [[nodiscard]] std::optional<std::variant<bool, std::string_view>>
    booleanOrText(std::string_view name, const Message& otherwise) const;
    /// Throws ConfigError with `unknown`, which may quote the text, for a text that is none of the names.
    template <typename T, std::size_t count>
    [[nodiscard]] std::optional<T> choice(std::string_view name, const Choices<T, count>& choices,
                                          MessageFormat<std::string_view> unknown) const {
        return text(name) ? std::optional<T>(choiceOf(*get(name), choices, unknown)) : std::nullopt;
    }
    /// The elements of an array; none without it.
    [[nodiscard]] std::span<const jv::JV* const> elements(std::string_view name) const;
    [[nodiscard]] Section section(std::string_view name) const;

    /// All members, in byte-wise order of their names.
    [[nodiscard]] jv::Members members() const { return object_->members(); }
    /// Throws unexpectedMember() for the first member of another name: a misspelt one would otherwise be lost
    /// in silence.
    void requireKnown(const std::function<bool(std::string_view)>& isKnown) const;
    void requireKnown(std::initializer_list<std::string_view> names) const;

  private:
    const jv::JV* object_;
};

/// The section of a plugin, "/commands/generate/{plugin}", below the root of a configuration; one without
/// members when there is none. Throws ConfigError "An object is expected for '{}'" with the name when it is
/// of another kind.
[[nodiscard]] Section pluginSection(const jv::JV& root, std::string_view plugin);

} // namespace specloom::configuration
