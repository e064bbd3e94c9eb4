// The public JSON Schema suite, all drafts, and by what reason this evaluator decides some of its optional
// tests otherwise.

#include "jv/json_reader.h"
#include "jv_schema/schema.h"
#include "test_support/corpora.h"
#include "test_support/format_validators.h"

#include <cstdio>   // std::printf
#include <optional> // std::optional
#include <set>      // std::set
#include <string>   // std::string
#include <utility>  // std::pair
#include <vector>   // std::vector

#include <gtest/gtest.h>

namespace specloom::jv::schema {
namespace {

namespace fs = std::filesystem;

/// Tests of optional/ that are decided otherwise, by file, group and test, joined by " / ".
struct Difference {
    std::string reason;
    std::vector<std::string> tests;
};

const std::vector<Difference>& differences() {
    static const std::vector<Difference> all = {
        {"contentEncoding and contentMediaType tell of a text and judge none",
         {"content.json / validation of string-encoded content based on media type / an invalid JSON "
          "document",
          "content.json / validation of binary string-encoding / an invalid base64 string (% is not a valid "
          "character)",
          "content.json / validation of binary-encoded media type documents / a validly-encoded invalid JSON "
          "document",
          "content.json / validation of binary-encoded media type documents / an invalid base64 string that "
          "is "
          "valid JSON"}},
    };
    return all;
}

/// Formats for which there is no validator: every text has them.
const std::set<std::string_view>& undecidedFormats() {
    static const std::set<std::string_view> all = {"idn-email", "idn-hostname", "iri", "iri-reference"};
    return all;
}

/// What the keyword asks. Where a validator has rules of its own, the suite's rows are listed with its tests.
[[nodiscard]] bool validatorAccepts(std::string_view format, std::string_view text) {
    const auto validator = test_support::formatValidators().find(std::string(format));
    return validator == test_support::formatValidators().end() || validator->second(text);
}

struct Counts {
    std::size_t passed = 0;
    std::size_t total = 0;
};

class Suite {
  public:
    Suite() : folder_(test_support::corporaFolder() / "json-schema") {
        const fs::path remotes = folder_ / "remotes";
        for (const fs::path& path : test_support::filesBelow(remotes, ".json")) {
            const auto document = parseJSON(test_support::fileBytes(path));
            registry_.add("http://localhost:1234/" + fs::relative(path, remotes).generic_string(),
                          *document->root());
        }
    }

    /// Calls `judge(group, test, name, valid)` for each test of a file with what the evaluator says; a schema
    /// that cannot be compiled makes a test neither valid nor invalid.
    template <typename Judge>
    void run(const fs::path& file, Draft draft, bool assertFormats, Judge judge) const {
        const auto document = parseJSON(test_support::fileBytes(file));
        CompileOptions options;
        options.defaultDraft = draft;
        options.registry = &registry_;
        options.assertFormats = assertFormats;
        for (const JV* group : document->root()->elements()) {
            const std::string groupName = file.filename().string() + " / " + textOf(*group, "description");
            SCOPED_TRACE(groupName);
            const Schema schema = Schema::compile(*group->get("schema"), options);
            for (const JV* test : group->get("tests")->elements()) {
                const JV& data = *test->get("data");
                const bool valid = schema.isValid(data);
                const std::string name = groupName + " / " + textOf(*test, "description");
                EXPECT_EQ(schema.validate(data).empty(), valid) << name;
                judge(*group, *test, name, valid);
            }
        }
    }

    [[nodiscard]] static std::string textOf(const JV& object, std::string_view name) {
        return std::string(object.get(name)->text());
    }

    [[nodiscard]] fs::path tests(const std::string& draft) const { return folder_ / "tests" / draft; }

  private:
    fs::path folder_;
    SchemaRegistry registry_;
};

const std::vector<std::pair<std::string, Draft>>& drafts() {
    static const std::vector<std::pair<std::string, Draft>> all = {{"draft4", Draft::D4},
                                                                   {"draft6", Draft::D6},
                                                                   {"draft7", Draft::D7},
                                                                   {"draft2019-09", Draft::D2019},
                                                                   {"draft2020-12", Draft::D2020}};
    return all;
}

TEST(SchemaSuite, passesAllRequiredTestsAndAllOptionalOnesButTheNamed) {
    SPECLOOM_NEEDS_CORPORA();
    const Suite suite;
    std::set<std::string> expected;
    for (const Difference& difference : differences())
        expected.insert(difference.tests.begin(), difference.tests.end());
    std::set<std::string> differing;
    for (const auto& [name, draft] : drafts()) {
        SCOPED_TRACE(name);
        Counts required;
        Counts optional;
        for (const fs::path& file : test_support::filesBelow(suite.tests(name), ".json")) {
            const std::string folder = file.parent_path().filename().string();
            if (folder == "format")
                continue;
            Counts& counts = folder == "optional" ? optional : required;
            suite.run(file, draft, false,
                      [&](const JV&, const JV& test, const std::string& title, bool valid) {
                          ++counts.total;
                          if (valid == test.get("valid")->boolean())
                              ++counts.passed;
                          else if (folder == "optional")
                              differing.insert(title);
                          else
                              ADD_FAILURE() << title;
                      });
        }
        EXPECT_GT(required.total, 500U);
        std::printf("%-13s required %4zu of %4zu, optional %3zu of %3zu\n", name.c_str(), required.passed,
                    required.total, optional.passed, optional.total);
    }
    EXPECT_EQ(differing, expected) << "tests that differ, and tests that are named above";
}

TEST(SchemaSuite, decidesFormatsAsTheValidatorsDo) {
    SPECLOOM_NEEDS_CORPORA();
    const Suite suite;
    std::set<std::string_view> undecided;
    for (const auto& [name, draft] : drafts()) {
        SCOPED_TRACE(name);
        Counts counts;
        const fs::path folder = suite.tests(name) / "optional" / "format";
        for (const fs::path& file : test_support::filesBelow(folder, ".json")) {
            suite.run(file, draft, true,
                      [&](const JV& group, const JV& test, const std::string& title, bool valid) {
                          const std::string_view format =
                              group.get("schema")->getRequiredString("format")->text();
                          const bool wanted = test.get("valid")->boolean();
                          ++counts.total;
                          counts.passed += valid == wanted ? 1 : 0;
                          const JV& data = *test.get("data");
                          EXPECT_EQ(valid, !data.isString() || validatorAccepts(format, data.text()))
                              << title;
                          if (valid != wanted && undecidedFormats().contains(format))
                              undecided.insert(*undecidedFormats().find(format));
                      });
        }
        std::printf("%-13s optional/format %3zu of %3zu\n", name.c_str(), counts.passed, counts.total);
    }
    EXPECT_EQ(undecided, undecidedFormats()) << "formats without a validator that no test misses";
}

} // namespace
} // namespace specloom::jv::schema
