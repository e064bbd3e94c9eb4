#pragma once

#include "jv/yaml_reader.h"

#include <cstddef>     // std::size_t
#include <iosfwd>      // std::istream
#include <string_view> // std::string_view

#include <yaml.h>

namespace specloom::jv {

/// Owns a libyaml parser and the event that it delivered last. For the sources of this module alone.
class YamlEventSource {
  public:
    explicit YamlEventSource(std::istream& stream);
    /// The text must outlive this object.
    explicit YamlEventSource(std::string_view text);
    YamlEventSource(const YamlEventSource&) = delete;
    YamlEventSource& operator=(const YamlEventSource&) = delete;
    ~YamlEventSource();

    /// Good until the next call. Throws what readYAML() throws for a text that is no YAML.
    const yaml_event_t& next();

    /// Bytes read so far.
    [[nodiscard]] std::size_t offset() const noexcept { return parser_.offset; }

  private:
    YamlEventSource();

    void requireFewTags() const;
    [[nodiscard]] std::size_t tagDirectives() const noexcept;
    static int readFrom(void* data, unsigned char* buffer, std::size_t size, std::size_t* sizeRead);

    std::istream* stream_ = nullptr; ///< null for a text
    std::string_view text_;          ///< what is left of it
    yaml_parser_t parser_{};
    yaml_event_t event_{};
};

} // namespace specloom::jv
