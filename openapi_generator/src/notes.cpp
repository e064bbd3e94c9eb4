#include "openapi_generator/notes.h"

#include "foundation/notes.h"

#include <iostream> // std::cerr

namespace specloom::openapi_generator {

void noteOperationsWithoutTag(std::size_t count, std::string_view thing, std::ostream& out) {
    if (count != 0)
        Notes(&out).add(formatMessage("{} {} no declared tag and so no {}", count,
                                      count == 1 ? "operation has" : "operations have", thing));
}

void noteOperationsWithoutTag(std::size_t count, std::string_view thing) {
    noteOperationsWithoutTag(count, thing, std::cerr);
}

} // namespace specloom::openapi_generator
