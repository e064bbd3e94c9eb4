#pragma once

#include <cstddef>     // std::size_t
#include <cstdint>     // std::uint8_t
#include <stdexcept>   // std::runtime_error
#include <string>      // std::string
#include <string_view> // std::string_view

// What the path of a generated file may look like. Names of documents get into paths, and no name may make a
// file outside of the folder that the user named, or stop a run when half of its files are written.
namespace specloom::code_morph::base {

/// The most bytes of one name in a path, and of a whole path: NAME_MAX, and PATH_MAX without the final NUL.
inline constexpr std::size_t longestFileName = 255;
inline constexpr std::size_t longestFilePath = 4095;

/// What keeps a path from being that of a generated file.
enum class PathFault : std::uint8_t {
    NoName,   ///< it does not end in a name
    Nul,      ///< the system would take what stands before the NUL
    LongName, ///< a name in it is longer than longestFileName
    LongPath, ///< it is longer than longestFilePath
    // The others are faults of a path that is to stay below a folder.
    Absolute,
    EmptyName, ///< between two slashes
    OnlyDots,  ///< "..", "." and their longer kin, as one of its names
};

/// A sentence about the path, such as "a name in it is empty".
[[nodiscard]] std::string pathFaultReason(PathFault fault);

/// A path that no generated file may have. The text is "No file can be generated at {}: {}" with the path and
/// the reason. Whoever knows which name of a document led to it catches this and tells the place too.
class PathError : public std::runtime_error {
  public:
    PathError(std::string path, PathFault fault);

    [[nodiscard]] const std::string& path() const noexcept { return path_; }
    [[nodiscard]] PathFault fault() const noexcept { return fault_; }

  private:
    std::string path_;
    PathFault fault_;
};

/// Throws PathError when no system could make the file: NoName, Nul, LongName, LongPath.
void requirePossiblePath(std::string_view path);

/// Throws PathError for a path that is not a plain way down from the folder that it is relative to: Absolute,
/// EmptyName, OnlyDots. Symbolic links in the folder are the user's own and are followed.
void requirePathBelow(std::string_view path);

} // namespace specloom::code_morph::base
