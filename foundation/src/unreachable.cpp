#include "foundation/unreachable.h"

#include <cstdio>    // std::fputs
#include <exception> // std::terminate

namespace specloom {

void unreachable(const char* reason, const char* file, int line) {
    // Plain stdio: nothing here may allocate or throw on the way to the end.
    std::fputs("Unreachable code", stderr);
    if (reason != nullptr)
        std::fprintf(stderr, ": (%s)", reason);
    std::fprintf(stderr, " at %s:%d\n", file, line);
    std::fflush(stderr);
    std::terminate();
}

} // namespace specloom
