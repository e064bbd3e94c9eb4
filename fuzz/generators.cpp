#include "fuzz/generators.h"

#include "jv/deser.h"
#include "openapi_generator_client_fetch/plugin.h"
#include "openapi_generator_doc_html/plugin.h"
#include "openapi_generator_server_express/plugin.h"
#include "openapi_generator_server_nestjs/plugin.h"
#include "openapi_generator_server_spring/plugin.h"

#include <array> // std::to_array

namespace specloom::fuzz {
namespace {

template <typename Plugin>
std::unique_ptr<openapi_generator::Plugin> make(openapi_generator::PluginRunner& host) {
    return std::make_unique<Plugin>(host);
}

/// With a configuration that names and groups every operation: without one all but every document would end
/// in a report.
class ConfiguredSpring final : public openapi_generator::Plugin {
  public:
    explicit ConfiguredSpring(openapi_generator::PluginRunner& host) : Plugin(host), spring_(host) {}

    void setParam(std::string_view name, std::string_view value) override { spring_.setParam(name, value); }
    void configureDefaults() override {
        constexpr std::string_view text =
            R"({"commands":{"generate":{"server_spring":{"action_naming":["id","url"],"controller_grouping":["tag","url"]}}}})";
        spring_.configure(
            *jv::parseDocument(text, {.format = jv::DocumentFormat::Json, .refLoader = {}})->root());
    }
    void run(const openapi::OpenAPI& root) override { spring_.run(root); }

  private:
    openapi_generator::server_spring::Plugin spring_;
};

constexpr auto table = std::to_array<Generator>({
    {"client_fetch", make<openapi_generator::client_fetch::Plugin>},
    {"doc_html", make<openapi_generator::doc_html::Plugin>},
    {"server_express", make<openapi_generator::server_express::Plugin>},
    {"server_nestjs", make<openapi_generator::server_nestjs::Plugin>},
    {"server_spring", make<ConfiguredSpring>},
});

} // namespace

std::span<const Generator> generators() noexcept {
    return table;
}

} // namespace specloom::fuzz
