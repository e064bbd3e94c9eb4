#include "code_morph/generated_path.h"

#include "foundation/message.h"
#include "foundation/unreachable.h"

#include <algorithm> // std::min
#include <optional>  // std::optional
#include <utility>   // std::move

#include <fmt/core.h>

namespace specloom::code_morph::base {
namespace {

/// The first of the answers that `judge` gives to the names between slashes, the empty ones included.
template <typename Judge>
std::optional<PathFault> firstFaultOfNames(std::string_view path, Judge judge) {
    for (std::size_t begin = 0; begin <= path.size();) {
        const std::size_t end = std::min(path.find('/', begin), path.size());
        if (const std::optional<PathFault> fault = judge(path.substr(begin, end - begin)))
            return fault;
        begin = end + 1;
    }
    return std::nullopt;
}

std::optional<PathFault> faultOfImpossiblePath(std::string_view path) {
    if (path.empty() || path.back() == '/')
        return PathFault::NoName;
    if (path.find('\0') != std::string_view::npos)
        return PathFault::Nul;
    const auto isLong = [](std::string_view name) {
        return name.size() > longestFileName ? std::optional(PathFault::LongName) : std::nullopt;
    };
    if (const std::optional<PathFault> fault = firstFaultOfNames(path, isLong))
        return fault;
    return path.size() > longestFilePath ? std::optional(PathFault::LongPath) : std::nullopt;
}

std::optional<PathFault> faultOfPathBelow(std::string_view path) {
    if (path.starts_with('/'))
        return PathFault::Absolute;
    return firstFaultOfNames(path, [](std::string_view name) -> std::optional<PathFault> {
        if (name.empty())
            return PathFault::EmptyName;
        if (name.find_first_not_of('.') == std::string_view::npos)
            return PathFault::OnlyDots;
        return std::nullopt;
    });
}

void throwOn(std::optional<PathFault> fault, std::string_view path) {
    if (fault)
        throw PathError(std::string(path), *fault);
}

} // namespace

std::string pathFaultReason(PathFault fault) {
    switch (fault) {
    case PathFault::NoName:
        return "it does not end in a name";
    case PathFault::Nul:
        return "it has a NUL in it";
    case PathFault::LongName:
        return fmt::format("a name in it is longer than {} bytes", longestFileName);
    case PathFault::LongPath:
        return fmt::format("it is longer than {} bytes", longestFilePath);
    case PathFault::Absolute:
        return "it begins at the root";
    case PathFault::EmptyName:
        return "a name in it is empty";
    case PathFault::OnlyDots:
        return "a name in it is only dots";
    }
    SPECLOOM_UNREACHABLE("no fault of a path");
}

PathError::PathError(std::string path, PathFault fault)
    : std::runtime_error(formatMessage("No file can be generated at {}: {}", path, pathFaultReason(fault))),
      path_(std::move(path)), fault_(fault) {}

void requirePossiblePath(std::string_view path) {
    throwOn(faultOfImpossiblePath(path), path);
}

void requirePathBelow(std::string_view path) {
    throwOn(faultOfPathBelow(path), path);
}

} // namespace specloom::code_morph::base
