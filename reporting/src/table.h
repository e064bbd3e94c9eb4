#pragma once

#include <cstddef>          // std::size_t
#include <cstdint>          // std::uint8_t
#include <initializer_list> // std::initializer_list
#include <iosfwd>           // std::ostream
#include <limits>           // std::numeric_limits
#include <string>           // std::string
#include <string_view>      // std::string_view
#include <utility>          // std::move
#include <vector>           // std::vector

namespace specloom::reporting {

enum class Align : std::uint8_t { Left, Right };

struct Column {
    std::string_view before; ///< what parts it from the column before, or from the beginning of the line
    Align align = Align::Left;
    /// Wider cells are not cut, but no other is padded to more than this: with 0, none at all.
    std::size_t widest = std::numeric_limits<std::size_t>::max();
};

/// Lines whose columns are as wide as their widest cell, counted in code points.
class Table {
  public:
    explicit Table(std::vector<Column> columns) : columns_(std::move(columns)), widths_(columns_.size()) {}

    /// One cell for each column, one line of UTF-8 each.
    void addRow(std::initializer_list<std::string_view> cells);
    [[nodiscard]] std::size_t rowCount() const noexcept { return ends_.size() / columns_.size(); }

    /// A row, counted from 0, without a line end: what a report may put into a colour.
    [[nodiscard]] std::string line(std::size_t row) const;
    /// All rows with line ends.
    void write(std::ostream& stream) const;

  private:
    void appendLine(std::string& text, std::size_t row) const;

    std::vector<Column> columns_;
    std::vector<std::size_t> widths_; ///< by column
    std::string text_;                ///< of all cells: there may be millions
    std::vector<std::size_t> ends_;   ///< of the cells in `text_`, row by row
};

} // namespace specloom::reporting
