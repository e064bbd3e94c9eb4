#pragma once

#include "foundation/notes.h"

namespace specloom::cli {

class ArgumentParser;

/// Adds --no-notes to a command that may write notes.
void addNotesFlag(ArgumentParser& parser);
/// Notes onto standard error, or silent ones where the parsed command line asks for that.
[[nodiscard]] Notes notesOf(const ArgumentParser& parser);

} // namespace specloom::cli
