#include "command_pages/commands_with_paths.h"
#include "command_pages/completions.h"
#include "command_pages/script.h"

#include <algorithm>   // std::min
#include <string_view> // std::string_view
#include <vector>      // std::vector

namespace specloom::command_pages {
namespace {

/// The text where _arguments takes a colon or a bracket for the end of a part.
std::string inSpecification(std::string_view text) {
    std::string result;
    for (const char c : text) {
        if (c == ':' || c == '[' || c == ']' || c == '\\')
            result += '\\';
        result += c == '\n' ? ' ' : c;
    }
    return result;
}

/// The function that completes the arguments of a command: "_specloom_lint".
std::string commandFunction(const std::string& path) {
    std::string name = '_' + path;
    for (char& c : name)
        if (c == ' ' || c == '-')
            c = '_';
    return name;
}

/// The function that offers the values of one of its arguments: "_specloom_lint__formatter".
std::string valuesFunction(const std::string& path, const cli::ArgumentDescription& argument) {
    const std::string& name = argument.names.back();
    return commandFunction(path + "  " + name.substr(std::min(name.find_first_not_of('-'), name.size())));
}

/// ":CONFIG:_specloom_documents"
std::string message(const std::string& path, const cli::ArgumentDescription& argument) {
    std::string action = " ";
    if (argument.kind == cli::ValueKind::Document)
        action = commandFunction(path.substr(0, path.find(' ')) + " documents");
    else if (argument.kind == cli::ValueKind::Path)
        action = "_files";
    else if (!argument.values.empty())
        action = valuesFunction(path, argument);
    return ':' + inSpecification(argument.metavar) + ':' + action;
}

void addOption(std::vector<std::string>& specifications, const std::string& path,
               const cli::ArgumentDescription& option, bool endsTheRun) {
    std::string others = endsTheRun ? "- *" : "";
    for (const std::string& name : option.names)
        others += (others.empty() ? "" : " ") + name;
    for (const std::string& name : option.names) {
        std::string specification = option.repeats ? "*" : '(' + others + ')';
        specification += name;
        if (!option.metavar.empty() && name.starts_with("--"))
            specification += '='; // in the next word or in the same
        specification += '[' + inSpecification(option.help) + ']';
        if (!option.metavar.empty())
            specification += message(path, option);
        specifications.push_back(specification);
    }
}

constexpr const char* argumentsState = "  local curcontext=$curcontext context state state_descr line\n"
                                       "  local -a commands\n"
                                       "  local -A opt_args\n"
                                       "  local -i result=1\n";

/// The call of _arguments for one command.
std::string argumentsCall(const cli::CommandDescription& root, const CommandWithPath& entry) {
    std::vector<std::string> specifications;
    for (const cli::ArgumentDescription& option : root.options)
        addOption(specifications, entry.path, option, true);
    for (const cli::ArgumentDescription* option : ownOptions(root, *entry.command))
        addOption(specifications, entry.path, *option, false);
    for (const cli::ArgumentDescription& positional : entry.command->positionals)
        specifications.push_back((positional.repeats ? "*" : "") + message(entry.path, positional));
    std::string call = "  _arguments";
    if (!entry.command->commands.empty()) {
        call += " -C";
        specifications.emplace_back(":command:->command");
        specifications.emplace_back("*::argument:->argument");
    }
    for (const std::string& specification : specifications)
        call += " \\\n    " + singleQuoted(specification);
    return call;
}

/// What follows for a command with commands below it: their names, and the way to their own functions.
std::string dispatch(const cli::CommandDescription& root, const CommandWithPath& entry) {
    std::string names;
    std::string cases;
    for (const cli::CommandDescription& below : entry.command->commands) {
        names += "      " + singleQuoted(inSpecification(below.name) + ':' + below.description) + '\n';
        cases += "    " + singleQuoted(below.name) + ") " + commandFunction(entry.path + ' ' + below.name) +
                 " && result=0 ;;\n";
    }
    return "  case $state in\n  command)\n    commands=(\n" + names +
           "    )\n"
           "    _describe -t commands command commands && result=0\n"
           "    ;;\n"
           "  argument)\n"
           "    curcontext=${curcontext%:*:*}:" +
           root.name + "-$words[1]:\n    case $words[1] in\n" + cases + "    esac\n    ;;\n  esac\n";
}

std::string commandDefinition(const cli::CommandDescription& root, const CommandWithPath& entry) {
    std::string result = commandFunction(entry.path) + "() {\n" + argumentsState;
    result += argumentsCall(root, entry) + " && result=0\n";
    if (!entry.command->commands.empty())
        result += dispatch(root, entry);
    return result + "  return result\n}\n\n";
}

std::string valuesDefinition(const std::string& path, const cli::ArgumentDescription& argument) {
    if (argument.values.empty() || argument.kind != cli::ValueKind::Text)
        return {};
    return valuesFunction(path, argument) + "() {\n  compadd \"$@\" -- " +
           joined(argument.values, " ", singleQuoted) + "\n}\n\n";
}

} // namespace

std::string zshCompletion(const cli::CommandDescription& root) {
    std::string result = named("#compdef PROGRAM\n"
                               "# Written by the build from what the program's parsers know.\n\n"
                               "_PROGRAM_documents() {\n"
                               "  _files \"$@\" -g '*.(#i)(json|yaml|yml)(-.)'\n}\n\n",
                               root.name);
    for (const CommandWithPath& entry : commandsWithPaths(root)) {
        for (const cli::ArgumentDescription& positional : entry.command->positionals)
            result += valuesDefinition(entry.path, positional);
        for (const cli::ArgumentDescription& option : entry.command->options)
            result += valuesDefinition(entry.path, option);
        result += commandDefinition(root, entry);
    }
    return result + named("if [[ $funcstack[1] = _PROGRAM ]]; then\n"
                          "  _PROGRAM \"$@\"\n"
                          "else\n"
                          "  compdef _PROGRAM PROGRAM # when it is sourced\n"
                          "fi\n",
                          root.name);
}

} // namespace specloom::command_pages
