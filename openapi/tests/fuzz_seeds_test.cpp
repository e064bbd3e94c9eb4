// The documents that fuzzing starts from: the search does not find by itself what none of them has.

#include "jv/deser.h"
#include "openapi/reader.h"
#include "test_support/corpora.h"
#include "test_support/documents.h"

#include <algorithm>  // std::set_difference
#include <filesystem> // std::filesystem::path
#include <iterator>   // std::back_inserter
#include <map>        // std::map
#include <memory>     // std::make_shared
#include <set>        // std::set
#include <string>     // std::string
#include <vector>     // std::vector

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace specloom::openapi {
namespace {

using Names = std::set<std::string, std::less<>>;

const std::filesystem::path sourceFolder = SPECLOOM_SOURCE_DIR;

/// The keys of all objects, or of all that stand under `below`.
void collectKeys(const jv::JV& document, std::string_view below, Names& names) {
    test_support::forEachValue(document, [&](const jv::JV& value) {
        if (!value.isObject())
            return;
        for (const jv::Member member : value.members()) {
            if (below.empty())
                names.emplace(member.key);
            else if (member.key == below && member.value->isObject())
                for (const jv::Member named : member.value->members())
                    names.emplace(named.key);
        }
    });
}

/// Every member that the published schemas of a version know.
Names knownMembers(const std::vector<std::string>& schemas) {
    Names names;
    for (const std::string& schema : schemas)
        collectKeys(*jv::loadDocument((sourceFolder / schema).string()).document->root(), "properties",
                    names);
    return names;
}

TEST(FuzzSeeds, areReadAndHaveEveryMember) {
    const auto formats = std::make_shared<const SchemaFormatRegistry>();
    std::map<std::string, Names> used;
    for (const auto& path : test_support::filesBelow(sourceFolder / "fuzz/seeds/openapi", ".json")) {
        SCOPED_TRACE(path);
        EXPECT_NO_THROW(static_cast<void>(readFile(path.string(), formats)));
        const auto document = jv::loadDocument(path.string()).document;
        const std::string_view version = document->root()->getRequiredString("openapi")->text();
        collectKeys(*document->root(), "", used[std::string(version.substr(0, 3))]);
    }
    const std::map<std::string, Names> known{
        {"3.0", knownMembers({"openapi/schemas/3.0-schema.yaml"})},
        {"3.1",
         knownMembers(
             {"openapi/schemas/3.1-schema.yaml", "openapi/schemas/3.1-meta.yaml",
              "jv_schema/schemas/2020-12-schema.json", "jv_schema/schemas/2020-12-meta-applicator.json",
              "jv_schema/schemas/2020-12-meta-content.json", "jv_schema/schemas/2020-12-meta-core.json",
              "jv_schema/schemas/2020-12-meta-format-annotation.json",
              "jv_schema/schemas/2020-12-meta-meta-data.json",
              "jv_schema/schemas/2020-12-meta-unevaluated.json",
              "jv_schema/schemas/2020-12-meta-validation.json"})}};
    for (const auto& [version, names] : known) {
        SCOPED_TRACE(version);
        EXPECT_GT(names.size(), 50u);
        std::vector<std::string> missing;
        std::set_difference(names.begin(), names.end(), used[version].begin(), used[version].end(),
                            std::back_inserter(missing));
        EXPECT_THAT(missing, testing::IsEmpty());
    }
}

} // namespace
} // namespace specloom::openapi
