#include "cli/standard_output.h"

#include <iostream>  // std::cout
#include <stdexcept> // std::runtime_error

namespace specloom::cli {

void flushStandardOutput() {
    if (!std::cout.flush())
        throw std::runtime_error("Failed to write to standard output.");
}

} // namespace specloom::cli
