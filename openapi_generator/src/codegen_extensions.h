#pragma once

#include "openapi/node.h"

#include <optional>    // std::optional
#include <string_view> // std::string_view

// What a document says to generators, below "x-specloom". Each throws what openapi::extensions::find() and
// its kin throw.
namespace specloom::openapi_generator {

/// "/codegen/action-name" of an operation.
[[nodiscard]] std::optional<std::string_view> actionNameOf(const openapi::Node& node);
/// "/codegen/controller-name" of an operation or a path item.
[[nodiscard]] std::optional<std::string_view> controllerNameOf(const openapi::Node& node);
/// "/codegen/disabled" of an operation or a path item; false when absent.
[[nodiscard]] bool isDisabled(const openapi::Node& node);
/// "/codegen/name" of a property of a schema.
[[nodiscard]] std::optional<std::string_view> nameOf(const openapi::Node& node);

} // namespace specloom::openapi_generator
