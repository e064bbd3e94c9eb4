#pragma once

#include <string>      // std::string
#include <string_view> // std::string_view

namespace specloom::code_morph::typescript {

/// Whether `name` may be declared at the top of a module, as `import * as name` does: an identifier in ASCII
/// that is none of the words of ECMA-262 that are reserved in modules (sections 12.7.2 and 13.1.1), and none
/// of the names that a module compiled to CommonJS has already.
[[nodiscard]] bool isModuleBinding(std::string_view name) noexcept;

/// `name`, behind "_" when it cannot be declared at the top of a module. For names of letters, digits and
/// "_".
[[nodiscard]] std::string toModuleBinding(std::string_view name);

} // namespace specloom::code_morph::typescript
