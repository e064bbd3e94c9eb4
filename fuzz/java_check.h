#pragma once

#include <string>      // std::string
#include <string_view> // std::string_view

namespace specloom::fuzz {

/// What is wrong with a generated source file of that path, as far as it can be told without a compiler;
/// empty when nothing is: it holds the one class that it is called after, its brackets are closed, its
/// literals end in their lines, and it has no signs beside them but those of templates and identifiers.
[[nodiscard]] std::string faultOfJava(std::string_view path, std::string_view text);

} // namespace specloom::fuzz
