#pragma once

#include "openapi/read_result.h"
#include "openapi/schema_format.h"

#include <memory>      // std::shared_ptr, std::unique_ptr
#include <string_view> // std::string_view

namespace specloom {
class FileSystem;
}

namespace specloom::openapi {

/// Objects that may be nested in each other. What works on trees may recurse over their depth.
inline constexpr int maxNodeDepth = 1000;

/// Builds the tree of an OpenAPI document (3.0 or 3.1). The document is taken over; its positions and
/// pointers stay. Schemas refer to the formats, which the result keeps alive.
///
/// Throws std::invalid_argument "Schema format registry must be provided" when `formats` is null, before
/// anything is done. Structural faults are collected and thrown at the end as one std::runtime_error with a
/// line "{} at ({}, {})\n" for each: message, line, column. Wrong kinds of members that are read through a
/// typed getter, and missing mandatory ones, throw jv::JVError at once; entries that the model refuses throw
/// its texts.
///
/// A reference names a component of its own kind. To a schema it may come before the schema; all others are
/// looked up where they stand, sections being read in the order examples, schemas, parameters, headers,
/// links, responses, requestBodies, securitySchemes, callbacks, pathItems and entries by name. A reference
/// that leads nowhere gives the line "Unresolved reference: {}".
[[nodiscard]] std::unique_ptr<ReadResult> read(std::unique_ptr<jv::JVDocument> document,
                                               std::shared_ptr<const SchemaFormatRegistry> formats);

/// Loads a file by its extension, reads it and notes its path. Throws also what jv::loadDocument() throws.
[[nodiscard]] std::unique_ptr<ReadResult> readFile(const FileSystem& files, std::string_view path,
                                                   std::shared_ptr<const SchemaFormatRegistry> formats);
/// From the disk.
[[nodiscard]] std::unique_ptr<ReadResult> readFile(std::string_view path,
                                                   std::shared_ptr<const SchemaFormatRegistry> formats);

} // namespace specloom::openapi
