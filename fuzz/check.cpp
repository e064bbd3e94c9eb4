#include "fuzz/check.h"

#include "foundation/hash.h"
#include "jv/json_reader.h"
#include "test_support/documents.h"

#include <cstdio>    // std::fprintf
#include <cstdlib>   // std::abort
#include <stdexcept> // std::runtime_error

namespace specloom::fuzz {

using jv::DocumentFormat;

std::uint64_t drawFrom(std::string_view input) noexcept {
    return fnv1a(input);
}

void require(bool holds, std::string_view what) {
    if (holds)
        return;
    std::fprintf(stderr, "Does not hold: %.*s\n", static_cast<int>(what.size()), what.data());
    std::abort();
}

std::unique_ptr<jv::JVDocument> readIfGood(std::string_view text, DocumentFormat format) {
    const std::string_view expected =
        format == DocumentFormat::Json ? "JSON parse error" : "Failed to parse YAML";
    try {
        return jv::parseDocument(text, {.format = format, .refLoader = {}});
    } catch (const jv::JSONReaderError& error) {
        require(error.what() == expected, error.what());
    } catch (const std::runtime_error& error) {
        require(error.what() == expected, error.what());
    }
    return nullptr;
}

namespace {

/// What YAML cannot hold, but our JSON reader lets pass.
[[nodiscard]] bool isWritableAsYaml(const jv::JVDocument& document) {
    try {
        static_cast<void>(jv::documentToText(document, DocumentFormat::Yaml));
        return true;
    } catch (const std::runtime_error& error) {
        const std::string_view text = error.what();
        require(text == "Failed to initialize string scalar event" ||
                    text == "Failed to initialize number scalar event",
                text);
        return false;
    }
}

/// A number below the smallest exponent has become zero, and perhaps a "-0", which is read as the integer 0.
[[nodiscard]] bool hasVanishedNumber(const jv::JV& root) {
    return test_support::anyOf(
        root,
        [](const jv::JV& value) {
            return value.isNumber() && value.number().kind() == number::NumberKind::Big &&
                   value.number().bigValue().isZero();
        },
        [](std::string_view) { return false; });
}

} // namespace

bool canBeKept(const jv::JVDocument& document, DocumentFormat format) {
    const jv::JV& root = *document.root();
    if (format == DocumentFormat::Json)
        return !test_support::hasBigNumber(root) && test_support::depthOf(root) <= 128;
    const bool isContainer = root.isArray() || root.isObject();
    return isContainer && !test_support::hasEmptyKey(root) && !test_support::hasExponentString(root) &&
           !hasVanishedNumber(root) && isWritableAsYaml(document);
}

void requireRoundTrip(const jv::JVDocument& document, DocumentFormat format, std::int32_t indent) {
    const std::string text = jv::documentToText(document, {.format = format, .indent = indent, .sorter = {}});
    const auto again = readIfGood(text, format);
    require(again != nullptr, "what was written is read:\n" + text);
    const std::string difference = test_support::firstDifference(document, *again);
    require(difference.empty(), "what was written is the same: " + difference + "\n" + text);
    require(jv::documentToText(*again, {.format = format, .indent = indent, .sorter = {}}) == text,
            "writing again gives the same text:\n" + text);
}

} // namespace specloom::fuzz
