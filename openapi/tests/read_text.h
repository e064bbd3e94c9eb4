#pragma once

#include <memory>      // std::unique_ptr
#include <string_view> // std::string_view

#include "jv/deser.h"
#include "openapi/reader.h"

namespace specloom::openapi {

/// The tree of a document that stands in a test, with the standard formats alone.
inline std::unique_ptr<ReadResult> readText(std::string_view text,
                                            jv::DocumentFormat format = jv::DocumentFormat::Json) {
    static const auto formats = std::make_shared<const SchemaFormatRegistry>();
    return read(jv::parseDocument(text, {.format = format, .refLoader = {}}), formats);
}

} // namespace specloom::openapi
