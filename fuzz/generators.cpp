#include "fuzz/generators.h"

#include "openapi_generator_client_fetch/plugin.h"
#include "openapi_generator_server_express/plugin.h"
#include "openapi_generator_server_nestjs/plugin.h"

#include <array> // std::to_array

namespace specloom::fuzz {
namespace {

template <typename Plugin>
std::unique_ptr<openapi_generator::Plugin> make(openapi_generator::PluginRunner& host) {
    return std::make_unique<Plugin>(host);
}

constexpr auto table = std::to_array<Generator>({
    {"client_fetch", make<openapi_generator::client_fetch::Plugin>},
    {"server_express", make<openapi_generator::server_express::Plugin>},
    {"server_nestjs", make<openapi_generator::server_nestjs::Plugin>},
});

} // namespace

std::span<const Generator> generators() noexcept {
    return table;
}

} // namespace specloom::fuzz
