// Whatever the YAML writer makes of a value must read back as the same value. The strings here are those that
// could be mistaken for another kind, for punctuation or for layout, alone and joined with one another, in
// every place where a string can stand.

#include "jv/deser.h"
#include "test_support/documents.h"
#include "test_support/exact_decimal.h"
#include "test_support/failure.h"
#include "test_support/texts.h"

#include <limits>    // std::numeric_limits
#include <memory>    // std::unique_ptr
#include <random>    // std::mt19937
#include <stdexcept> // std::runtime_error

#include <fmt/format.h>
#include <gtest/gtest.h>

namespace specloom::jv {
namespace {

using namespace std::string_literals;

const std::vector<std::string> numberPieces = test_support::wordsOf(
    "0 1 -1 +1 01 1.5 -0.0 .5 1. 1.5.1 1_0 0x1F 0o17 0b1 1:2:3 1e5 1.5e-3 +1E5 1e e5 - + .inf .nan -.INF "
    "Infinity "
    "NaN 2020-01-01 2020-01-01T00:00:00Z 123456789012345678901234567890 0.1234567890123456789012345");
const std::vector<std::string> wordPieces = {
    "a",  "null", "Null", "NULL", "~", "true", "True", "TRUE", "false", "False",
    "on", "off",  "yes",  "no",   "y", "N",    "<<",   "=",    "é",     "漢字",
};
const std::vector<std::string> punctuationPieces = {
    ":",   ": ",  ":a",   "a: b",  "- ",   "? ",        "?",        "#",  " #",   "*",      "*a",
    "&",   "&a",  "!",    "!!str", "|",    "|-",        ">",        "%",  "@",    "`",      "'",
    "\"",  "\\",  "\\n",  "{",     "}",    "[",         "]",        ",",  ", ",   "{a: b}", "[a]",
    "---", "...", "--- ", "--- a", "... ", "%YAML 1.1", "%TAG ! a", "''", "\"\"",
};
const std::vector<std::string> blankPieces = {
    " ", "  ", "\t", " \t", "\n", "\n\n", "\n\n\n", "\n ", " \n", "\n  \n", "\n\t", "\r", "\r\n", "\v", "\f",
};
const std::vector<std::string> unicodePieces = {
    "\0"s,    "\x01",   "\x07",   "\x08",   "\x1b",       "\x7f",       "\u0080",     "\u0085",
    "\u009f", "\u00a0", "\u00ad", "\u2028", "\u2029",     "\u200b",     "\ud7ff",     "\ue000",
    "\ufeff", "\ufffd", "\ufffe", "\uffff", "\U0001f600", "\U0001ffff", "\U0010ffff",
};

std::vector<std::string> allPieces() {
    std::vector<std::string> all{""};
    for (const auto* pieces : {&numberPieces, &wordPieces, &punctuationPieces, &blankPieces, &unicodePieces})
        all.insert(all.end(), pieces->begin(), pieces->end());
    return all;
}

/// For messages.
std::string escaped(std::string_view text) {
    std::string out;
    for (const char c : text)
        out += c >= ' ' && c <= '~' ? std::string(1, c)
                                    : fmt::format("\\x{:02x}", static_cast<unsigned char>(c));
    return out;
}

std::size_t countDigits(std::string_view& text) {
    const std::size_t count = std::min(text.find_first_not_of("0123456789"), text.size());
    text.remove_prefix(count);
    return count;
}

/// [+-]?[0-9]+(\.[0-9]+)?[eE][+-]?[0-9]+ : what the quoting rule leaves plain and the reader takes for a
/// number.
bool isExponentForm(std::string_view text) {
    const auto skipSign = [&] {
        if (text.starts_with('+') || text.starts_with('-'))
            text.remove_prefix(1);
    };
    skipSign();
    if (countDigits(text) == 0)
        return false;
    if (text.starts_with('.')) {
        text.remove_prefix(1);
        if (countDigits(text) == 0)
            return false;
    }
    if (!text.starts_with('e') && !text.starts_with('E'))
        return false;
    text.remove_prefix(1);
    skipSign();
    return countDigits(text) != 0 && text.empty();
}

/// Keys backwards, so that an order that got lost shows.
void reverseKeys(JVDocument& document, JV* object) {
    std::vector<std::string_view> keys;
    for (const Member member : object->members())
        keys.insert(keys.begin(), member.key);
    document.setKeys(object, keys);
}

/// The string as a key of every kind of value.
void addAsKey(JV& object, const std::string& text) {
    object.setNull(text);
    JV* nested = object.setObject("nested");
    nested->setArray(text)->appendObject()->setBoolean(text, true);
    nested->setObject(text + " of an empty object");
    nested->setObject("deep")->setObject(text)->setObject(text)->setArray(text);
}

/// The string in every place where a string can stand; as a key only if it is not empty, as the empty key
/// counts as none, and as a value only if the reader does not take it for a number.
std::unique_ptr<JVDocument> documentWith(const std::string& text) {
    auto document = std::make_unique<JVDocument>();
    JV* root = document->makeRoot(Kind::Object);
    if (!isExponentForm(text)) {
        root->setString("value", text);
        JV* list = root->setArray("list");
        list->appendString(text);
        list->appendArray()->appendString(text);
        list->appendObject()->setString("value", text);
        list->appendString(text);
        if (!text.empty())
            root->setObject("both")->setString(text, text);
    }
    if (!text.empty())
        addAsKey(*root, text);
    reverseKeys(*document, root);
    return document;
}

/// What is lost when the document is written with this indent (0: flow style) and read; "" for nothing.
std::string lostBy(const JVDocument& document, int indent) {
    std::string text;
    try {
        text = documentToText(document, {.format = DocumentFormat::Yaml, .indent = indent, .sorter = {}});
        const auto again = parseDocument(text, {.format = DocumentFormat::Yaml, .refLoader = {}});
        const std::string difference = test_support::firstDifference(document, *again);
        if (!difference.empty())
            return difference + " in " + escaped(text);
        const SaveOptions options{.format = DocumentFormat::Yaml, .indent = indent, .sorter = {}};
        return documentToText(*again, options) == text ? "" : "another text than " + escaped(text);
    } catch (const std::exception& error) {
        return std::string(error.what()) + " for " + escaped(text);
    }
}

/// Each string in each of the layouts, or, to save time, in flow style, with the usual indent and one more.
enum class Layouts { All, Three };

void expectSurvival(const std::vector<std::string>& strings, Layouts layouts) {
    int failures = 0;
    for (std::size_t i = 0; i < strings.size() && failures < 20; ++i) {
        const auto document = documentWith(strings[i]);
        for (const int indent : {0, 2, 3, 4, 5, 6, 7, 8, 9}) {
            if (layouts == Layouts::Three && indent > 2 && static_cast<std::size_t>(indent) != 3 + i % 7)
                continue;
            const std::string lost = lostBy(*document, indent);
            EXPECT_EQ(lost, "") << "\"" << escaped(strings[i]) << "\" with indent " << indent;
            failures += !lost.empty();
        }
    }
}

TEST(YamlRoundTrip, keepsEveryPiece) {
    expectSurvival(allPieces(), Layouts::All);
}

TEST(YamlRoundTrip, keepsEveryPair) {
    std::vector<std::string> pairs;
    const std::vector<std::string> pieces = allPieces();
    for (const std::string& first : pieces) {
        for (const std::string& second : pieces) {
            pairs.push_back(first + second);
            pairs.push_back(first + "x" + second);
            pairs.push_back("x" + first + second);
            pairs.push_back("x " + first + " y" + second);
        }
    }
    expectSurvival(pairs, Layouts::Three);
}

TEST(YamlRoundTrip, keepsRandomSequences) {
    const std::vector<std::string> pieces = allPieces();
    std::mt19937 random(20240611);
    std::vector<std::string> sequences;
    for (int i = 0; i < 15000; ++i) {
        std::string& text = sequences.emplace_back();
        for (auto left = 3 + random() % 5; left > 0; --left)
            text += pieces[random() % pieces.size()];
    }
    expectSurvival(sequences, Layouts::Three);
}

/// A string that stood plain in its source is written plain again where it can be, so other rules hold for
/// it.
TEST(YamlRoundTrip, keepsPlainStringsOfASource) {
    std::vector<std::string> texts;
    const std::vector<std::string> pieces = allPieces();
    for (const std::string& first : pieces)
        for (const std::string& second : pieces)
            for (const char* between : {"", " ", "x"})
                texts.push_back(first + between + second);
    int plain = 0;
    for (const std::string& text : texts) {
        const std::string source =
            "value: " + text + "\nlist:\n- " + text + "\n- - " + text + "\n- key: " + text + "\n";
        std::unique_ptr<JVDocument> document;
        try {
            document = parseDocument(source, {.format = DocumentFormat::Yaml, .refLoader = {}});
        } catch (const std::runtime_error&) {
            continue; // a plain scalar cannot hold this text
        }
        if (test_support::hasEmptyKey(*document->root()))
            continue;
        const JV* value = document->root()->get("value");
        plain += static_cast<int>(value != nullptr && value->isPlainScalar());
        for (const int indent : {0, 2})
            ASSERT_EQ(lostBy(*document, indent), "") << escaped(source) << " with indent " << indent;
    }
    EXPECT_GT(plain, 10000);
}

/// libyaml writes a key of more than 128 bytes behind a "?", and its parser looks for the ":" of a plain key
/// no further than 1024 bytes.
TEST(YamlRoundTrip, keepsLongKeys) {
    std::vector<std::string> longOnes;
    for (const std::size_t length : {126u, 127u, 128u, 129u, 1022u, 1023u, 1024u, 1025u, 5000u}) {
        const std::string run(length, 'k');
        longOnes.push_back(run);
        std::string words;
        while (words.size() < length)
            words += "word ";
        longOnes.push_back(words);
        for (const std::string& piece : allPieces()) {
            longOnes.push_back(run + piece);
            longOnes.push_back(piece + run);
            longOnes.push_back(run.substr(length / 2) + piece + run.substr(length / 2));
        }
    }
    expectSurvival(longOnes, Layouts::Three);
}

TEST(YamlRoundTrip, takesTheExponentFormForANumber) {
    for (const char* text : {"1e5", "1E5", "-1e5", "+1.5e-3", "0e0", "1e400"}) {
        SCOPED_TRACE(text);
        ASSERT_TRUE(isExponentForm(text));
        JVDocument document;
        document.makeRoot(Kind::Array)->appendString(text);
        const std::string yaml = documentToText(document, DocumentFormat::Yaml);
        EXPECT_EQ(yaml, "- "s + text + "\n");
        const auto again = parseDocument(yaml, {.format = DocumentFormat::Yaml, .refLoader = {}});
        const JV& value = *again->root()->elements()[0];
        ASSERT_TRUE(value.isNumber());
        EXPECT_TRUE(test_support::sameNumber(value.number().toString(), text));
    }
}

/// What YAML cannot hold is refused; written all the same, the whole text could not be read back.
TEST(YamlRoundTrip, refusesWhatYamlCannotHold) {
    const std::string string = "Failed to initialize string scalar event";
    const std::string number = "Failed to initialize number scalar event";
    const auto error = [](const std::unique_ptr<JV>& value) {
        JVDocument document;
        document.makeRoot(Kind::Array)->append(JVDocument::clone(*value));
        return test_support::failureOf([&] { return documentToText(document, DocumentFormat::Yaml); });
    };
    for (const char* text :
         {"\xed\xa0\x80", "a\xed\xbf\xbf", "\xf4\x90\x80\x80", "\xf7\xbf\xbf\xbf", "\xff", "\xc0\x80"}) {
        SCOPED_TRACE(escaped(text));
        EXPECT_EQ(error(std::make_unique<JV>(text)), string);
        auto object = JV::newObject();
        object->setNull(text);
        EXPECT_EQ(error(object), string);
    }
    for (const double value :
         {std::numeric_limits<double>::infinity(), std::numeric_limits<double>::quiet_NaN()})
        EXPECT_EQ(error(std::make_unique<JV>(value)), number);
    const std::string beyond = "1e" + std::string(30, '9');
    EXPECT_EQ(error(std::make_unique<JV>(number::Number::fromText(beyond))), number);
}

} // namespace
} // namespace specloom::jv
