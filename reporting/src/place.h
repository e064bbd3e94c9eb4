#pragma once

#include "jv/jv.h"

#include <cstdint>     // std::int32_t
#include <string>      // std::string
#include <string_view> // std::string_view

// How reports print where something stands. Who wants to know where that is asks jv::JVDocument::locationOf()
// or openapi::ReadResult::locationOf().
namespace specloom::reporting {

/// 0 where the position is unknown; else as the format's reader counts (jv::Pos).
[[nodiscard]] constexpr std::int32_t printedLine(jv::Pos pos) noexcept {
    return pos.isKnown() ? pos.line : 0;
}
[[nodiscard]] constexpr std::int32_t printedColumn(jv::Pos pos) noexcept {
    return pos.isKnown() ? pos.column : 0;
}

/// "LINE:COLUMN" of these two.
[[nodiscard]] std::string printedPos(jv::Pos pos);

/// The name of a file where it begins a line (printableAtLineStart()), "<unknown>" for an empty one.
[[nodiscard]] std::string printedFile(std::string_view file);

/// Sets the members "line" and "column" of an object.
void setPos(jv::JV& object, jv::Pos pos);

} // namespace specloom::reporting
