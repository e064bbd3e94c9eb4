#pragma once

#include "cli/argument_parser.h"
#include "openapi_generator/plugin.h"

#include <memory>      // std::unique_ptr
#include <span>        // std::span
#include <string>      // std::string
#include <string_view> // std::string_view

namespace specloom::openapi_generator {
class PluginRunner;
}

/// The commands below `generate`. A generator is one row of their table.
namespace specloom::cli {

/// A command that has others below it.
struct GenerateGroup {
    std::string_view name;
    std::string_view description;
};

/// An argument of a leaf, and where its value goes.
struct LeafArgument {
    std::string_view briefName; ///< empty when there is none
    std::string_view name;      ///< without dashes for the positional one
    std::string_view help;
    std::string_view metavar;
    ValueCount count;
    ValueKind kind;
    std::string_view key; ///< by which Plugin::setParam() takes it; empty when it does not
    /// Gives the value from the parsed command line to the runner or to the plugin.
    void (*handOver)(const LeafArgument& argument, const ArgumentParser& parser,
                     openapi_generator::PluginRunner& runner, openapi_generator::Plugin& plugin);
};

/// A command that generates.
struct GenerateLeaf {
    std::string_view group; ///< empty for a command directly below `generate`
    std::string_view name;
    std::string_view description;
    std::span<const LeafArgument> arguments; ///< in the order of their declaration
    std::unique_ptr<openapi_generator::Plugin> (*makePlugin)(openapi_generator::PluginRunner& host,
                                                             const GenerateLeaf& leaf);

    /// The group and the name, or the name alone, with `separator` between them: "client fetch".
    [[nodiscard]] std::string path(char separator) const;
    /// Adds the arguments to the parser of the command.
    void declareArguments(ArgumentParser& parser) const;
    /// Gives their values to the runner and the plugin. Throws std::logic_error "No value provided for
    /// '--output'.", or "'--pointer'.", std::runtime_error "Invalid --i18n argument" for a value without "=",
    /// and what PluginRunner::addLocaleFile() throws.
    void handOverArguments(const ArgumentParser& parser, openapi_generator::PluginRunner& runner,
                           openapi_generator::Plugin& plugin) const;
};

[[nodiscard]] std::span<const GenerateGroup> generateGroups() noexcept;
/// In the order in which the command line is asked for them.
[[nodiscard]] std::span<const GenerateLeaf> generateLeaves() noexcept;

} // namespace specloom::cli
