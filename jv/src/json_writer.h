#pragma once

#include "jv/jv_document.h"
#include "jv/sorted_properties.h"

#include <cstdint>     // std::int64_t, std::uint32_t, std::uint64_t
#include <exception>   // std::exception
#include <string>      // std::string
#include <string_view> // std::string_view

namespace specloom::jv {

/// A tree cannot be written as JSON, or a writer was used twice. what() is the name of the code.
class JSONWriterError : public std::exception {
  public:
    enum Code : std::uint8_t {
        KeyMustBeStrings = 1,
        MaxDepthExceeded = 2,   ///< more than 128 nested containers
        InErrorState = 3,       ///< an earlier write() failed
        GenerationComplete = 4, ///< an earlier write() succeeded
        InvalidNumber = 5,      ///< infinity or not a number
        InvalidString = 6,
    };

    explicit JSONWriterError(Code code) noexcept : code_(code) {}
    [[nodiscard]] Code code() const noexcept { return code_; }
    [[nodiscard]] const char* what() const noexcept override;

  private:
    Code code_;
};

/// Writes one document as JSON (RFC 8259), in UTF-8. Texts that are not UTF-8 pass through as they are.
///
/// A big number, that is one of more than 20 digits or beyond the range of the machine's numbers, ends the
/// process through unreachable(), "the number {} at '{}' cannot be written as JSON" with its JSON pointer,
/// which is the deliberate answer of number::Number to the tests that JSON needs.
class JSONWriter {
  public:
    static constexpr std::uint32_t escapeSolidus = 16; ///< flag: write "/" as "\/"

    explicit JSONWriter(std::uint32_t flags = 0) noexcept : flags_(flags) {}

    /// Without one, the order is JVDocument::orderedMembers().
    void setSorter(PropertySorter sorter) { sorter_ = std::move(sorter); }
    /// Spaces for each level; 0 or less, as at first, gives compact output without any white space.
    void setIndent(std::int64_t spaces) noexcept {
        indent_ = spaces > 0 ? static_cast<std::size_t>(spaces) : 0;
    }

    /// Writes the whole document, one without a root as null; once for each writer. Throws JSONWriterError.
    void write(const JVDocument& document);

    // An array that need not be held at once: its items are the roots of documents, one after the other.
    // Once for each writer, in the place of write(). Each throws JSONWriterError.
    void startArray();
    /// Says how many items there will be, so that the text is laid out for as many of the size of those
    /// that were written.
    void expectItems(std::uint64_t count);
    void writeItem(const JVDocument& item);
    void endArray();

    /// The text; indented text ends with a line end.
    [[nodiscard]] const std::string& output() const& noexcept { return output_; }
    [[nodiscard]] std::string output() && noexcept { return std::move(output_); }

  private:
    enum class State : std::uint8_t { Start, Complete, Error };

    void begin();
    void finish();
    void writeRoot(const JVDocument& document);
    void writeValue(const JV& value);
    void writeArray(const JV& array);
    void writeObject(const JV& object);
    void writeMembers(const JV& object);
    void writeMember(std::string_view key, const JV& value, bool isFirst);
    void writeNumber(const JV& value);
    void writeString(std::string_view text);
    void writeEscaped(std::string_view text);
    void writeEscape(char byte);
    void open(char bracket);
    void close(char bracket);
    void lineEnd();
    void startItem(bool isFirst);
    [[nodiscard]] std::string_view gap(bool isFirst);

    /// Room for so many more bytes behind the text.
    [[nodiscard]] char* room(std::size_t bytes) {
        if (output_.size() - used_ < bytes)
            grow(bytes);
        return output_.data() + used_;
    }
    void grow(std::size_t bytes);
    void put(char byte) {
        *room(1) = byte;
        ++used_;
    }
    void put(std::string_view text) { used_ += text.copy(room(text.size()), text.size()); }

    std::uint32_t flags_;
    std::size_t indent_ = 0;
    std::size_t depth_ = 0;
    std::string gaps_; ///< what stands between two items, indented as deep as any was so far
    State state_ = State::Start;
    std::string output_;   ///< until the end larger than the text
    std::size_t used_ = 0; ///< bytes of the text
    std::string numberText_;
    std::uint64_t items_ = 0; ///< of startArray(), so far
    PropertySorter sorter_;
    const JVDocument* document_ = nullptr; ///< during write()
};

} // namespace specloom::jv
