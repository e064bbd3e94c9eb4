#include "openapi_generator/config_error.h"
#include "openapi_generator/plugin_runner.h"
#include "test_support/temporary_folder.h"

#include <memory>    // std::make_unique
#include <new>       // std::bad_alloc
#include <stdexcept> // std::runtime_error
#include <string>    // std::string

#include <gtest/gtest.h>

namespace specloom::openapi_generator {
namespace {

using test_support::TemporaryFolder;

class TracingPart final : public Part {
  public:
    TracingPart(std::string name, std::string& trace) : name_(std::move(name)), trace_(&trace) {}
    void collectData() override { *trace_ += "collect " + name_ + "\n"; }
    void generateCode() override { *trace_ += "generate " + name_ + "\n"; }

  private:
    std::string name_;
    std::string* trace_;
};

/// Writes down what happens to it.
class TracingPlugin final : public Plugin {
  public:
    using Plugin::Plugin;
    std::string trace;

    void configure(const jv::JV& root) override {
        trace += "configure\n";
        if (root.has("fault"))
            throw ConfigError("Wrong", root.get("fault"));
        if (root.has("memory"))
            throw std::bad_alloc();
        if (root.has("other"))
            throw std::runtime_error("Other\nfault");
    }
    void configureDefaults() override { trace += "defaults\n"; }
    void configureSelf() override {
        trace += "self " + outputPath() + packageName() + packageVersion() + "\n";
    }
    void configureParts() override {
        trace += "parts\n";
        addPart<TracingPart>("b", trace);
        addPart<TracingPart>("a", trace);
        const auto& info = document()->info();
        const jv::Pos pos = host().nodePos(info);
        trace += host().childPointer(info, "a/b") + " " + std::to_string(pos.line) + "\n";
        trace += host().nodeAtPointer("/info") == &info ? "found" : "lost";
        trace += host().nodeAtPointer("/nowhere") == nullptr ? "\n" : "?\n";
    }
};

class PluginRunnerTest : public testing::Test {
  protected:
    PluginRunnerTest() {
        runner.setInputPath(folder.write(
            "api.json",
            "{\"openapi\": \"3.1.0\", \"paths\": {},\n\"info\": {\"title\": \"\", \"version\": \"1\"}}"));
    }

    /// The text of the failure.
    std::string run() {
        try {
            runner.run();
        } catch (const std::runtime_error& error) {
            return error.what();
        }
        return "";
    }
    std::string runWith(std::string_view config) {
        runner.setConfigPath(folder.write("config.json", config));
        return run();
    }

    const TemporaryFolder folder;
    PluginRunner runner;
    TracingPlugin& plugin =
        static_cast<TracingPlugin&>(runner.addPlugin(std::make_unique<TracingPlugin>(runner)));
};

TEST_F(PluginRunnerTest, stagesFollowOneAnother) {
    plugin.setParam("outputPath", "out ");
    plugin.setParam("packageName", "name ");
    plugin.setParam("packageVersion", "1");
    plugin.setParam("PackageVersion", "2");
    EXPECT_EQ(run(), "");
    EXPECT_EQ(plugin.trace, "defaults\nself out name 1\nparts\n/info/a~1b 2\nfound\n"
                            "collect b\ncollect a\ngenerate b\ngenerate a\n");
}

TEST_F(PluginRunnerTest, faultsOfAConfigurationAreTold) {
    EXPECT_EQ(runWith("{\n\"fault\": 1}"), "Error reading configuration file (line 2): Wrong");
    EXPECT_EQ(runWith("{\"other\": 1}"), "Error reading configuration file: Other\\nfault");
    EXPECT_EQ(runWith("{\"openapi\": {\"custom_formats\": 1}}"),
              "Error reading configuration file: Custom format JV must be an array");
    EXPECT_THROW(runWith("{\"memory\": 1}"), std::bad_alloc);
    EXPECT_EQ(plugin.trace, "configure\nconfigure\nconfigure\n"); // not for the formats, and never run
    runner.setConfigPath(folder.at("none.json"));
    EXPECT_EQ(run(), "Error reading configuration file: Cannot open file: " + folder.at("none.json"));
    EXPECT_EQ(runWith("{}"), "");
}

TEST_F(PluginRunnerTest, customFormatsReachTheDocument) {
    runner.setInputPath(folder.write("metres.yaml",
                                     "openapi: 3.1.0\ninfo: {title: t, version: v}\npaths: {}\n"
                                     "components: {schemas: {A: {type: number, format: metres}}}\n"));
    EXPECT_NE(run(), "");
    EXPECT_EQ(runWith(R"({"openapi": {"custom_formats": [{"name": "metres", "type": "number"}]}})"), "");
}

} // namespace
} // namespace specloom::openapi_generator
