#pragma once

#include "source_edit/edits.h"

#include <memory> // std::unique_ptr

namespace specloom::source_edit {

/// A document whose root is `value`, a value of the source of `edits`, as it is to be.
[[nodiscard]] std::unique_ptr<jv::JVDocument> editedValue(const Edits& edits, const jv::JV& value);

/// Whether `result` is, value by value and key by key, in their order, what the source is to be.
[[nodiscard]] bool isAsIntended(const Edits& edits, const jv::JVDocument& result);

} // namespace specloom::source_edit
