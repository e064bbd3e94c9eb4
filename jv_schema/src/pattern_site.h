#pragma once

#include "jv_schema/compiler.h"
#include "jv_schema/evaluation.h"
#include "regex/pattern.h"

#include <string_view> // std::string_view

namespace specloom::jv::schema {

/// Throws CompileError with what is wrong with the pattern.
[[nodiscard]] regex::Pattern compilePattern(const Site& site, std::string_view source);

/// Whether a text matches the pattern of a keyword; refuses when that takes too long.
[[nodiscard]] bool matches(const regex::Pattern& matcher, std::string_view source, std::string_view text,
                           const Keyword& keyword, const Evaluation& evaluation);

} // namespace specloom::jv::schema
