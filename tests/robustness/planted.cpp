#include <unistd.h> // write

/// Tells that the library was loaded, before main() begins.
[[gnu::constructor]] static void tell() {
    [[maybe_unused]] const auto count = write(STDOUT_FILENO, "planted\n", 8);
}
