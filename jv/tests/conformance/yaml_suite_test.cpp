// The public suite of YAML cases. libyaml reads YAML 1.1 and our reader understands neither tags nor aliases,
// so what the cases mean is not held against it; but each gives a document or the one error, and what was
// readYaml survives.

#include "jv/deser.h"
#include "jv/json_reader.h"
#include "jv/yaml_reader.h"
#include "test_support/corpora.h"
#include "test_support/documents.h"

#include <memory>    // std::unique_ptr
#include <stdexcept> // std::runtime_error

#include <gtest/gtest.h>

namespace specloom::jv {
namespace {

/// Null when the text is refused; any refusal but the one text fails.
std::unique_ptr<JVDocument> readYaml(const std::string& text) {
    try {
        return parseYAML(text);
    } catch (const std::runtime_error& error) {
        EXPECT_STREQ(error.what(), "Failed to parse YAML");
        return nullptr;
    }
}

/// How a document does not survive being written with an indent and readYaml again; "" when it does.
std::string lostByWriting(const JVDocument& document, int indent) {
    const auto format = DocumentFormat::Yaml;
    const std::string text = documentToText(document, {.format = format, .indent = indent, .sorter = {}});
    const auto again = readYaml(text);
    if (again == nullptr)
        return "not readYaml back:\n" + text;
    const std::string difference = test_support::firstDifference(document, *again);
    return difference.empty() ? "" : difference + ":\n" + text;
}

/// The cases that give a document with an empty key, which counts as none when it is readYaml again. A
/// container as a key is one too.
const std::vector<std::string> withEmptyKeys = {
    "4FJ6", "6BFJ", "6PBE", "9MMW", "C4HZ", "KK5P", "LX3P", "M2N8/01",
    "M5DY", "Q9WF", "RZP5", "SBG9", "UGM3", "V9D5", "X38W", "XW4D",
};

TEST(YamlSuite, givesADocumentOrTheOneError) {
    SPECLOOM_NEEDS_CORPORA();
    const auto folder = test_support::corporaFolder() / "yaml";
    const auto paths = test_support::filesBelow(folder, "in.yaml");
    EXPECT_EQ(paths.size(), 402u);
    int documents = 0;
    std::vector<std::string> emptyKeys;
    for (const auto& path : paths) {
        const std::string name = path.parent_path().lexically_relative(folder).string();
        SCOPED_TRACE(name);
        const auto document = readYaml(test_support::fileBytes(path));
        if (document == nullptr)
            continue;
        ++documents;
        const bool hasOne = test_support::hasEmptyKey(*document->root());
        if (hasOne)
            emptyKeys.push_back(name);
        for (const int indent : {0, 2, 9}) {
            const std::string lost = lostByWriting(*document, indent);
            EXPECT_TRUE(hasOne || lost.empty()) << "indent " << indent << ": " << lost;
        }
    }
    // The others are faulty, or a scalar or alias is all that they hold.
    EXPECT_EQ(documents, 186);
    EXPECT_EQ(emptyKeys, withEmptyKeys);
}

/// All files of both suites, whatever they are, through both readers.
TEST(YamlSuite, answersEveryFile) {
    SPECLOOM_NEEDS_CORPORA();
    int answers = 0;
    for (const char* suite : {"json", "yaml"}) {
        for (const auto& path : test_support::filesBelow(test_support::corporaFolder() / suite, "")) {
            SCOPED_TRACE(path);
            const std::string text = test_support::fileBytes(path);
            answers += static_cast<int>(readYaml(text) != nullptr);
            try {
                answers += static_cast<int>(parseJSON(text) != nullptr);
            } catch (const JSONReaderError& error) {
                EXPECT_STREQ(error.what(), "JSON parse error");
            }
        }
    }
    EXPECT_GT(answers, 1000);
}

} // namespace
} // namespace specloom::jv
