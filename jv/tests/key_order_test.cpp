#include "jv/json_reader.h"
#include "jv/json_writer.h"
#include "jv/jv_document.h"
#include "jv/sorted_properties.h"

#include <string>      // std::string
#include <string_view> // std::string_view
#include <vector>      // std::vector

#include <gtest/gtest.h>

namespace specloom::jv {
namespace {

using Keys = std::vector<std::string_view>;

std::string compact(const JVDocument& document, PropertySorter sorter = {}) {
    JSONWriter writer;
    writer.setSorter(std::move(sorter));
    writer.write(document);
    return writer.output();
}

TEST(KeyOrder, sourceOrderForWhatWasReadElseBytewise) {
    const auto read = parseJSON(R"({"b":1,"a":2})");
    EXPECT_EQ(compact(*read), R"({"b":1,"a":2})");
    EXPECT_EQ(read->keysOf(read->root()), (Keys{"b", "a"}));

    JVDocument built;
    JV* root = built.makeRoot(Kind::Object);
    root->setInteger("b", 1);
    root->setInteger("a", 2);
    EXPECT_EQ(compact(built), R"({"a":2,"b":1})");
    EXPECT_TRUE(built.keysOf(root).empty());
}

TEST(KeyOrder, duplicatesAreRecordedAndTheLastValueCounts) {
    const auto document = parseJSON(R"({"a":1,"b":2,"a":{"x":3}})");
    EXPECT_EQ(document->keysOf(document->root()), (Keys{"a", "b", "a"}));
    EXPECT_EQ(compact(*document), R"({"a":{"x":3},"b":2})");
    EXPECT_EQ(document->lookup("/a/x")->pointer(), "/a/x");
    EXPECT_EQ(document->root()->size(), 2u);
}

TEST(KeyOrder, leavesValuesWhereTheyAre) {
    const auto document = parseJSON(R"({"d":1,"c":[2],"b":3})");
    const JV* element = document->lookup("/c/0");
    const Keys all = {"b", "d", "c"}; // just its keys: the entries themselves move
    document->setKeys(document->root(), all);
    EXPECT_EQ(compact(*document), R"({"b":3,"d":1,"c":[2]})");
    EXPECT_EQ(document->lookup("/c/0"), element);
    EXPECT_EQ(element->pointer(), "/c/0");
}

TEST(KeyOrder, sorterDecides) {
    const auto document = parseJSON(R"({"d":1,"c":{"y":1,"x":2},"b":3})");
    const Keys order = {"c", "none", "b", "c"};
    const auto listed = [&](const JV* object) { return SortedProperties(object, order); };
    EXPECT_EQ(compact(*document, listed), R"({"c":{"x":2,"y":1},"b":3,"d":1})");

    const SortedProperties natural(document->root());
    EXPECT_TRUE(natural.natural());
    EXPECT_EQ(natural.keys(), (Keys{"b", "c", "d"}));
    EXPECT_EQ(natural.at(1).value, document->lookup("/c"));
    EXPECT_THROW(static_cast<void>(natural.at(3)), std::out_of_range);
    EXPECT_FALSE(listed(document->root()).natural());
}

} // namespace
} // namespace specloom::jv
