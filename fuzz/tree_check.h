#pragma once

#include "jv/jv_document.h"
#include "openapi/read_result.h"

#include <memory> // std::unique_ptr

namespace specloom::fuzz {

/// Null when the document is refused. A refusal without a text ends the process.
[[nodiscard]] std::unique_ptr<openapi::ReadResult> readIfGood(std::unique_ptr<jv::JVDocument> document);

/// Reads a document as an OpenAPI document. Ends the process when it is refused without a text, when a
/// reference of its tree leads nowhere, or when what is written of it is refused or is written differently
/// once more.
void checkTree(std::unique_ptr<jv::JVDocument> document);

} // namespace specloom::fuzz
