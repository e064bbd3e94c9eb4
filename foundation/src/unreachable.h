#pragma once

namespace specloom {

/// Ends the process at a place that cannot be reached.
/// Flushes standard output, writes to standard error "Unreachable code", then ": (", `reason` and ")" when
/// `reason` is not null, then " at ", `file`, ":", `line` and a line end; then calls std::terminate.
[[noreturn]] void unreachable(const char* reason, const char* file, int line);

} // namespace specloom

/// unreachable() with the place where it stands.
#define SPECLOOM_UNREACHABLE(reason) ::specloom::unreachable(reason, __FILE__, __LINE__)
