#include "reporting/place.h"

#include "foundation/printable.h"

#include <fmt/format.h>

namespace specloom::reporting {

std::string printedPos(jv::Pos pos) {
    return fmt::format("{}:{}", printedLine(pos), printedColumn(pos));
}

std::string printedFile(std::string_view file) {
    return file.empty() ? "<unknown>" : printableAtLineStart(file);
}

void setPos(jv::JV& object, jv::Pos pos) {
    object.setInteger("line", printedLine(pos));
    object.setInteger("column", printedColumn(pos));
}

} // namespace specloom::reporting
