#pragma once

#include "jv/jv.h"
#include "openapi/node_type.h"
#include "openapi_diff/node_diff_config.h"

#include <array>       // std::array
#include <functional>  // std::less
#include <map>         // std::map
#include <string>      // std::string
#include <string_view> // std::string_view

namespace specloom::configuration {
class Section;
}

namespace specloom::openapi_diff {

/// How each change is classified.
///
///     extends: [recommended]        # the embedded table; may be missing
///     rules:
///       defaults:
///         extensions: none          # of all nodes that have no entry of their own
///       info:
///         title: non_functional     # all actions of the field
///         x-status: {add: none, remove: breaking, modify: breaking}   # one extension of one kind of node
///       operation:
///         deprecated: {modify: {if: true, then: breaking, else: non_breaking}}
///       paths: {add_item: non_breaking, remove_item: breaking, modify_item: nested}
class Configuration {
  public:
    /// None for everything.
    Configuration() = default;

    /// The embedded table: what is used without a configuration file.
    [[nodiscard]] static Configuration recommended();

    /// Reads a section, an object; without one, recommended(). What "extends" names comes first, then the
    /// fields of "rules", each replacing what stood there before; actions that a field does not name keep
    /// their levels. Without "extends" that is None for everything.
    ///
    /// Throws configuration::ConfigError, with the value at fault: "Expected string", "Unknown ruleset: {}",
    /// "Unexpected properties", "Expected string or object", "Invalid option", "Expected 'modified'
    /// property", and the texts of JV's typed getters. A section or field that the table does not have, and a
    /// key beside "extends" and "rules", is "Unexpected properties", because a misspelt one would otherwise
    /// be lost in silence.
    [[nodiscard]] static Configuration load(const jv::JV* section);

    [[nodiscard]] const NodeDiffConfig& entry(ConfigKey key) const;
    /// Of an extension of a node; that of `defaults` when it has none of its own. Throws std::runtime_error
    /// "Unsupported node type" for a kind of node without a section.
    [[nodiscard]] const NodeDiffConfig& extension(openapi::NodeType type, std::string_view name) const;

  private:
    void overlay(const configuration::Section& rules);
    void overlayDefaults(const configuration::Section& defaults);
    void overlayField(ConfigKey key, const jv::JV& value);
    void overlaySection(std::string_view section, const configuration::Section& fields);
    void overlayExtension(std::string_view section, std::string_view name, const jv::JV& value);

    std::array<NodeDiffConfig, configKeyCount> entries_{};
    NodeDiffConfig defaultExtension_;
    /// By section and name of the extension.
    std::map<std::string, std::map<std::string, NodeDiffConfig, std::less<>>, std::less<>> extensions_;
};

} // namespace specloom::openapi_diff
