#include "jv/json_reader.h"
#include "jv/jv.h"
#include "jv/jv_document.h"
#include "jv/jv_pointer.h"
#include "test_support/failure.h"

#include <memory>    // std::unique_ptr
#include <stdexcept> // std::invalid_argument
#include <string>    // std::string
#include <variant>   // std::bad_variant_access
#include <vector>    // std::vector

#include <gtest/gtest.h>

namespace specloom::jv {
namespace {

using Document = std::unique_ptr<JVDocument>;
using test_support::failureOf;

std::vector<std::string> keysInOrder(const JV& object) {
    std::vector<std::string> keys;
    for (const Member member : object.members())
        keys.emplace_back(member.key);
    return keys;
}

TEST(Value, positionIsSetOnce) {
    JV value;
    EXPECT_EQ(value.pos(), (Pos{-1, -1}));
    value.setPos({3, -1});
    value.setPos({4, 5}); // the former one was not complete
    EXPECT_EQ(value.pos(), (Pos{4, 5}));
    value.setPos({6, 7});
    EXPECT_EQ(value.pos(), (Pos{4, 5}));
}

TEST(Value, keepsTextOfAnyLength) {
    JV value;
    for (const std::size_t length : {0U, 1U, 15U, 16U, 17U, 1000U, 16U, 3U}) {
        const std::string text(length, 'x');
        value.setString(text);
        EXPECT_EQ(value.text(), text);
    }
    value.setString("a text of more than sixteen bytes");
    value.setString(value.text().substr(2)); // a view of its own bytes
    EXPECT_EQ(value.text(), "text of more than sixteen bytes");
    value.setString(value.text().substr(0, 4));
    EXPECT_EQ(value.text(), "text");
    EXPECT_EQ(value.size(), 0u);
}

TEST(Value, refusesOperationsOfAnotherKind) {
    JV value("text");
    EXPECT_THROW(static_cast<void>(value.boolean()), std::bad_variant_access);
    EXPECT_THROW(static_cast<void>(value.number()), std::bad_variant_access);
    EXPECT_THROW(static_cast<void>(value.elements()), std::bad_variant_access);
    EXPECT_THROW(static_cast<void>(value.members()), std::bad_variant_access);
    EXPECT_THROW(static_cast<void>(value.get("a")), std::bad_variant_access);
    EXPECT_THROW(value.appendNull(), std::bad_variant_access);
    EXPECT_THROW(value.setNull("a"), std::bad_variant_access);
    EXPECT_THROW(value.remove("a"), std::bad_variant_access);
    EXPECT_THROW(value.clear(), std::bad_variant_access);
    EXPECT_THROW(static_cast<void>(JV().text()), std::bad_variant_access);
    EXPECT_FALSE(value.has("a"));
}

TEST(Value, keyOrderIsByUnsignedBytesAndLength) {
    const auto object = JV::newObject();
    const std::vector<std::string> expected = {
        "",  std::string("\0", 1), std::string("\0\0", 2), "A", "a", "abcdefgh", "abcdefgha", "abcdefghb",
        "b", "\xc3\xa9",
    };
    for (auto key = expected.rbegin(); key != expected.rend(); ++key)
        object->setNull(*key);
    EXPECT_EQ(keysInOrder(*object), expected);
}

TEST(Value, replacedMemberStaysAliveAndFindable) {
    const Document document = parseJSON(R"({"a": {"b": "the former text"}, "c": 1})");
    const JV* former = document->lookup("/a");
    const JV* inner = document->lookup("/a/b");
    document->root()->setString("a", "new");
    EXPECT_EQ(document->root()->get("a")->text(), "new");
    EXPECT_EQ(former->pointer(), "/a");
    EXPECT_EQ(document->lookup("/a"), former) << "the index is that of the last indexing";
    EXPECT_EQ(document->lookup("/a/b"), inner);
    document->reindex();
    EXPECT_EQ(document->lookup("/a")->text(), "new");
    EXPECT_EQ(document->lookup("/a/b"), nullptr);
    EXPECT_EQ(former->get("b")->text(), "the former text");
}

TEST(Value, indexIsThatOfTheLastIndexing) {
    const Document document = parseJSON(R"({"a": [1, 2], "b": {}})");
    JV* added = document->root()->get("b")->setObject("c");
    EXPECT_EQ(added->pointer(), "");
    EXPECT_EQ(document->lookup("/b/c"), nullptr);
    document->root()->get("a")->appendNull();
    EXPECT_EQ(document->lookup("/a/2"), nullptr);
    document->root()->remove("b");
    EXPECT_EQ(document->lookup("/b"), nullptr);
    document->root()->setNull("b");
    document->reindex();
    EXPECT_NE(document->lookup("/a/2"), nullptr);
    EXPECT_EQ(document->lookup("/b")->pointer(), "/b");

    document->setRoot(JV::newArray(), false);
    EXPECT_EQ(document->lookup(""), nullptr);
    const JV* root = document->makeRoot(Kind::String);
    EXPECT_EQ(document->lookup(""), root);
}

TEST(Value, lookupTakesOnlyTheTextsThatPointersHave) {
    const Document document = parseJSON(R"({"a/b": [{"~": 1}], "": {"": 2}, "1": 3})");
    for (const char* pointer : {"", "/a~1b", "/a~1b/0", "/a~1b/0/~0", "/", "//", "/1"}) {
        SCOPED_TRACE(pointer);
        ASSERT_NE(document->lookup(pointer), nullptr);
        EXPECT_EQ(document->lookup(pointer)->pointer(), pointer);
    }
    for (const char* pointer :
         {"a", "/a/b", "/a~1b/00", "/a~1b/1", "/a~1b/-1", "/a~1b/+0", "/a~1b/0 ", "/a~1b/", "/a~1b/0/~",
          "/a~1b/0/~2", "/1/x", "///", "/a~1b/18446744073709551616", "/a~1b/4294967296"}) {
        SCOPED_TRACE(pointer);
        EXPECT_EQ(document->lookup(pointer), nullptr);
    }
}

TEST(Value, resolveWalksTokens) {
    const Document document = parseJSON(R"({"a": [10, {"b": true}], "c": "x"})");
    const JV& root = *document->root();
    EXPECT_EQ(root.resolve({}), &root);
    EXPECT_EQ(root.resolve({"a", "1", "b"}), document->lookup("/a/1/b"));
    EXPECT_EQ(root.resolve({"a", "2"}), nullptr);
    EXPECT_EQ(root.resolve({"a", "99999999999999999999999"}), nullptr);
    EXPECT_EQ(root.resolve({"x", "y"}), nullptr);
    EXPECT_EQ(root.resolve({"c", "y"}), nullptr);
    EXPECT_EQ(failureOf<std::invalid_argument>([&] {
                  return root.resolve({"a", "b"});
              }),
              "invalid stoul argument");
}

TEST(Value, typedGettersTellWhatIsWrong) {
    const Document document = parseJSON(
        R"({"null": null, "real": 1.5, "whole": 2.0, "text": "t", "list": [], "map": {}, "yes": true})");
    const JV& root = *document->root();
    using Getter = const JV* (JV::*)(std::string_view) const;
    struct Case {
        Getter getter;
        const char* name;
        const char* message; // empty: returns the value
    };
    const std::vector<Case> cases = {
        {&JV::getRequired, "none", "Required property 'none' is missing."},
        {&JV::getRequired, "null", ""},
        {&JV::getRequiredObject, "none", "Required property 'none' is missing."},
        {&JV::getRequiredObject, "list", "An object value is expected for 'list'."},
        {&JV::getRequiredBoolean, "text", "A boolean value is expected for 'text'."},
        {&JV::getRequiredString, "yes", "A string value is expected for 'yes'."},
        {&JV::getArray, "map", "An array value is expected for 'map'."},
        {&JV::getArray, "list", ""},
        {&JV::getBoolean, "null", "A boolean value is expected for 'null'."},
        {&JV::getBoolean, "yes", ""},
        {&JV::getInteger, "real", "An integer value is expected for 'real'."},
        {&JV::getInteger, "text", "An integer value is expected for 'text'."},
        {&JV::getInteger, "whole", ""},
        {&JV::getNumeric, "text", "A numeric value is expected for 'text'."},
        {&JV::getNumeric, "real", ""},
        {&JV::getObject, "text", "An object value is expected for 'text'."},
        {&JV::getObject, "map", ""},
        {&JV::getString, "map", "A string value is expected for 'map'."},
        {&JV::getString, "text", ""},
    };
    for (const Case& test : cases) {
        SCOPED_TRACE(std::string(test.name) + ": " + test.message);
        try {
            EXPECT_EQ((root.*test.getter)(test.name), root.get(test.name));
            EXPECT_STREQ(test.message, "");
        } catch (const JVError& error) {
            EXPECT_STREQ(error.what(), test.message);
            EXPECT_EQ(error.value(), &root);
        }
    }
    for (const Getter getter :
         {&JV::getArray, &JV::getBoolean, &JV::getInteger, &JV::getNumeric, &JV::getObject, &JV::getString})
        EXPECT_EQ((root.*getter)("none"), nullptr);
}

TEST(Value, rangeChecks) {
    struct Case {
        const char* literal;
        bool isFloat, isInt32, isInt64;
    };
    const std::vector<Case> cases = {
        {"0", true, true, true},
        {"2147483647", true, true, true},
        {"2147483648", true, false, true},
        {"-2147483648", true, true, true},
        {"-2147483649", true, false, true},
        {"7.0", true, true, true},
        {"7.5", true, false, false},
        {"9223372036854775807", true, false, true},
        {"9223372036854775808", true, false, false},
        {"-9223372036854775808", true, false, true},
        {"9.3e18", true, false, false},
        {"3.4028234663852886e38", true, false, false},
        {"3.5e38", false, false, false},
        {"-3.5e38", false, false, false},
        {"18446744073709551616", true, false, false},
        {"1e999", false, false, false},
        {"\"1\"", false, false, false},
        {"true", false, false, false},
    };
    for (const Case& test : cases) {
        SCOPED_TRACE(test.literal);
        const Document document = parseJSON(test.literal);
        EXPECT_EQ(document->root()->fitsFloat(), test.isFloat);
        EXPECT_EQ(document->root()->fitsInt32(), test.isInt32);
        EXPECT_EQ(document->root()->fitsInt64(), test.isInt64);
    }
}

TEST(Value, equalityAndHash) {
    struct Case {
        const char* a;
        const char* b;
        bool equal;
    };
    const std::vector<Case> cases = {
        {"null", "null", true},
        {"null", "false", false},
        {"[]", "{}", false},
        {"1", "1.0", true},
        {"1", "2", false},
        {"\"a\"", "\"a\"", true},
        {"\"a\"", "\"b\"", false},
        {"[1,2]", "[1,2]", true},
        {"[1,2]", "[2,1]", false},
        {"[1,2]", "[1,2,3]", false},
        {R"({"a":1,"b":[true]})", R"({"b":[true],"a":1})", true},
        {R"({"a":1,"b":[true]})", R"({"b":[false],"a":1})", false},
        {R"({"a":1})", R"({"b":1})", false},
        {R"({"a":1})", R"({"a":1,"b":1})", false},
        {"1e999", "1e999", true},
        {"100000000000000000000000", "1.0e23", false},
    };
    for (const Case& test : cases) {
        SCOPED_TRACE(std::string(test.a) + " " + test.b);
        const Document a = parseJSON(test.a);
        const Document b = parseJSON(test.b);
        EXPECT_EQ(a->root()->equals(*b->root()), test.equal);
        EXPECT_EQ(b->root()->equals(*a->root()), test.equal);
        if (test.equal)
            EXPECT_EQ(a->root()->hash(), b->root()->hash());
        else
            EXPECT_NE(a->root()->hash(), b->root()->hash());
    }
    // The definition itself, worked out by hand for the simplest of all.
    EXPECT_EQ(JV().hash(), 0x9e3779b9u);
}

TEST(Value, almostEqualsForgivesOnlyAtTheTop) {
    const Document document = parseJSON("[0.30000000000000004, 0.3, [0.30000000000000004], [0.3]]");
    const auto values = document->root()->elements();
    EXPECT_FALSE(values[0]->equals(*values[1]));
    EXPECT_TRUE(values[0]->almostEquals(*values[1]));
    EXPECT_FALSE(values[2]->almostEquals(*values[3]));
    EXPECT_FALSE(values[0]->almostEquals(JV("0.3")));
}

TEST(Value, cloneIsDeepAndBare) {
    const Document document =
        parseJSON(R"({"b": [1, "text of more than sixteen bytes", 1e999], "a": {"d": null, "c": false}})");
    const auto copy = JVDocument::clone(*document->root());
    EXPECT_TRUE(copy->equals(*document->root()));
    EXPECT_EQ(copy->get("b")->pointer(), "");
    EXPECT_EQ(copy->get("b")->pos(), Pos{});
    EXPECT_TRUE(document->keysOf(copy.get()).empty());
}

TEST(Value, assignKeepsPlaceAndTakesContent) {
    const Document document = parseJSON(R"({"a": {"b": {"c": "inner text, long enough"}}})");
    JV* target = document->lookup("/a");
    const Pos pos = target->pos();
    JVDocument::assign(*document->lookup("/a/b"), *target); // the source is a part of the target
    EXPECT_EQ(target->get("c")->text(), "inner text, long enough");
    EXPECT_EQ(target->pos(), pos);
    EXPECT_EQ(document->lookup("/a"), target);
    EXPECT_EQ(target->get("c")->pointer(), "");
}

} // namespace
} // namespace specloom::jv
