// The public suite of URI templates: variables, templates, and what each expands to.

#include "foundation/uri_template.h"
#include "jv/json_reader.h"
#include "jv/jv_document.h"
#include "test_support/corpora.h"

#include <iostream> // std::cout
#include <optional> // std::optional
#include <set>      // std::set

#include <gtest/gtest.h>

namespace specloom {
namespace {

using jv::JV;

std::string textOf(const JV& scalar) {
    return scalar.isNumber() ? scalar.number().toString() : std::string(scalar.text());
}

UriTemplateValue valueOf(const JV& value) {
    if (value.isNull())
        return {};
    if (value.isArray()) {
        UriTemplateList list;
        for (const JV* element : value.elements())
            list.push_back(textOf(*element));
        return list;
    }
    if (value.isObject()) {
        UriTemplatePairs pairs;
        for (const auto& [key, member] : value.members())
            pairs.emplace_back(key, textOf(*member));
        return pairs;
    }
    return textOf(value);
}

/// The results that a case allows; none when there is to be an error. Several where the order of an
/// associative array is free.
std::set<std::string> allowedResults(const JV& expected) {
    std::set<std::string> results;
    if (expected.isString())
        results.insert(std::string(expected.text()));
    if (expected.isArray())
        for (const JV* element : expected.elements())
            results.insert(std::string(element->text()));
    return results;
}

std::optional<std::string> expanded(const std::string& text, const UriTemplateVariables& variables) {
    try {
        return UriTemplate(text).expand(variables);
    } catch (const UriTemplateError&) {
        return std::nullopt;
    }
}

/// Runs the cases of one group; returns how many there are.
int runGroup(const JV& group) {
    UriTemplateVariables variables;
    for (const auto& [name, value] : group.getRequired("variables")->members())
        variables.emplace(name, valueOf(*value));
    int count = 0;
    for (const JV* testCase : group.getRequired("testcases")->elements()) {
        const std::string text(testCase->elements()[0]->text());
        SCOPED_TRACE(text);
        const std::set<std::string> allowed = allowedResults(*testCase->elements()[1]);
        const std::optional<std::string> result = expanded(text, variables);
        EXPECT_EQ(result.has_value(), !allowed.empty());
        if (result.has_value()) {
            EXPECT_TRUE(allowed.contains(*result)) << *result;
            EXPECT_TRUE(isValidUriTemplate(text));
        }
        ++count;
    }
    return count;
}

TEST(UriTemplateSuite, passes) {
    SPECLOOM_NEEDS_CORPORA();
    struct File {
        std::string name;
        int cases;
    };
    const std::vector<File> files = {
        {"spec-examples.json", 64},
        {"spec-examples-by-section.json", 117},
        {"extended-tests.json", 53},
        {"negative-tests.json", 36},
    };
    for (const File& file : files) {
        SCOPED_TRACE(file.name);
        const auto document = jv::parseJSON(
            test_support::fileBytes(test_support::corporaFolder() / "uri-template" / file.name));
        int count = 0;
        for (const auto& [name, group] : document->root()->members()) {
            SCOPED_TRACE(name);
            count += runGroup(*group);
        }
        std::cout << file.name << ": " << count << " cases\n";
        EXPECT_EQ(count, file.cases);
    }
}

TEST(UriTemplateSuite, refusesAlreadyWhenReadingWhatNoValueFits) {
    SPECLOOM_NEEDS_CORPORA();
    const auto document = jv::parseJSON(
        test_support::fileBytes(test_support::corporaFolder() / "uri-template" / "negative-tests.json"));
    std::vector<std::string> valid;
    for (const auto& [name, group] : document->root()->members())
        for (const JV* testCase : group->getRequired("testcases")->elements())
            if (const std::string text(testCase->elements()[0]->text()); isValidUriTemplate(text))
                valid.push_back(text);
    // A prefix of a list or an associative array only shows with the value.
    EXPECT_EQ(valid, (std::vector<std::string>{"{keys:1}", "{+keys:1}"}));
}

} // namespace
} // namespace specloom
