#pragma once

#include "jv/jv_document.h"
#include "jv/sorted_properties.h"

#include <cstdint> // std::int64_t
#include <string>  // std::string

namespace specloom::jv {

/// Writes one document as YAML by way of libyaml's emitter, in UTF-8, without folding lines. A string is
/// quoted when a plain scalar of its text would be something else for readYAML() or for other readers, unless
/// it was such a scalar, and not an empty one, in its source. Two limits of readYAML() remain: a string in
/// the exponent form of a number ("1e5") is left plain and comes back as a number, and an empty key is no
/// key.
class YAMLWriter {
  public:
    /// Without one, the order is JVDocument::orderedMembers().
    void setSorter(PropertySorter sorter) { sorter_ = std::move(sorter); }
    /// Spaces for each level, 2 at first; libyaml takes 2 to 9 and uses 2 for others. 0 or less selects flow
    /// style.
    void setIndent(std::int64_t spaces) noexcept { indent_ = spaces; }

    /// Writes the whole document, one without a root as null. Throws std::runtime_error with "Failed to
    /// initialize X event" or "Failed to emit X event", where X names the event: "string scalar" when a text
    /// is not UTF-8 or names a surrogate or a code point above U+10FFFF, "number scalar" for an infinity and
    /// for not-a-number; "Failed to initialize emitter"; "MaxDepthExceeded" for more nested containers
    /// than readYAML() takes back; and "YAML output is too large for its content: values are nested too
    /// deeply" for an output that has, beyond 16 MiB, more than 32 bytes for each byte of keys, scalars and
    /// punctuation.
    void write(const JVDocument& document);

    [[nodiscard]] const std::string& output() const& noexcept { return output_; }
    [[nodiscard]] std::string output() && noexcept { return std::move(output_); }

  private:
    std::int64_t indent_ = 2;
    PropertySorter sorter_;
    std::string output_;
};

} // namespace specloom::jv
