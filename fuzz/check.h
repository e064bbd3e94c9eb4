#pragma once

#include "jv/deser.h"

#include <cstddef>     // std::size_t
#include <cstdint>     // std::uint8_t, std::uint64_t
#include <memory>      // std::unique_ptr
#include <string>      // std::string
#include <string_view> // std::string_view

namespace specloom::fuzz {

[[nodiscard]] inline std::string_view textOf(const std::uint8_t* data, std::size_t size) noexcept {
    return {reinterpret_cast<const char*>(data), size};
}

/// A number that depends on the whole input, to draw options from: so seeds stay plain files of their kind.
[[nodiscard]] std::uint64_t drawFrom(std::string_view input) noexcept;

/// Ends the process with `what` when something does not hold.
void require(bool holds, std::string_view what);

/// Null when the text is refused. Another exception than the reader's own, or another text, ends the process.
[[nodiscard]] std::unique_ptr<jv::JVDocument> readIfGood(std::string_view text, jv::DocumentFormat format);

/// Whether the writer of the format can hold the document so that it reads back as the same.
[[nodiscard]] bool canBeKept(const jv::JVDocument& document, jv::DocumentFormat format);

/// Writes, reads, and ends the process when the document has changed.
void requireRoundTrip(const jv::JVDocument& document, jv::DocumentFormat format, std::int32_t indent);

} // namespace specloom::fuzz
