#include "cli/process.h"

#include "cli/exit_status.h"
#include "foundation/descriptor.h"
#include "foundation/output_buffer.h"

#include <algorithm>   // std::min
#include <array>       // std::array
#include <csignal>     // std::signal
#include <cstddef>     // std::size_t
#include <cstdlib>     // std::_Exit
#include <exception>   // std::current_exception, std::set_terminate
#include <iostream>    // std::cout
#include <new>         // std::bad_alloc, std::set_new_handler, placement new
#include <stdexcept>   // std::length_error
#include <string_view> // std::string_view

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/resource.h>
#include <unistd.h>

namespace specloom::cli {
namespace {

/// That of std::cout. Never destroyed: the stream is flushed after all else.
OutputBuffer& standardOutput() {
    alignas(OutputBuffer) static std::array<std::byte, sizeof(OutputBuffer)> place;
    static OutputBuffer& buffer = *new (place.data()) OutputBuffer(STDOUT_FILENO);
    return buffer;
}

void openStandardStreams() {
    for (const int descriptor : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        // The lowest free descriptor is taken, which is this one.
        if (fcntl(descriptor, F_GETFD) < 0 && open("/dev/null", O_RDWR) != descriptor)
            std::_Exit(exit_status::failure);
    }
}

/// Takes address space for what the program may come to need; memory is taken only when it is used.
[[gnu::noinline]] void reserveStack() {
    constexpr std::size_t enough = std::size_t{8} << 20;
    constexpr std::size_t margin = std::size_t{256} << 10;
    rlimit limit{};
    if (getrlimit(RLIMIT_STACK, &limit) != 0)
        return;
    // Up to a quarter is the environment's and the arguments'.
    const std::size_t whole = std::min<std::size_t>(limit.rlim_cur, enough) / 4 * 3;
    if (whole <= margin)
        return;
    const std::size_t size = whole - margin;
    // Asked for elsewhere first: there a refusal can be seen.
    void* trial = mmap(nullptr, size, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
    if (trial == MAP_FAILED)
        endOutOfMemory();
    munmap(trial, size);
    auto* const lowest = static_cast<volatile char*>(__builtin_alloca(size));
    *lowest = 0;
}

std::terminate_handler defaultTerminate = nullptr;

/// Reached where an exception meets a function that must not throw.
void terminateOrEnd() {
    try {
        if (const std::exception_ptr error = std::current_exception())
            std::rethrow_exception(error);
    } catch (const std::bad_alloc&) {
        endOutOfMemory();
    } catch (const std::length_error&) {
        endOutOfMemory();
    } catch (...) { // the default handler tells what it is
    }
    defaultTerminate();
}

} // namespace

void prepareProcess() {
    std::set_new_handler(endOutOfMemory);
    defaultTerminate = std::set_terminate(terminateOrEnd);
    openStandardStreams();
    std::signal(SIGXFSZ, SIG_IGN);
    reserveStack();
    std::ios::sync_with_stdio(false); // gives std::cout a buffer of its own
    std::cout.rdbuf(&standardOutput());
}

void endOutOfMemory() noexcept {
    std::set_new_handler(nullptr);
    std::cout.flush();
    const std::string_view line = "\nOut of memory.\n";
    const std::string_view text = standardOutput().isAtLineStart() ? line.substr(1) : line;
    static_cast<void>(writeWhole(STDOUT_FILENO, text));
    std::_Exit(exit_status::failure);
}

} // namespace specloom::cli
