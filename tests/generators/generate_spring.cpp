// Generates Spring servers:
//
//   generate_spring OUTPUT CONFIGURATION FILE...
//
// makes OUTPUT/NUMBER/ from the FILE of that number, counted from 0, and prints a line for each: a JSON
// object with "document", "folder" and what the run reported, or with the "failure".

#include "foundation/escapes.h"
#include "openapi_generator/plugin_runner.h"
#include "openapi_generator_server_spring/plugin.h"
#include "test_support/read_tree.h"

#include <exception> // std::exception
#include <iostream>  // std::cout
#include <memory>    // std::make_unique
#include <sstream>   // std::ostringstream
#include <string>    // std::string

#include <fmt/format.h>

namespace specloom {
namespace {

/// What a run prints on standard output.
class Printed {
  public:
    Printed() : before_(std::cout.rdbuf(text_.rdbuf())) {}
    Printed(const Printed&) = delete;
    Printed& operator=(const Printed&) = delete;
    ~Printed() { std::cout.rdbuf(before_); }
    [[nodiscard]] std::string text() const { return text_.str(); }

  private:
    std::ostringstream text_;
    std::streambuf* before_;
};

/// Members of the line about a document.
std::string generate(const char* path, const std::string& folder, const char* configuration) {
    test_support::ReadTree tree = test_support::readTree(path);
    if (tree.result == nullptr)
        return fmt::format("\"failure\":{}", toJsonLiteral(tree.refusal));
    const Printed printed;
    openapi_generator::PluginRunner runner;
    runner.setConfigPath(configuration);
    runner.addPlugin(std::make_unique<openapi_generator::server_spring::Plugin>(runner))
        .setParam("outputPath", folder);
    runner.run(std::move(tree.result));
    return fmt::format("\"folder\":{},\"report\":{}", toJsonLiteral(folder), toJsonLiteral(printed.text()));
}

} // namespace
} // namespace specloom

int main(int count, char** arguments) {
    for (int i = 3; i < count; ++i) {
        const std::string line =
            specloom::generate(arguments[i], fmt::format("{}/{}", arguments[1], i - 3), arguments[2]);
        std::cout << fmt::format("{{\"document\":{},{}}}\n", specloom::toJsonLiteral(arguments[i]), line);
    }
}
