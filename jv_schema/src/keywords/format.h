#pragma once

#include "jv_schema/node.h"

#include <memory> // std::unique_ptr

namespace specloom::jv::schema {

/// `format`: says nothing of an instance unless the caller or the vocabulary of the schema wants it asserted.
/// The validators decide; formats that they do not know fit everything.
[[nodiscard]] std::unique_ptr<Keyword> makeFormat(const Site& site);

} // namespace specloom::jv::schema
