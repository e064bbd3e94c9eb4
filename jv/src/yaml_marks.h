#pragma once

#include <cstddef>     // std::size_t
#include <cstdint>     // std::uint8_t
#include <functional>  // std::function
#include <string_view> // std::string_view

namespace specloom::jv {

/// A place in a YAML text, all counted from 0.
struct YamlMark {
    std::size_t index; ///< code points from the beginning of the text, without a byte-order mark
    std::size_t line;
    std::size_t column; ///< code points
};

/// Where one event of a YAML stream stands.
struct YamlEventMarks {
    enum class Kind : std::uint8_t { Scalar, Alias, SequenceStart, MappingStart, SequenceEnd, MappingEnd };

    Kind kind;
    bool isFlow;        ///< of a start: in brackets
    bool isBlockScalar; ///< of a scalar: literal or folded
    YamlMark begin;     ///< with an anchor and a tag
    YamlMark end;       ///< the place behind it; of the end of a block, somewhere behind it
};

/// Visits the events of a YAML stream that make values, until `visit` returns false. Ends, too, where the
/// text is no YAML. Throws std::bad_alloc.
void visitYamlMarks(std::string_view text, const std::function<bool(const YamlEventMarks&)>& visit);

} // namespace specloom::jv
