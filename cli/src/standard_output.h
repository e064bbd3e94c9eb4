#pragma once

namespace specloom::cli {

/// Gets out what was written to standard output. Throws std::runtime_error "Failed to write to standard
/// output." when it, or anything before, did not get out: a report that is not whole must not pass for one.
void flushStandardOutput();

} // namespace specloom::cli
