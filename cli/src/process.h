#pragma once

namespace specloom::cli {

/// Makes the process fit for what may be wrong around it. To be called once, before anything opens a file:
///
/// - Standard streams that are closed are opened on /dev/null, so that no other file takes their descriptors.
/// - A file beyond the limit of its size (SIGXFSZ) is an error of the write and not the end of the process.
/// - Where memory ends, endOutOfMemory() is called at once: much of what unwinding would pass through, of
/// ours
///   and of libraries, cannot fail or needs memory itself. The stack gets its address space now, because
///   later the lack of it would be a segmentation fault.
/// - Standard output is written without the C library.
void prepareProcess();

/// Gets out what was written to standard output, with the line "Out of memory." behind it, and ends the
/// process with exit_status::failure. Allocates nothing.
[[noreturn]] void endOutOfMemory() noexcept;

} // namespace specloom::cli
