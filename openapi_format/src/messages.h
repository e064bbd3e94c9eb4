#pragma once

namespace specloom::openapi_format::message {

// What users of the module get to read; "{}" is filled in by fmt.

inline constexpr const char* defaultOrderNotString = "Default order must be a string";
inline constexpr const char* elementNotString = "Element is not a string";
inline constexpr const char* extendsNotString = "Extends must be a string";
inline constexpr const char* indentOutOfRange = "Indent must be between 0 and {}";
inline constexpr const char* orderNeitherStringNorArray = "Property order block must be a string or an array";
inline constexpr const char* orderNotFixed = "Property order is not fixed";
inline constexpr const char* orderNotSet = "Property order is not set";
inline constexpr const char* unknownExtends = "Unknown extends value: {}";
inline constexpr const char* unknownFormat = "Unknown file format: {}";
inline constexpr const char* unknownKind = "Unknown object kind: {}";
inline constexpr const char* unsupportedShortcut = "Unsupported order shortcut: {}";

} // namespace specloom::openapi_format::message
