#include "cli/notes_flag.h"

#include "cli/argument_parser.h"

#include <iostream> // std::cerr

namespace specloom::cli {

void addNotesFlag(ArgumentParser& parser) {
    parser.addFlag("--no-notes", {.help = "Writes no notes to standard error."});
}

Notes notesOf(const ArgumentParser& parser) {
    return parser.flag("--no-notes") ? Notes() : Notes(&std::cerr);
}

} // namespace specloom::cli
