// What formatters of all kinds build on; their reports themselves are held by the golden files of their
// modules.

#include "jv/deser.h"
#include "reporting/place.h"
#include "reporting/table.h"

#include <sstream> // std::ostringstream
#include <string>  // std::string

#include <gtest/gtest.h>

namespace specloom::reporting {
namespace {

TEST(Table, alignsByCodePoints) {
    Table table({{.before = "", .align = Align::Right},
                 {.before = ":"},
                 {.before = " ", .widest = 3},
                 {.before = " ", .widest = 0}});
    EXPECT_EQ(table.rowCount(), 0u);
    table.addRow({"1", "\xc3\xa4", "wider than that", "\xff"});
    table.addRow({"22", "three", "", ""});
    std::ostringstream out;
    table.write(out);
    EXPECT_EQ(out.str(), " 1:\xc3\xa4     wider than that \xff\n"
                         "22:three     \n");
    EXPECT_EQ(table.line(1), "22:three     ");
    EXPECT_EQ(table.rowCount(), 2u);
}

TEST(Place, isPrintedAsZeroWhereItIsUnknown) {
    EXPECT_EQ(printedPos({}), "0:0");
    EXPECT_EQ(printedPos({3, 0}), "3:0");
    EXPECT_EQ(printedFile(""), "<unknown>");
    EXPECT_EQ(printedFile("::error::\n.yaml"), "\\u003a:error::\\n.yaml");
}

} // namespace
} // namespace specloom::reporting
