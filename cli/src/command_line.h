#pragma once

#include <string> // std::string
#include <vector> // std::vector

/// What the parsers know about the command line, for those who tell others: the man page, and the completions
/// of shells.
namespace specloom::cli {

/// What the value of an argument stands for.
enum class ValueKind {
    Text,
    Document, // the path of a JSON or YAML file
    Path,     // the path of any file or folder
};

/// One argument of a command.
struct ArgumentDescription {
    std::vector<std::string>
        names;                     // as they are typed, dashes included; a positional has one, without dashes
    std::string help = {};         // empty when nothing was said
    std::string metavar = {};      // the value's place holder; empty when the argument takes no value
    std::string defaultValue = {}; // empty when there is none
    std::vector<std::string> values = {}; // those that are known, empty when they are not
    ValueKind kind = ValueKind::Text;
    bool repeats = false;  // whether several values may be given
    bool required = false; // whether an option may not be left out

    friend bool operator==(const ArgumentDescription&, const ArgumentDescription&) = default;
};

/// A command with the commands below it.
struct CommandDescription {
    std::string name;
    std::string description;
    std::vector<ArgumentDescription> options; // all that begin with a dash, in the order of their declaration
    std::vector<ArgumentDescription> positionals; // in the order in which they are typed
    std::vector<CommandDescription> commands;     // by name
};

} // namespace specloom::cli
