#pragma once

#include <string>      // std::string
#include <string_view> // std::string_view

// Names of Java, and the names that are made of texts of any origin. All of them are in ASCII.
namespace specloom::code_morph::java {

/// What stands before the last dot; empty without one.
[[nodiscard]] std::string_view packageOf(std::string_view qualifiedName) noexcept;
/// What stands behind the last dot, or all without one.
[[nodiscard]] std::string_view classOf(std::string_view qualifiedName) noexcept;

/// An upper-case letter or "_", then letters, digits and "_".
[[nodiscard]] bool isValidClassName(std::string_view name) noexcept;
/// Names that begin with a lower-case letter or "_" and go on with letters, digits and "_", with dots between
/// them.
[[nodiscard]] bool isValidPackageName(std::string_view name) noexcept;
/// Throws std::invalid_argument "Invalid class name: '{}'" for any other name.
void checkClassName(std::string_view name);
/// Throws std::invalid_argument "Invalid package name: '{}'" for any other name.
void checkPackageName(std::string_view name);
/// The same also for a package that no source can be in, since a part of its name is a reserved word.
void checkUsablePackageName(std::string_view name);

/// The most bytes of a name that is made here. A file is called like its class, and files that are made of it
/// like it and more, in no more than 255 bytes.
inline constexpr std::size_t longestName = 180;

/// The name of a variable, a field or a method: toCamelCase(), with
///   - "_" for each sign that no Java name in ASCII may hold, and before a digit at the beginning,
///   - "value" for nothing at all and for "_" alone,
///   - another form of a reserved word: "isByte" for "byte", "class1" for "class",
/// cut to longestName.
[[nodiscard]] std::string toIdentifier(std::string_view text);
/// The same for what java.lang.Object has a method of that name of: "wait1" for "wait". So are methods called
/// and components of records, which bring a method each.
[[nodiscard]] std::string toMemberName(std::string_view text);

/// A part of the name of a package: toCamelCase(), with "_" for each sign that it may not hold, and before a
/// digit at the beginning, 1 behind a reserved word, "root" for nothing at all; cut to longestName.
[[nodiscard]] std::string toPackagePart(std::string_view text);

/// The name of a class: toPascalCase(), with "_" for each sign that it may not hold, and before anything but
/// a letter at the beginning, 1 behind "_" alone, `otherwise` for nothing at all; cut to longestName.
[[nodiscard]] std::string toClassName(std::string_view text, std::string_view otherwise = "Value");
/// The name of a class, and behind it a text in the form of toClassName(); cut to longestName.
[[nodiscard]] std::string joinClassName(std::string_view className, std::string_view text);

} // namespace specloom::code_morph::java
