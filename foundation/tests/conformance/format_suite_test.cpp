// The format tests of the public JSON Schema suite, and the rules by which the validators differ from them.

#include "jv/json_reader.h"
#include "jv/jv.h"
#include "test_support/corpora.h"
#include "test_support/format_validators.h"

#include <cstddef> // std::size_t
#include <memory>  // std::unique_ptr
#include <set>     // std::set
#include <string>  // std::string
#include <utility> // std::pair
#include <vector>  // std::vector

#include <gtest/gtest.h>

namespace specloom {
namespace {

using test_support::formatValidators;

/// Rows of the public test suite that are decided otherwise here, by what rule.
struct Difference {
    std::string rule;
    std::string format;
    std::vector<std::string> rows;
};

const std::vector<Difference>& differences() {
    static const std::vector<Difference> all = {
        {"parts of a duration between others may be left out", "duration", {"P1Y2D", "PT1H2S"}},
        {"the domain of an address has no brackets, so no address literals",
         "email",
         {"joe.bloggs@[127.0.0.1]", "joe.bloggs@[IPv6:::1]"}},
        {"the form of the domain of an address is not looked at", "email", {"joe.bloggs@invalid=domain.com"}},
        {"a label begins with a letter", "hostname", {"1host"}},
        {"the length of a whole host name has no limit",
         "hostname",
         {"abcdefghijklmnopqrstuvwxyzabcdefghijklmnopqrstuvwxyzabcdefghijk."
          "abcdefghijklmnopqrstuvwxyzabcdefghijklmnopqrstuvwxyzabcdefghijk."
          "abcdefghijklmnopqrstuvwxyzabcdefghijklmnopqrstuvwxyzabcdefghijk."
          "abcdefghijklmnopqrstuvwxyzabcdefghijklmnopqrstuvwxyzabcdefghijk.com"}},
        {"labels are not decoded as internationalized ones",
         "hostname",
         {"xn--X",
          "xn--07jt112bpxg.xn--9t4b11yi5a",
          "xn--hello-txk",
          "xn--hello-zed",
          "xn--hello-6bf",
          "xn--chb89f",
          "xn--07jceefgh4c",
          "xn--al-0ea",
          "xn--l-fda",
          "xn--la-0ea",
          "xn--l-gda",
          "xn--S-jib3p",
          "xn--wva3j",
          "xn--A-2hc5h",
          "xn--5db1e",
          "xn--A-2hc8h",
          "xn--5db3e",
          "xn--defabc-k64e",
          "xn--vek",
          "xn--ngb6iyr",
          "xn--11b2er09f",
          "xn--02b508i",
          "XN--aa---o47jg78q"}},
        {"groups are not referred back to", "regex", {R"((?<n>a)\k<n>)"}},
        {"the URL parser escapes what must not stand in a URI, and passes stray percent signs",
         "uri",
         {"https://[@example.org/test.txt", "https://example.org/foobar®.txt",
          R"(https://example.org/foobar\.txt)", R"(https://example.org/foobar".txt)",
          "https://example.org/foobar<>.txt", "https://example.org/foobar{}.txt",
          "https://example.org/foobar^.txt", "https://example.org/foobar`.txt",
          "https://example.org/foo bar.txt", "https://example.org/foobar|.txt", "http://example.com/%6G",
          "http://example.com/%A", "http://example.com/%"}},
        {"the same for references",
         "uri-reference",
         {"/foobar®.txt", "/%zz", R"(/a"b)", "/[::1]", "//a@b@example.com/", "1:b"}},
        {"the URL parser takes any host that ends in a number for an IPv4 address",
         "uri",
         {"http://087.10.0.1/", "http://999.999.999.999/"}},
        {"the same for references", "uri-reference", {"http://087.10.0.1/", "http://999.999.999.999/"}},
        {"the URL parser adds a missing slash in front of the host", "uri", {"http:/[::1]"}},
        {"a web address needs a host", "uri-reference", {"//"}},
        {"a UUID is in lower case",
         "uuid",
         {"2EB8AA08-AA98-11EA-B4AA-73B441D16380", "2eb8aa08-AA98-11ea-B4Aa-73B441D16380"}},
        {"the variant digit of a UUID is 0, 8, 9, a or b", "uuid", {"2eb8aa08-aa98-11ea-f4aa-73b441d16380"}},
    };
    return all;
}

TEST(FormatSuite, agreesButForTheNamedRows) {
    SPECLOOM_NEEDS_CORPORA();
    std::set<std::pair<std::string, std::string>> expected;
    for (const Difference& difference : differences()) {
        for (const std::string& row : difference.rows)
            expected.emplace(difference.format, row);
    }
    const auto folder =
        test_support::corporaFolder() / "json-schema" / "tests" / "draft2020-12" / "optional" / "format";
    std::set<std::pair<std::string, std::string>> found;
    std::size_t rows = 0;
    for (const auto& path : test_support::filesBelow(folder, ".json")) {
        const std::unique_ptr<jv::JVDocument> document = jv::parseJSON(test_support::fileBytes(path));
        for (const jv::JV* group : document->root()->elements()) {
            const std::string format(group->getRequiredObject("schema")->getRequiredString("format")->text());
            const auto predicate = formatValidators().find(format);
            if (predicate == formatValidators().end())
                continue;
            for (const jv::JV* test : group->get("tests")->elements()) {
                const jv::JV* data = test->get("data");
                if (!data->isString())
                    continue; // a format says nothing of other values
                ++rows;
                const std::string text(data->text());
                const bool differs = predicate->second(text) != test->get("valid")->boolean();
                EXPECT_EQ(differs, expected.count({format, text}) == 1) << format << ": " << text;
                if (differs)
                    found.emplace(format, text);
            }
        }
    }
    EXPECT_EQ(found, expected) << "rows that are named above and not in the suite";
    EXPECT_GT(rows, 300U);
}

} // namespace
} // namespace specloom
