#include "openapi_generator/named_plugins.h"

#include <algorithm> // std::find_if
#include <array>     // std::to_array
#include <ostream>   // std::ostream, std::endl

namespace specloom::openapi_generator {
namespace {

constexpr auto pluginLines = std::to_array<NamedPlugin>({
    {"client_cpp", "Running ClientCPPPlugin"},
    {"client_elixir", "Running ClientElixirPlugin"},
    {"client_kotlin", "Running ClientKotlinPlugin"},
    {"client_python", "Running ClientPythonPluin"}, // spelt like this
    {"client_rust", "Running ClientRustPlugin"},
    {"client_swift", "Running ClientSwiftPlugin"},
    {"doc_markdown", "Running DocMarkdownPlugin"},
    {"mock_miragejs", "Running MockMirageJS plugin"},
    {"mock_msw", "Running MockMSW plugin"},
    {"server_cpp", "Running ServerCPPPlugin"},
    {"server_csharp", "Running ServerCSharpPlugin"},
    {"server_elixir", "Running ServerElixirPlugin"},
    {"server_fastapi", "Running ServerFastAPIPlugin"},
    {"server_fastify", "Running ServerFastifyPlugin"},
    {"server_go", "Running ServerGoPlugin"},
    {"server_php", "Running ServerPHPPlugin"},
    {"server_rails", "Running ServerRailsPlugin"},
    {"server_rust", "Running ServerRustPlugin"},
});

class LinePlugin final : public Plugin {
  public:
    LinePlugin(PluginRunner& host, std::string_view line, std::ostream& out)
        : Plugin(host), line_(line), out_(&out) {}

    void run(const openapi::OpenAPI& root) override {
        *out_ << line_ << std::endl;
        Plugin::run(root);
    }

  private:
    std::string_view line_;
    std::ostream* out_;
};

} // namespace

std::span<const NamedPlugin> namedPlugins() noexcept {
    return pluginLines;
}

std::unique_ptr<Plugin> makeNamedPlugin(std::string_view name, PluginRunner& host, std::ostream& out) {
    const auto* const found = std::find_if(pluginLines.begin(), pluginLines.end(),
                                           [name](const NamedPlugin& row) { return row.name == name; });
    return found == pluginLines.end() ? nullptr : std::make_unique<LinePlugin>(host, found->line, out);
}

} // namespace specloom::openapi_generator
