// Documents whose cost once grew with their square, in sizes that took minutes or gigabytes.

#include "test_support/growing_documents.h"
#include "workspace.h"

#include <cctype>   // std::isalnum
#include <iterator> // std::istream_iterator
#include <sstream>  // std::istringstream

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace specloom::tests {
namespace {

constexpr Workspace::Limits growthLimits{.cpuSeconds = 20, .addressBytes = std::size_t{900} << 20};

class Growth : public testing::TestWithParam<test_support::GrowingDocument> {};

TEST_P(Growth, staysWithinItsLimits) {
    const test_support::GrowingDocument& document = GetParam();
    const std::string source = std::string("source.") + document.extension;
    const Workspace workspace;
    workspace.write(source, document.source(document.large));
    workspace.write(
        "c.json",
        R"({"version":"1.0","commands":{"lint":{"extends":["all"]},)"
        R"("generate":{"server_spring":{"action_naming":"url","controller_grouping":["tag","url"]}}}})");
    std::istringstream words(document.command);
    std::vector<std::string> arguments{std::istream_iterator<std::string>(words), {}};
    if (arguments.front() == "lint" || arguments.front() == "generate")
        arguments.insert(arguments.end(), {"--config", "c.json"});
    if (arguments.front() == "generate")
        arguments.insert(arguments.end(), {"--output", "output"});
    if (arguments.front() == "format")
        arguments.insert(arguments.end(), {"--output", std::string("output.") + document.extension});
    arguments.push_back(source);
    if (document.destination != nullptr) {
        workspace.write("destination.json", document.destination(document.large));
        arguments.emplace_back("destination.json");
    }

    const Outcome outcome = workspace.runWithin(growthLimits, arguments);
    if (document.refusal != nullptr) {
        EXPECT_EQ(outcome.status, 1);
        EXPECT_EQ(outcome.out, std::string(document.refusal) + "\n");
    } else {
        const bool isDiff = document.destination != nullptr; // which ends with 1 for changes that break
        EXPECT_LE(outcome.status, isDiff ? 1 : 0) << outcome.err;
        EXPECT_THAT(outcome.out.substr(0, 1000), testing::Not(testing::HasSubstr("bad_alloc")));
    }
}

INSTANTIATE_TEST_SUITE_P(Documents, Growth, testing::ValuesIn(test_support::growingDocuments()),
                         [](const auto& row) {
                             std::string name = std::string(row.param.command) + " " + row.param.name;
                             for (char& c : name)
                                 c = std::isalnum(static_cast<unsigned char>(c)) != 0 ? c : '_';
                             return name;
                         });

} // namespace
} // namespace specloom::tests
