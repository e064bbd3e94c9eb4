#pragma once

#include "jv/deser.h"
#include "jv/jv.h"
#include "openapi_format/property_order.h"

#include <cstdint>     // std::int32_t
#include <functional>  // std::less
#include <map>         // std::map
#include <optional>    // std::optional
#include <string>      // std::string
#include <string_view> // std::string_view

namespace specloom::configuration {
class Section;
}

namespace specloom::openapi_format {

/// How documents are formatted.
///
///     extends: recommended          # or original; may be missing
///     openapi:
///       format: yaml                # or json; without it the format of the input is kept
///       indent: 2                   # spaces for each level
///       property_order:
///         default: original         # or sorted; for kinds that are not named here
///         paths: sorted             # a kind of object: original, sorted or a list of keys
///         info: [title, version]
class Configuration {
  public:
    /// The largest indent. More serves no reader, and the spaces of a deep document would outgrow its text.
    static constexpr std::int32_t largestIndent = 100;

    /// An indent of 2 and source order everywhere.
    Configuration() = default;

    /// What is used without a configuration file.
    [[nodiscard]] static Configuration recommended();

    /// Reads a section, an object; without one, recommended(). What "extends" names comes first, then the
    /// other keys, each replacing what stood there before; without "extends" that is Configuration(). Keys
    /// that are not in the example above are left alone, except under "property_order": every kind has to be
    /// known there, because a misspelt one would otherwise be lost in silence.
    ///
    /// Throws configuration::ConfigError, with the value at fault:
    ///   "Extends must be a string", "Unknown extends value: {}", "Unknown file format: {}",
    ///   "Indent must be at most 100", "Default order must be a string", "Unsupported order shortcut:
    ///   {}", "Element is not a string", "Property order block must be a string or an array", "Unknown object
    ///   kind: {}", and the texts of JV's typed getters.
    [[nodiscard]] static Configuration load(const jv::JV* section);

    /// The output format; none keeps that of the input.
    [[nodiscard]] std::optional<jv::DocumentFormat> format() const noexcept { return format_; }
    /// Spaces for each level; 0 or less is JSON on one line and YAML in flow style.
    [[nodiscard]] std::int32_t indent() const noexcept { return indent_; }
    /// For objects whose kind has no order of its own; original or sorted.
    [[nodiscard]] const PropertyOrder& defaultOrder() const noexcept { return defaultOrder_; }
    /// By the name of a kind, as in objectKinds().
    [[nodiscard]] const std::map<std::string, PropertyOrder, std::less<>>& orders() const noexcept {
        return orders_;
    }
    /// The order of a kind; unset when the configuration does not name it.
    [[nodiscard]] const PropertyOrder& orderOf(std::string_view kind) const;

  private:
    [[nodiscard]] static Configuration embedded(std::string_view fileName);
    void overlay(const jv::JV& section);
    void readOrders(const configuration::Section& orders);

    std::optional<jv::DocumentFormat> format_;
    std::int32_t indent_ = 2;
    PropertyOrder defaultOrder_ = PropertyOrder::original();
    std::map<std::string, PropertyOrder, std::less<>> orders_;
};

} // namespace specloom::openapi_format
