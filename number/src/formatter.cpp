#include "number/formatter.h"

#include "foundation/unreachable.h"
#include "number/number_literal.h"

#include <algorithm>   // std::min
#include <iterator>    // std::back_inserter
#include <optional>    // std::optional
#include <string_view> // std::string_view

#include <fmt/format.h> // fmt::format_int, fmt::format_to

namespace specloom::number {
namespace {

void formatFloat(std::string& out, double value) {
    const std::size_t start = out.size();
    fmt::format_to(std::back_inserter(out), "{}", value);
    // A float keeps its point, so that it reads back as a float; "n" and "i" stand for "nan" and "inf".
    if (std::string_view(out).substr(start).find_first_of(".eEni") == std::string_view::npos)
        out += ".0";
}

/// Takes the zeros off the end of the fraction that starts somewhere behind `start`, and a point left bare.
void removeTrailingZeros(std::string& out, std::size_t start) {
    const std::size_t point = out.find('.', start);
    if (point == std::string::npos)
        return;
    const std::size_t fractionEnd = std::min(out.find('e', point), out.size());
    std::size_t kept = fractionEnd;
    while (out[kept - 1] == '0')
        --kept;
    if (kept - 1 == point)
        --kept;
    out.erase(kept, fractionEnd - kept);
}

/// A short text with a point or an exponent reads as a float. Where that would be another value ("0.1" is not
/// what twenty more zeros behind it make it), zeros at the end of the fraction say that this is a big number.
void keepBig(std::string& out, std::size_t start, const BigFloat& value) {
    const char* begin = out.data() + start;
    const char* end = out.data() + out.size();
    const NumberLiteral literal = classifyNumber(begin, end);
    if (literal.status != 0 || literal.digitCount() >= bigDigitCount)
        return;
    if (!literal.hasFraction() && !literal.hasExponent())
        return;
    const std::optional<Number> read = Number::tryParse({begin, end});
    if (read && (read->kind() == NumberKind::Big || read->compare(Number(value)) == 0))
        return;
    const char* digitsEnd = literal.hasFraction() ? literal.fractionEnd : literal.integerEnd;
    std::string zeros(bigDigitCount - literal.digitCount(), '0');
    if (!literal.hasFraction())
        zeros.insert(zeros.begin(), '.');
    out.insert(static_cast<std::size_t>(digitsEnd - out.data()), zeros);
}

void formatBig(std::string& out, const BigFloat& value, unsigned precision) {
    const std::size_t start = out.size();
    if (precision == 0) {
        // 1000 bits hold 301 decimal digits. Writing as many as were asked of the engine would print noise
        // behind them, and writing fewer would lose some: the shortest text that reads back has neither
        // fault.
        BigFloat::toText(out, value, 10, bigPrecision, minimalDigits | scriptStyle);
        keepBig(out, start, value);
    } else {
        BigFloat::toText(out, value, 10, precision + 1, fixedDigits | scriptStyle);
        removeTrailingZeros(out, start);
    }
}

} // namespace

void NumberFormatter::format(std::string& out) const {
    switch (number->kind()) {
    case NumberKind::Signed: {
        const fmt::format_int text(number->signedValue());
        out.append(text.data(), text.size());
        return;
    }
    case NumberKind::Unsigned: {
        const fmt::format_int text(number->unsignedValue());
        out.append(text.data(), text.size());
        return;
    }
    case NumberKind::Float:
        return formatFloat(out, number->floatValue());
    case NumberKind::Big:
        return formatBig(out, number->bigValue(), precision);
    }
    SPECLOOM_UNREACHABLE("unknown kind of number");
}

} // namespace specloom::number
