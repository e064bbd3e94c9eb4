// Makes strings for the patterns of documents, and for some that are drawn:
//
//   generate_strings FILE...
//
// takes the values of "pattern" and the keys of "patternProperties", with the lengths beside them, and from
// files with a name that ends with "regex.json" those of "data" too. It writes a line for each to standard
// output: a JSON object with "pattern", "minLength", "maxLength" (null for none) and "strings" or, in their
// place, the "refusal". Of a document that cannot be read nothing is taken.

#include "egret/strings.h"
#include "foundation/escapes.h"
#include "jv/deser.h"
#include "jv/jv_object.h"
#include "number/number.h"
#include "regex/syntax_error.h"
#include "test_support/documents.h"
#include "test_support/random_patterns.h"

#include <compare>   // operator<=>
#include <cstdio>    // stdout
#include <exception> // std::exception
#include <random>    // std::mt19937_64
#include <set>       // std::set
#include <string>    // std::string
#include <vector>    // std::vector

#include <fmt/format.h>

namespace specloom {
namespace {

constexpr int drawnStrings = 10;
constexpr int drawnPatterns = 5000;

struct Use {
    std::string pattern;
    std::uint64_t min = 0;
    std::uint64_t max = UINT64_MAX;
    bool drawn = false;
    auto operator<=>(const Use&) const = default;
};

std::uint64_t lengthOf(const jv::JV& schema, std::string_view name, std::uint64_t otherwise) {
    const jv::JV* value = schema.get(name);
    const bool isLength = value != nullptr && value->isInteger() && value->fitsInt32();
    return isLength ? std::stoull(value->number().toString()) : otherwise;
}

void collect(const jv::JV& object, bool withData, std::set<Use>& uses) {
    const jv::JV* pattern = object.get("pattern");
    if (pattern != nullptr && pattern->isString())
        uses.insert({std::string(pattern->text()), lengthOf(object, "minLength", 0),
                     lengthOf(object, "maxLength", UINT64_MAX)});
    const jv::JV* properties = object.get("patternProperties");
    if (properties != nullptr && properties->isObject()) {
        for (const jv::Member member : properties->members())
            uses.insert({std::string(member.key)});
    }
    const jv::JV* data = withData ? object.get("data") : nullptr;
    if (data != nullptr && data->isString())
        uses.insert({std::string(data->text())});
}

void collectFile(const std::string& path, std::set<Use>& uses) {
    std::unique_ptr<jv::JVDocument> document;
    try {
        document = jv::loadDocument(path).document;
    } catch (const std::exception& error) {
        fmt::print(stderr, "{}: {}\n", path, error.what());
        return;
    }
    test_support::forEachValue(*document->root(), [&](const jv::JV& value) {
        if (value.isObject())
            collect(value, path.ends_with("regex.json"), uses);
    });
}

std::string stringsOf(const Use& use, std::mt19937_64& numbers) {
    const egret::Strings strings(use.pattern);
    const egret::Lengths lengths{use.min, use.max};
    std::vector<std::string> literals;
    for (const std::string& text : strings.covering(lengths))
        literals.push_back(toJsonLiteral(text));
    for (int i = 0; i < drawnStrings; ++i) {
        const auto text = strings.random(lengths, [&](std::uint64_t bound) { return numbers() % bound; });
        if (text)
            literals.push_back(toJsonLiteral(*text));
    }
    return fmt::format("\"strings\":[{}]", fmt::join(literals, ","));
}

void write(const Use& use, std::mt19937_64& numbers) {
    std::string outcome;
    try {
        outcome = stringsOf(use, numbers);
    } catch (const regex::SyntaxError& error) {
        outcome = fmt::format("\"refusal\":{}", toJsonLiteral(error.what()));
    }
    fmt::print("{{\"pattern\":{},\"minLength\":{},\"maxLength\":{},\"drawn\":{},{}}}\n",
               toJsonLiteral(use.pattern), use.min, use.max == UINT64_MAX ? "null" : std::to_string(use.max),
               use.drawn, outcome);
}

} // namespace
} // namespace specloom

int main(int count, char** arguments) {
    std::set<specloom::Use> uses;
    for (int i = 1; i < count; ++i)
        specloom::collectFile(arguments[i], uses);
    specloom::test_support::RandomPatterns patterns(2);
    for (int i = 0; i < specloom::drawnPatterns; ++i)
        uses.insert({patterns.next(), 0, UINT64_MAX, true});
    std::mt19937_64 numbers;
    for (const specloom::Use& use : uses)
        specloom::write(use, numbers);
}
