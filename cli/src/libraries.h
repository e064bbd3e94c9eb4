#pragma once

#include <string>      // std::string
#include <string_view> // std::string_view
#include <vector>      // std::vector

namespace specloom::cli {

/// A library that the program is built on.
struct LibraryInfo {
    std::string_view name;
    std::string_view url; // the project page
    std::string_view description;
    std::string
        license; // the full published text, behind a line end that parts it from a name printed before it
};

/// The libraries, in the order in which they are printed. Built on first use.
[[nodiscard]] const std::vector<LibraryInfo>& libraries();

/// Their names, in the same order.
[[nodiscard]] std::vector<std::string_view> libraryNames();

inline constexpr std::string_view librariesHeading =
    "Spec Loom uses the following open-source libraries:\n\n";

} // namespace specloom::cli
