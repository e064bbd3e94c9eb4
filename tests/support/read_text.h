#pragma once

#include "jv/deser.h"
#include "openapi/reader.h"

#include <memory>      // std::make_shared, std::unique_ptr
#include <string_view> // std::string_view

namespace specloom::test_support {

/// The tree of a document that stands in a test, with the standard formats alone.
[[nodiscard]] inline std::unique_ptr<openapi::ReadResult>
readText(std::string_view text, jv::DocumentFormat format = jv::DocumentFormat::Json) {
    static const auto formats = std::make_shared<const openapi::SchemaFormatRegistry>();
    return openapi::read(jv::parseDocument(text, {.format = format, .refLoader = {}}), formats);
}

} // namespace specloom::test_support
