#pragma once

#include "jv/deser.h"
#include "source_edit/edits.h"

#include <functional>  // std::function
#include <string_view> // std::string_view

namespace specloom::source_edit {

/// Told where a value stands that the edits leave, or that they bring in.
using PositionSink = std::function<void(const jv::JV& value, jv::Pos pos)>;

/// Whether `result` is, value by value and key by key, in their order, what the source is to be. `moved` is
/// told the positions in `result` as long as that holds; it may be empty.
[[nodiscard]] bool isAsIntended(const Edits& edits, const jv::JVDocument& result, const PositionSink& moved);

/// The same of the document that a text is. False for a text that is none.
[[nodiscard]] bool readsAsIntended(std::string_view text, jv::DocumentFormat format, const Edits& edits,
                                   const PositionSink& moved);

} // namespace specloom::source_edit
