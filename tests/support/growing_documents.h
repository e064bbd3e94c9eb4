#pragma once

#include <cstddef> // std::size_t
#include <string>  // std::string
#include <vector>  // std::vector

namespace specloom::test_support {

/// A kind of document that once made the program's work grow with its square, or beyond.
struct GrowingDocument {
    const char* name;
    const char* command;   ///< "lint", "diff", "format" or "generate server spring"
    const char* extension; ///< of the documents: "json" or "yaml"
    /// The document with `size` of what it is about, and what it is compared with: null for other commands.
    std::string (*source)(std::size_t size);
    std::string (*destination)(std::size_t size);
    std::size_t smallest; ///< size to measure from: four doublings of it take less than a second
    std::size_t large;    ///< size that took minutes, or gigabytes
    const char* refusal;  ///< the text with which the large one is refused; null when it is not
};

[[nodiscard]] const std::vector<GrowingDocument>& growingDocuments();

} // namespace specloom::test_support
