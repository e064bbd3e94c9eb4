#include "reporting/table.h"

#include "foundation/utf8.h"

#include <algorithm> // std::max, std::min
#include <ostream>   // std::ostream

namespace specloom::reporting {

void Table::addRow(std::initializer_list<std::string_view> cells) {
    std::size_t column = 0;
    for (const std::string_view cell : cells) {
        widths_.at(column) = std::max(widths_[column], std::min(columnsOf(cell), columns_[column].widest));
        ends_.push_back(text_.append(cell).size());
        ++column;
    }
}

std::string Table::line(std::size_t row) const {
    std::string text;
    for (std::size_t column = 0; column < columns_.size(); ++column) {
        const std::size_t index = row * columns_.size() + column;
        const std::size_t begin = index == 0 ? 0 : ends_[index - 1];
        const std::string_view cell = std::string_view(text_).substr(begin, ends_[index] - begin);
        // By hand, because fmt counts bytes or cells of a terminal, and refuses what is no UTF-8.
        const std::string padding(widths_[column] - std::min(widths_[column], columnsOf(cell)), ' ');
        text.append(columns_[column].before);
        text.append(columns_[column].align == Align::Right ? padding : cell);
        text.append(columns_[column].align == Align::Right ? cell : padding);
    }
    return text;
}

void Table::write(std::ostream& stream) const {
    for (std::size_t row = 0; row < rowCount(); ++row)
        stream << line(row) << '\n';
}

} // namespace specloom::reporting
