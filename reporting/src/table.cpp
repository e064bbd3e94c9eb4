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

void Table::appendLine(std::string& text, std::size_t row) const {
    for (std::size_t column = 0; column < columns_.size(); ++column) {
        const std::size_t index = row * columns_.size() + column;
        const std::size_t begin = index == 0 ? 0 : ends_[index - 1];
        const std::string_view cell = std::string_view(text_).substr(begin, ends_[index] - begin);
        // By hand, because fmt counts bytes or cells of a terminal, and refuses what is no UTF-8.
        const std::size_t widest = widths_[column];
        const std::size_t padding = widest == 0 ? 0 : widest - std::min(widest, columnsOf(cell));
        const bool isRight = columns_[column].align == Align::Right;
        text.append(columns_[column].before).append(isRight ? padding : 0, ' ');
        text.append(cell).append(isRight ? 0 : padding, ' ');
    }
}

std::string Table::line(std::size_t row) const {
    std::string text;
    appendLine(text, row);
    return text;
}

void Table::write(std::ostream& stream) const {
    std::string text;
    for (std::size_t row = 0; row < rowCount(); ++row) {
        text.clear();
        appendLine(text, row);
        stream << (text += '\n');
    }
}

} // namespace specloom::reporting
