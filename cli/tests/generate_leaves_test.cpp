#include "cli/commands/generate_leaves.h"
#include "openapi_generator/plugin_runner.h"
#include "test_support/temporary_folder.h"

#include <map>    // std::map
#include <memory> // std::make_unique
#include <string> // std::string
#include <vector> // std::vector

#include <gtest/gtest.h>

namespace specloom::cli {
namespace {

using openapi_generator::Plugin;
using openapi_generator::PluginRunner;
using Parameters = std::map<std::string, std::string>;

class ParameterRecorder final : public Plugin {
  public:
    using Plugin::Plugin;
    Parameters parameters;

    void setParam(std::string_view name, std::string_view value) override { parameters.emplace(name, value); }
};

class GenerateLeafTest : public testing::Test {
  protected:
    /// Hands over what a leaf reads of a command line. The first word is the leaf's name.
    ParameterRecorder& handOver(std::string_view path, std::vector<std::string> words) {
        words.insert(words.begin(), std::string(path));
        auto& plugin =
            static_cast<ParameterRecorder&>(runner.addPlugin(std::make_unique<ParameterRecorder>(runner)));
        for (const GenerateLeaf& leaf : generateLeaves())
            if (leaf.path(' ') == path) {
                ArgumentParser parser(leaf.name, "1.0");
                leaf.declareArguments(parser);
                parser.parse(words);
                leaf.handOverArguments(parser, runner, plugin);
                return plugin;
            }
        ADD_FAILURE() << "no leaf is called " << path;
        return plugin;
    }

    const test_support::TemporaryFolder folder;
    PluginRunner runner;
};

TEST_F(GenerateLeafTest, givesParametersByTheirKeys) {
    const std::vector<std::string> package = {
        "a.yaml", "-o", "out", "--package-name", "n", "--package-version", "2"};
    const Parameters packageParameters = {
        {"outputPath", "out"}, {"packageName", "n"}, {"packageVersion", "2"}};
    EXPECT_EQ(
        handOver("data", {"a.yaml", "-o", "out", "-p", "/x", "-m", "text/csv", "-n", "7"}).parameters,
        (Parameters{{"outputPath", "out"}, {"pointer", "/x"}, {"mimeType", "text/csv"}, {"quantity", "7"}}));
    EXPECT_EQ(handOver("data", {"a.yaml", "--output=out", "--pointer", ""}).parameters,
              (Parameters{{"outputPath", "out"}, {"pointer", ""}}));
    for (const char* path : {"doc html", "server express", "server spring"})
        EXPECT_EQ(handOver(path, package).parameters, packageParameters) << path;
    EXPECT_EQ(handOver("server express", {"a.yaml", "-o", "out", "--package-name"}).parameters,
              (Parameters{{"outputPath", "out"}}));
}

TEST_F(GenerateLeafTest, registersLocales) {
    const std::string de = folder.write("de.yaml", "hello: Hallo");
    const std::string odd = folder.write("a=b.yaml", "hello: Moin");
    handOver("doc html", {"a.yaml", "-o", "out", "--i18n", "de=" + de, "--i18n", "nds=" + odd, "=" + de});
    const auto& locales = runner.translations().locales();
    ASSERT_EQ(locales.size(), 3U);
    EXPECT_EQ(locales.at("de").at("hello"), "Hallo");
    EXPECT_EQ(locales.at("nds").at("hello"), "Moin");
    EXPECT_EQ(locales.at("").at("hello"), "Hallo");
}

} // namespace
} // namespace specloom::cli
