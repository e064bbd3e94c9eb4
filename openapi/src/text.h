#pragma once

#include <cstdint>     // std::uint32_t
#include <optional>    // std::optional
#include <string>      // std::string
#include <string_view> // std::string_view

namespace specloom::openapi {

/// A text of the tree, or its absence. A text that was read stays where the source document keeps it, which
/// lives as long as the tree (ReadResult); a text that is set in code is copied.
class Text {
  public:
    /// Absent.
    Text() noexcept = default;
    /// A copy. Throws std::length_error "Text is too long" for 4 GiB and more.
    Text(std::string_view text); // NOLINT(*-explicit-*): setters take any text
    Text(const std::string& text) : Text(std::string_view(text)) {} // NOLINT(*-explicit-*)
    Text(const char* text) : Text(std::string_view(text)) {}        // NOLINT(*-explicit-*)
    Text(Text&& other) noexcept;
    Text& operator=(Text&& other) noexcept;
    ~Text() { release(); }

    /// `text` itself, which must outlive this object and be shorter than 4 GiB.
    [[nodiscard]] static Text borrow(std::string_view text) noexcept;

    [[nodiscard]] bool isSet() const noexcept { return data_ != nullptr; }
    /// Empty when absent.
    [[nodiscard]] std::string_view view() const noexcept { return {data_, length_}; }
    [[nodiscard]] std::optional<std::string_view> get() const noexcept {
        return isSet() ? std::optional(view()) : std::nullopt;
    }

  private:
    void release() noexcept {
        if (owned_)
            delete[] data_;
    }

    const char* data_ = nullptr;
    std::uint32_t length_ = 0;
    bool owned_ = false;
};

} // namespace specloom::openapi
