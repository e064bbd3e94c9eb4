#include "openapi_generator/notes.h"

#include <iostream> // std::cerr

#include <fmt/core.h>

namespace specloom::openapi_generator {

void noteOperationsWithoutTag(std::size_t count, std::string_view thing, std::ostream& out) {
    if (count != 0)
        out << fmt::format("specloom: note: {} {} no declared tag and so no {}\n", count,
                           count == 1 ? "operation has" : "operations have", thing);
}

void noteOperationsWithoutTag(std::size_t count, std::string_view thing) {
    noteOperationsWithoutTag(count, thing, std::cerr);
}

} // namespace specloom::openapi_generator
