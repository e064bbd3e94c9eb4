#include "command_pages/commands_with_paths.h"
#include "command_pages/completions.h"
#include "command_pages/script.h"

#include <string_view> // std::string_view
#include <vector>      // std::vector

namespace specloom::command_pages {
namespace {

/// The part that knows nothing of any command.
constexpr std::string_view fishEngine = R"(
# Prints the path of commands that the complete words lead to, and how many operands stand behind it.
function __PROGRAM_walk
    set -l words (commandline -opc)
    set -l path PROGRAM
    set -l given 0
    set -l skip no
    for word in $words[2..-1]
        if test $skip = yes
            set skip no
        else if string match -q -- '-*' $word
            contains -- "$path $word" $__PROGRAM_valued
            and set skip yes
        else if contains -- "$path $word" $__PROGRAM_commands
            set path "$path $word"
        else
            set given (math $given + 1)
        end
    end
    printf '%s\n' $path $given
end

function __PROGRAM_at -a path
    set -l place (__PROGRAM_walk)
    test "$place[1]" = $path
end

# Whether the next operand is the one of that number, or a later one when there may be more.
function __PROGRAM_operand -a path number more
    set -l place (__PROGRAM_walk)
    test "$place[1]" = $path
    or return 1
    test $place[2] -eq $number
    or test -n "$more" -a $place[2] -ge $number
end

# Folders, and files that hold documents. Behind an equals sign only the part after it is the path.
function __PROGRAM_documents
    set -l word (string replace -r -- '^--[^=]*=' '' (commandline -ct))
    complete -C "__fish_command_without_completions $word" | string match -r -i -- '^[^\t]*(?:/|\.json|\.yaml|\.yml)$'
end

complete -c PROGRAM -f
)";

/// Between single quotes, where fish takes all but the quote and the backslash to the letter.
std::string fishQuoted(const std::string& word) {
    std::string result = "'";
    for (const char c : word) {
        if (c == '\'' || c == '\\')
            result += '\\';
        result += c == '\n' ? ' ' : c;
    }
    return result + '\'';
}

/// The condition "behind that command", and behind its operands up to `operand` when there is one.
std::string condition(const std::string& program, const std::string& call) {
    return "complete -c " + program + " -n " + fishQuoted("__" + program + '_' + call);
}

/// What the value is chosen from; a list is expanded once more by fish.
std::string offer(const std::string& program, const cli::ArgumentDescription& argument) {
    if (argument.kind == cli::ValueKind::Document)
        return " -a " + fishQuoted("(__" + program + "_documents)");
    if (argument.kind == cli::ValueKind::Path)
        return " -F";
    if (argument.values.empty())
        return {};
    return " -a " + fishQuoted(joined(argument.values, " ", fishQuoted));
}

std::string option(const cli::CommandDescription& root, const std::string& path,
                   const cli::ArgumentDescription& option) {
    std::string result = condition(root.name, "at " + fishQuoted(path));
    for (const std::string& name : option.names)
        result += name.starts_with("--") ? " -l " + fishQuoted(name.substr(2))
                                         : " -s " + fishQuoted(name.substr(1));
    if (!option.metavar.empty())
        result += (option.kind == cli::ValueKind::Path ? " -r" : " -x") + offer(root.name, option);
    return result + " -d " + fishQuoted(option.help) + '\n';
}

std::string operand(const cli::CommandDescription& root, const std::string& path, std::size_t number,
                    const cli::ArgumentDescription& positional) {
    const std::string values = offer(root.name, positional);
    if (values.empty())
        return {};
    return condition(root.name, "operand " + fishQuoted(path) + ' ' + std::to_string(number) +
                                    (positional.repeats ? " more" : "")) +
           values + '\n';
}

std::string commandLines(const cli::CommandDescription& root, const CommandWithPath& entry) {
    std::string result;
    for (const cli::CommandDescription& below : entry.command->commands)
        result += condition(root.name, "at " + fishQuoted(entry.path)) + " -a " +
                  fishQuoted(fishQuoted(below.name)) + " -d " + fishQuoted(below.description) + '\n';
    for (const cli::ArgumentDescription& known : entry.command->options)
        result += option(root, entry.path, known);
    std::size_t number = 0;
    for (const cli::ArgumentDescription& positional : entry.command->positionals)
        result += operand(root, entry.path, number++, positional);
    return result;
}

} // namespace

std::string fishCompletion(const cli::CommandDescription& root) {
    std::vector<std::string> commands;
    std::vector<std::string> valued;
    std::string lines;
    for (const CommandWithPath& entry : commandsWithPaths(root)) {
        if (entry.command != &root)
            commands.push_back(entry.path);
        for (const cli::ArgumentDescription& known : entry.command->options)
            for (const std::string& name : known.names)
                if (!known.metavar.empty())
                    valued.push_back(entry.path + ' ' + name);
        lines += commandLines(root, entry);
    }
    return named("# Completion of PROGRAM for fish. Written by the build from what the program's parsers "
                 "know.\n\n"
                 "set -g __PROGRAM_commands ",
                 root.name) +
           joined(commands, " ", fishQuoted) + named("\nset -g __PROGRAM_valued ", root.name) +
           joined(valued, " ", fishQuoted) + '\n' + named(fishEngine, root.name) + lines;
}

} // namespace specloom::command_pages
