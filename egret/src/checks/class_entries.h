#pragma once

#include "foundation/ascii.h"
#include "regex/syntax.h"

// What checks of classes ask of their entries.
namespace specloom::egret::checks {

/// Whether it is an escape for a class, such as \d.
[[nodiscard]] inline bool isNamed(const regex::Spelling::ClassEntry& entry) {
    return !entry.named.ranges().empty();
}

/// Whether it is of two ends, which may be the same: "a-z".
[[nodiscard]] inline bool isRange(const regex::Spelling::ClassEntry& entry) {
    return !isNamed(entry) && (entry.first != entry.last || entry.end - entry.begin >= 3);
}

/// Whether it begins and ends with an ASCII letter or digit, or is an escape for a class.
[[nodiscard]] inline bool isOfWords(const regex::Spelling::ClassEntry& entry) {
    return isNamed(entry) || (ascii::isAlphanumeric(entry.first) && ascii::isAlphanumeric(entry.last));
}

} // namespace specloom::egret::checks
