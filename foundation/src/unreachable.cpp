#include "foundation/unreachable.h"

#include <cstdio>    // std::fputs
#include <exception> // std::terminate
#include <iostream>  // std::cout

namespace specloom {

void unreachable(const char* reason, const char* file, int line) {
    std::cout.flush(); // a report that is ready gets out
    // Plain stdio: nothing here may allocate or throw on the way to the end.
    std::fputs("Unreachable code", stderr);
    if (reason != nullptr)
        std::fprintf(stderr, ": (%s)", reason);
    std::fprintf(stderr, " at %s:%d\n", file, line);
    std::fflush(stderr);
    std::terminate();
}

} // namespace specloom
