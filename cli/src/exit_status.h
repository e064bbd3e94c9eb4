#pragma once

#include <cstdint> // std::int32_t

/// The statuses with which the program ends. They are an interface: scripts decide by them.
namespace specloom::cli::exit_status {

/// A command did its work; help or a version was printed.
inline constexpr std::int32_t success = 0;

/// The line on standard output says what failed.
inline constexpr std::int32_t failure = 1;

/// The command line named no command. A POSIX shell sees 255.
inline constexpr std::int32_t noCommand = -1;

} // namespace specloom::cli::exit_status
