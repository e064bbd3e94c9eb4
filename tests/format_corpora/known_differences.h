#pragma once

#include "jv/deser.h"
#include "test_support/tree.h"

#include <map>         // std::map
#include <ostream>     // std::ostream
#include <string>      // std::string
#include <string_view> // std::string_view
#include <vector>      // std::vector

namespace specloom::format_corpora {

/// How often each class of difference between a document and what we write of it occurs, by the name of the
/// class.
using DifferenceCounts = std::map<std::string, int>;

/// The classes, each with its reason:
///
///   "empty plain scalar is text": an empty value in YAML is a null for the judge and an empty string for our
///   reader, which is what it is written as.
///
///   "exponent form is left plain": the string "1e5" is written without quotes and is a number then, also for
///   our reader.
///
///   "judge drops a line feed": of several line feeds at the end of a quoted scalar yaml-cpp drops one. The
///   test Judge.DropsALineFeed shows it.
///
/// "" for a difference of none of these classes, which is a fault.
[[nodiscard]] std::string classOf(const test_support::Difference& difference);

/// What is known of a document of the corpora when it is written in `target` format.
[[nodiscard]] DifferenceCounts knownDifferences(std::string_view document, jv::DocumentFormat target);

/// The documents that knownDifferences() knows.
[[nodiscard]] std::vector<std::string> documentsWithKnownDifferences();

/// A number that is too long or too large for the machine's kinds. A document that has one ends the process
/// when it is written as JSON, which is the deliberate answer of the number module.
struct BigNumber {
    std::string document;
    std::string pointer; ///< JSON pointer
    std::string text;    ///< in the source

    friend bool operator==(const BigNumber&, const BigNumber&) = default;
    friend void PrintTo(const BigNumber& big, std::ostream* out) {
        *out << big.document << ' ' << big.pointer << ' ' << big.text;
    }
};

/// All of them in the corpora, sorted by document, in the order of the document.
[[nodiscard]] const std::vector<BigNumber>& bigNumbers();

} // namespace specloom::format_corpora
