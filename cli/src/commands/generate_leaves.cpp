#include "cli/commands/generate_leaves.h"

#include "openapi_generator/named_plugins.h"
#include "openapi_generator/plugin_runner.h"
#include "openapi_generator_client_fetch/plugin.h"
#include "openapi_generator_data/plugin.h"
#include "openapi_generator_doc_html/plugin.h"
#include "openapi_generator_server_express/plugin.h"
#include "openapi_generator_server_nestjs/plugin.h"
#include "openapi_generator_server_spring/plugin.h"

#include <array>     // std::to_array
#include <iostream>  // std::cout
#include <optional>  // std::optional
#include <stdexcept> // std::runtime_error

namespace specloom::cli {
namespace {

using openapi_generator::Plugin;
using openapi_generator::PluginRunner;

// Ways of a value.

void giveInputPath(const LeafArgument& argument, const ArgumentParser& parser, PluginRunner& runner,
                   Plugin& /*plugin*/) {
    runner.setInputPath(parser.positional(argument.name));
}

void giveConfigPath(const LeafArgument& argument, const ArgumentParser& parser, PluginRunner& runner,
                    Plugin& /*plugin*/) {
    if (const std::optional<std::string> path = parser.option(argument.name))
        runner.setConfigPath(*path);
}

void giveLocales(const LeafArgument& argument, const ArgumentParser& parser, PluginRunner& runner,
                 Plugin& /*plugin*/) {
    for (const std::string& value : parser.options(argument.name)) {
        const std::size_t cut = value.find('=');
        if (cut == std::string::npos)
            throw std::runtime_error("Invalid --i18n argument");
        runner.addLocaleFile(value.substr(0, cut), value.substr(cut + 1));
    }
}

void giveParameter(const LeafArgument& argument, const ArgumentParser& parser, PluginRunner& /*runner*/,
                   Plugin& plugin) {
    if (argument.count == ValueCount::Required)
        plugin.setParam(argument.key, parser.requiredOption(argument.name));
    else if (const std::optional<std::string> value = parser.option(argument.name))
        plugin.setParam(argument.key, *value);
}

/// Of an option that is declared for what a generator may come to need.
void leaveUnread(const LeafArgument& /*argument*/, const ArgumentParser& /*parser*/, PluginRunner& /*runner*/,
                 Plugin& /*plugin*/) {}

// Arguments.

constexpr LeafArgument fileNamed(std::string_view help) {
    return {{}, "file", help, "INPUT", ValueCount::One, ValueKind::Document, {}, giveInputPath};
}

constexpr LeafArgument outputTo(std::string_view help) {
    return {"-o",         "--output",   help, "OUTPUT", ValueCount::Required, ValueKind::Path,
            "outputPath", giveParameter};
}

constexpr LeafArgument inputArgument = fileNamed("Path to the OpenAPI file.");
constexpr LeafArgument outputArgument = outputTo("Path to the output directory.");

constexpr LeafArgument configOf(decltype(LeafArgument::handOver) handOver) {
    return {"-c",
            "--config",
            "Path to the configuration file.",
            "CONFIG",
            ValueCount::AtMostOne,
            ValueKind::Document,
            {},
            handOver};
}

constexpr LeafArgument configArgument = configOf(giveConfigPath);

constexpr LeafArgument packageNameArgument{{},
                                           "--package-name",
                                           "Name of the generated package.",
                                           "PACKAGE_NAME",
                                           ValueCount::AtMostOne,
                                           ValueKind::Text,
                                           "packageName",
                                           giveParameter};

constexpr LeafArgument packageVersionArgument{{},
                                              "--package-version",
                                              "Version of the generated package.",
                                              "PACKAGE_VERSION",
                                              ValueCount::AtMostOne,
                                              ValueKind::Text,
                                              "packageVersion",
                                              giveParameter};

constexpr auto fileAndOutput = std::to_array<LeafArgument>({inputArgument, outputArgument});

constexpr auto withUnreadConfig =
    std::to_array<LeafArgument>({inputArgument, outputArgument, configOf(leaveUnread)});

constexpr auto withPackage = std::to_array<LeafArgument>(
    {inputArgument, outputArgument, configArgument, packageNameArgument, packageVersionArgument});

constexpr auto ofDocHtml = std::to_array<LeafArgument>({
    inputArgument,
    outputArgument,
    configArgument,
    {{},
     "--i18n",
     "Localization file as 'locale=filename'",
     "LOCALE=FILE",
     ValueCount::AnyRepeatedly,
     ValueKind::Text,
     {},
     giveLocales},
    packageNameArgument,
    packageVersionArgument,
});

constexpr auto ofData = std::to_array<LeafArgument>({
    fileNamed("Path to the OpenAPI spec."),
    outputTo("Path to the output file."),
    configArgument,
    {"-p", "--pointer", "JSON Pointer to the schema.", "POINTER", ValueCount::Required, ValueKind::Text,
     "pointer", giveParameter},
    {"-m", "--mime-type", "MIME type of the output.", "MIME_TYPE", ValueCount::One, ValueKind::Text,
     "mimeType", giveParameter},
    {"-n", "--number", "Number of items to generate.", "NUMBER", ValueCount::One, ValueKind::Text, "quantity",
     giveParameter},
});

// Plugins.

/// Of those that print a line and generate nothing.
std::unique_ptr<Plugin> named(PluginRunner& host, const GenerateLeaf& leaf) {
    return openapi_generator::makeNamedPlugin(leaf.path('_'), host, std::cout);
}

/// Of those that have a class.
template <typename T>
std::unique_ptr<Plugin> made(PluginRunner& host, const GenerateLeaf& /*leaf*/) {
    return std::make_unique<T>(host);
}

constexpr auto groupTable = std::to_array<GenerateGroup>({
    {"doc", "Generate documentation from an OpenAPI file."},
    {"client", "Generate a client from an OpenAPI file."},
    {"mock", "Generate a mock server from an OpenAPI file."},
    {"server", "Generate a server from an OpenAPI file."},
});

constexpr auto leafTable = std::to_array<GenerateLeaf>({
    {"", "data", "Generate data from an OpenAPI file.", ofData, made<openapi_generator::data::Plugin>},
    {"doc", "html", "Generate HTML documentation from an OpenAPI file.", ofDocHtml,
     made<openapi_generator::doc_html::Plugin>},
    {"doc", "markdown", "Generate Markdown documentation from an OpenAPI file.", fileAndOutput, named},
    {"client", "fetch", "Generate a TypeScript client using the fetch API.", withUnreadConfig,
     made<openapi_generator::client_fetch::Plugin>},
    {"client", "cpp", "Generate a C++ client using the fetch API.", fileAndOutput, named},
    {"client", "python", "Generate a Python client.", fileAndOutput, named},
    {"client", "swift", "Generate a Swift client.", fileAndOutput, named},
    {"client", "kotlin", "Generate a Kotlin client.", fileAndOutput, named},
    {"client", "elixir", "Generate an Elixir client.", fileAndOutput, named},
    {"client", "rust", "Generate a Rust client.", fileAndOutput, named},
    {"mock", "miragejs", "Generate a mock server based on Mirage.js.", fileAndOutput, named},
    {"mock", "msw", "Generate a mock server based on MSW.", fileAndOutput, named},
    {"server", "cpp", "Generate a C++ server.", fileAndOutput, named},
    {"server", "nestjs", "Generate a NestJS server.", withUnreadConfig,
     made<openapi_generator::server_nestjs::Plugin>},
    {"server", "express", "Generate an Express server.", withPackage,
     made<openapi_generator::server_express::Plugin>},
    {"server", "fastapi", "Generate a FastAPI server.", fileAndOutput, named},
    {"server", "fastify", "Generate a Fastify server.", withUnreadConfig, named},
    {"server", "csharp", "Generate a C# server.", fileAndOutput, named},
    {"server", "spring", "Generate a Java Spring server.", withPackage,
     made<openapi_generator::server_spring::Plugin>},
    {"server", "elixir", "Generate an Elixir server.", fileAndOutput, named},
    {"server", "rust", "Generate a Rust server.", fileAndOutput, named},
    {"server", "rails", "Generate a Rails server.", fileAndOutput, named},
    {"server", "go", "Generate a Go server.", fileAndOutput, named},
    {"server", "php", "Generate a PHP server.", fileAndOutput, named},
});

} // namespace

std::string GenerateLeaf::path(char separator) const {
    return group.empty() ? std::string(name) : std::string(group) + separator + std::string(name);
}

void GenerateLeaf::declareArguments(ArgumentParser& parser) const {
    for (const LeafArgument& argument : arguments) {
        const ArgumentHelp argumentHelp = {.help = argument.help,
                                           .metavar = argument.metavar,
                                           .kind = argument.kind,
                                           .briefName = argument.briefName,
                                           .count = argument.count};
        if (argument.name.starts_with('-'))
            parser.addOption(argument.name, argumentHelp);
        else
            parser.addPositional(argument.name, argumentHelp);
    }
}

void GenerateLeaf::handOverArguments(const ArgumentParser& parser, PluginRunner& runner,
                                     Plugin& plugin) const {
    for (const LeafArgument& argument : arguments)
        argument.handOver(argument, parser, runner, plugin);
}

std::span<const GenerateGroup> generateGroups() noexcept {
    return groupTable;
}

std::span<const GenerateLeaf> generateLeaves() noexcept {
    return leafTable;
}

} // namespace specloom::cli
