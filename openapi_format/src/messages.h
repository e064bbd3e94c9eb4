#pragma once

namespace specloom::openapi_format::message {

// What users of the module get to read; "{}" is filled in by fmt.

inline constexpr char defaultOrderNotString[] = "Default order must be a string";
inline constexpr char elementNotString[] = "Element is not a string";
inline constexpr char extendsNotString[] = "Extends must be a string";
inline constexpr char indentTooLarge[] = "Indent must be at most {}";
inline constexpr char orderNeitherStringNorArray[] = "Property order block must be a string or an array";
inline constexpr char orderNotFixed[] = "Property order is not fixed";
inline constexpr char orderNotSet[] = "Property order is not set";
inline constexpr char unknownExtends[] = "Unknown extends value: {}";
inline constexpr char unknownFormat[] = "Unknown file format: {}";
inline constexpr char unknownKind[] = "Unknown object kind: {}";
inline constexpr char unsupportedShortcut[] = "Unsupported order shortcut: {}";

} // namespace specloom::openapi_format::message
