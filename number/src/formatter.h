#pragma once

#include "number/number.h"

#include <string> // std::string

namespace specloom::number {

/// Writes a number as text, see Number::toString(); the number must outlive it.
struct NumberFormatter {
    const Number* number;
    /// 0 for all digits that tell the value from its neighbours.
    unsigned precision = 0;

    /// Appends the text to `out`.
    void format(std::string& out) const;
};

} // namespace specloom::number
