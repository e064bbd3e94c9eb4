// Documents of extreme depth and size. Nothing may recurse over the depth of the input, and time and memory
// must stay in proportion to the size: what is quadratic, or recurses, does not get to the end here.

#include "jv/deser.h"
#include "jv/json_reader.h"
#include "jv/json_writer.h"
#include "jv/jv_pointer.h"
#include "jv/yaml_reader.h"
#include "test_support/documents.h"
#include "test_support/failure.h"
#include "test_support/sanitizers.h"
#include "test_support/texts.h"

#include <sstream>   // std::istringstream
#include <stdexcept> // std::runtime_error

#include <fmt/format.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace specloom::jv {
namespace {

using test_support::failureOf;
using test_support::repeated;

/// Sanitizers multiply memory and time; a tenth is still far more than a stack holds.
constexpr std::size_t scale = test_support::hasAddressSanitizer ? 10 : 1;

constexpr std::size_t million = 1'000'000 / scale;

std::string jsonError(const std::string& text) {
    return failureOf<JSONReaderError>([&] { return parseJSON(text); });
}

std::string yamlError(const std::string& text) {
    return failureOf<std::runtime_error>([&] { return parseYAML(text); });
}

/// The innermost value, by always taking the first child.
const JV* innermost(const JV* value) {
    while (value->size() != 0)
        value = value->isArray() ? value->elements()[0] : (*value->members().begin()).value;
    return value;
}

// ---- depth

TEST(Depth, refusesBracketsThatNobodyCloses) {
    EXPECT_EQ(jsonError(std::string(million, '[')), "JSON parse error");
    EXPECT_EQ(jsonError(repeated("{\"a\":", million)), "JSON parse error");
    EXPECT_EQ(jsonError(repeated("[{\"a\":", million)), "JSON parse error");
    EXPECT_EQ(jsonError(std::string(million, '[') + std::string(million + 1, ']')), "JSON parse error");
}

struct Nesting {
    const char* name;
    const char* open;
    const char* close;
    std::size_t containers; ///< in one `open`
    std::size_t levels;     ///< repetitions of `open`
};

class NestedDocument : public testing::TestWithParam<Nesting> {
  protected:
    const Nesting nesting = GetParam();
    const std::size_t depth = nesting.levels * nesting.containers;
    const std::string text =
        repeated(nesting.open, nesting.levels) + "0" + repeated(nesting.close, nesting.levels);
};

TEST_P(NestedDocument, isReadFromTextAndStream) {
    const auto document = parseJSON(text);
    EXPECT_EQ(test_support::depthOf(*document->root()), depth);
    std::istringstream stream(text);
    EXPECT_TRUE(readJSON(stream)->root()->equals(*document->root()));
}

TEST_P(NestedDocument, isIndexedAndFound) {
    const auto document = parseJSON(text);
    const JV* deepest = innermost(document->root());
    const std::string pointer = deepest->pointer();
    EXPECT_EQ(document->lookup(pointer), deepest);
    document->reindex();
    EXPECT_EQ(deepest->pointer(), pointer);
    EXPECT_EQ(document->lookup(pointer), deepest);
    JVPointer tokens;
    tokens.parse(pointer);
    EXPECT_EQ(tokens.size(), depth);
    EXPECT_EQ(document->root()->resolve(tokens), deepest);
    EXPECT_EQ(tokens.toString(), pointer);
}

TEST_P(NestedDocument, isComparedHashedAndCopied) {
    const auto document = parseJSON(text);
    const auto copy = JVDocument::clone(*document->root());
    EXPECT_TRUE(copy->equals(*document->root()));
    EXPECT_TRUE(copy->almostEquals(*document->root()));
    EXPECT_EQ(copy->hash(), document->root()->hash());
    const auto other =
        parseJSON(repeated(nesting.open, nesting.levels) + "1" + repeated(nesting.close, nesting.levels));
    EXPECT_FALSE(copy->equals(*other->root()));

    JV target;
    JVDocument::assign(*copy, target);
    EXPECT_EQ(test_support::depthOf(target), depth);
    target.clear();
    EXPECT_EQ(target.size(), 0u);
}

/// A deep tree on the heap inside of one in a document's slabs, and the other way round.
TEST_P(NestedDocument, isDestroyedAsPartOfAnother) {
    const auto document = parseJSON(text);
    JV* root = document->root();
    if (root->isArray())
        root->append(JVDocument::clone(*root));
    else
        root->set("other", JVDocument::clone(*root));
    document->reindex();
    EXPECT_EQ(test_support::depthOf(*root), depth + 1);
    document->setRoot(std::make_unique<JV>(true));
    EXPECT_EQ(test_support::depthOf(*document->root()), 0u);
}

TEST_P(NestedDocument, isRefusedByTheWriters) {
    const auto document = parseJSON(text);
    EXPECT_THROW(static_cast<void>(documentToText(*document, DocumentFormat::Json)), JSONWriterError);
    // Whichever limit is met first: objects are indented further with each level.
    EXPECT_THAT(
        failureOf<std::runtime_error>([&] { return documentToText(*document, DocumentFormat::Yaml); }),
        testing::AnyOf("MaxDepthExceeded",
                       "YAML output is too large for its content: values are nested too deeply"));
}

INSTANTIATE_TEST_SUITE_P(Depth, NestedDocument,
                         testing::Values(Nesting{"Arrays", "[", "]", 1, 100'000},
                                         Nesting{"Objects", R"({"a":)", "}", 1, 100'000},
                                         Nesting{"Both", R"({"a":[)", "]}", 2, 50'000},
                                         Nesting{"AMillionArrays", "[", "]", 1, million}),
                         [](const auto& test) { return test.param.name; });

TEST(Depth, writesJsonDownTo128Levels) {
    const auto nested = [](std::size_t depth) { return std::string(depth, '[') + std::string(depth, ']'); };
    EXPECT_EQ(
        documentToText(*parseJSON(nested(128)), {.format = DocumentFormat::Json, .indent = 0, .sorter = {}}),
        nested(128));
    EXPECT_THROW(static_cast<void>(documentToText(*parseJSON(nested(129)), DocumentFormat::Json)),
                 JSONWriterError);
}

/// libyaml's own work grows with the square of the depth, in block style as much as in flow style.
TEST(Depth, readsYamlDownTo10000Levels) {
    const auto flow = [](std::size_t depth) { return std::string(depth, '[') + std::string(depth, ']'); };
    const auto flowObjects = [](std::size_t depth) { return repeated("{a: ", depth) + repeated("}", depth); };
    const auto block = [](std::size_t depth) { return repeated("- ", depth) + "a\n"; };
    const auto blockObjects = [](std::size_t depth) {
        std::string text;
        for (std::size_t level = 0; level < depth; ++level)
            text += std::string(level, ' ') + "a:\n";
        return text;
    };
    for (const auto& nested : {+flow, +flowObjects, +block}) {
        const auto document = parseYAML(nested(10'000));
        EXPECT_EQ(test_support::depthOf(*document->root()), 10'000u);
        const JV* deepest = innermost(document->root());
        EXPECT_EQ(document->lookup(deepest->pointer()), deepest);
        EXPECT_EQ(yamlError(nested(10'001)), "Failed to parse YAML");
    }
    EXPECT_EQ(yamlError(blockObjects(10'001)), "Failed to parse YAML");
    EXPECT_EQ(yamlError(std::string(million, '[')), "Failed to parse YAML");
    EXPECT_EQ(yamlError(repeated("- ", million)), "Failed to parse YAML");
    EXPECT_EQ(yamlError(repeated("? ", million)), "Failed to parse YAML");
}

/// What is written at the deepest level is read back from there.
TEST(Depth, writesTheDeepestYaml) {
    const auto document = parseJSON(std::string(10'000, '[') + "\"1\"" + std::string(10'000, ']'));
    const std::string text =
        documentToText(*document, {.format = DocumentFormat::Yaml, .indent = 0, .sorter = {}});
    EXPECT_EQ(test_support::firstDifference(*document, *parseYAML(text)), "");
}

// ---- size

TEST(Size, keepsAStringOf100Megabytes) {
    const std::string text(100 * million, 'x');
    const auto document = parseJSON("[\"" + text + "\",\"" + text.substr(1) + "\\n\"]");
    const auto elements = document->root()->elements();
    EXPECT_TRUE(elements[0]->text() == text);
    EXPECT_EQ(elements[1]->text().size(), text.size());
    EXPECT_EQ(elements[1]->text().back(), '\n');
    const std::string written =
        documentToText(*document, {.format = DocumentFormat::Json, .indent = 0, .sorter = {}});
    EXPECT_EQ(written.size(), 2 * text.size() + 8);
    EXPECT_TRUE(parseJSON(written)->root()->equals(*document->root()));
}

TEST(Size, keepsAMillionKeys) {
    std::string text = "{";
    for (std::size_t i = 0; i < million; ++i)
        text += fmt::format("\"k{}\":{},", (i * 7919) % million, i);
    text.back() = '}';
    const auto document = parseJSON(text);
    const JV& root = *document->root();
    ASSERT_EQ(root.size(), million);
    for (std::size_t i = 0; i < million; i += 1000) {
        const std::string key = fmt::format("k{}", (i * 7919) % million);
        ASSERT_EQ(root.get(key)->number().toString(), std::to_string(i));
        ASSERT_EQ(document->lookup("/" + key), root.get(key));
    }
    EXPECT_TRUE(JVDocument::clone(root)->equals(root));
    for (const DocumentFormat format : {DocumentFormat::Json, DocumentFormat::Yaml}) {
        const auto again =
            parseDocument(documentToText(*document, format), {.format = format, .refLoader = {}});
        EXPECT_EQ(test_support::firstDifference(*document, *again), "");
    }
}

TEST(Size, keepsTheLastOfAMillionDuplicates) {
    std::string text = "{\"first\":0,";
    for (std::size_t i = 0; i < million; ++i)
        text += fmt::format("\"same\":{},", i);
    text += "\"last\":0}";
    const auto document = parseJSON(text);
    EXPECT_EQ(document->root()->size(), 3u);
    EXPECT_EQ(document->root()->get("same")->number().toString(), std::to_string(million - 1));
    EXPECT_EQ(document->keysOf(document->root()).size(), million + 2);
    EXPECT_EQ(documentToText(*document, {.format = DocumentFormat::Json, .indent = 0, .sorter = {}}),
              fmt::format("{{\"first\":0,\"same\":{},\"last\":0}}", million - 1));
}

/// Each in an object of its own, so that what an object needs once is paid a million times.
TEST(Size, keepsAMillionObjects) {
    const std::string text = "[" + repeated("{\"a\":{},\"a\":[],\"b\":1},", million / 4) + "{}]";
    const auto document = parseJSON(text);
    EXPECT_EQ(document->root()->size(), million / 4 + 1);
    EXPECT_TRUE(document->root()->elements()[million / 8]->get("a")->isArray());
    EXPECT_TRUE(JVDocument::clone(*document->root())->equals(*document->root()));
}

/// Objects that are built and changed in code.
TEST(Size, buildsAndEmptiesAMillionKeys) {
    JVDocument document;
    JV* root = document.makeRoot(Kind::Object);
    for (std::size_t i = 0; i < million; ++i)
        root->setInteger(fmt::format("k{}", (i * 7919) % million), static_cast<std::int64_t>(i));
    EXPECT_EQ(root->size(), million);
    document.reindex();
    EXPECT_EQ(document.lookup("/k7919")->number().toString(), "1");
    for (std::size_t i = 0; i < million; i += 2)
        root->remove(fmt::format("k{}", i));
    EXPECT_EQ(root->size(), million / 2);
    EXPECT_FALSE(root->has("k0"));
    EXPECT_TRUE(root->has("k1"));
}

TEST(Size, keepsManyBytesOfEverything) {
    const std::string digits(million, '7');
    EXPECT_EQ(parseJSON("[" + digits + "]")->root()->elements()[0]->number().kind(), number::NumberKind::Big);
    EXPECT_EQ(jsonError(digits + "x"), "JSON parse error");
    const std::string escapes = repeated("\\u00e9\\ud83d\\ude00", million);
    EXPECT_EQ(parseJSON("\"" + escapes + "\"")->root()->text().size(), 6 * million);
    EXPECT_EQ(jsonError(std::string(10 * million, '\n')), "JSON parse error");
    const auto lines = parseJSON(std::string(million, '\n') + "[]");
    EXPECT_EQ(lines->root()->pos(), (Pos{static_cast<std::int32_t>(million) + 1, 1}));
}

} // namespace
} // namespace specloom::jv
