#include "command_pages/commands_with_paths.h"
#include "command_pages/completions.h"
#include "command_pages/script.h"

#include <string_view> // std::string_view
#include <vector>      // std::vector

#include <fmt/core.h>

namespace specloom::command_pages {
namespace {

/// The part that knows nothing of any command. PROGRAM stands for the program's name.
constexpr std::string_view bashEngine = R"(
# Sets words to the words up to the cursor, as they were typed: bash itself also parts them at "=" and ":".
_PROGRAM_words() {
    local line=${COMP_LINE:0:COMP_POINT} gap word i
    words=()
    for ((i = 0; i <= COMP_CWORD; i++)); do
        gap=${line%%[![:space:]]*}
        line=${line#"$gap"}
        word=${COMP_WORDS[i]}
        [[ $i -lt $COMP_CWORD ]] || word=$line
        line=${line#"$word"}
        if [[ $i -eq 0 || -n $gap ]]; then
            words+=("$word")
        else
            words[${#words[@]} - 1]+=$word
        fi
    done
}

_PROGRAM_has() { # WORD LIST...
    local word=$1 other
    shift
    for other; do
        [[ $other != "$word" ]] || return 0
    done
    return 1
}

# Walks over the complete words: sets path, what the command of that path takes, how many operands were given,
# and in name the argument whose value comes next.
_PROGRAM_walk() {
    local index word
    path=PROGRAM given=0 name=
    _PROGRAM_command "$path"
    for ((index = 1; index < ${#words[@]} - 1; index++)); do
        word=${words[index]}
        if [[ -n $name ]]; then
            name=
        elif [[ $word = -* ]]; then
            ! _PROGRAM_has "$word" "${valued[@]}" || name=$word
        elif _PROGRAM_has "$word" "${commands[@]}"; then
            path+=" $word"
            _PROGRAM_command "$path"
        else
            ((++given))
        fi
    done
}

# Adds the folders and the files that fit to found.
_PROGRAM_files() { # KIND WORD
    local file
    while IFS= read -r file; do
        if [[ $1 = path || -d ${file/#~\//$HOME/} || ${file,,} =~ \.(json|yaml|yml)$ ]]; then
            found+=("$file")
        fi
    done < <(compgen -f -- "$2")
    compopt -o filenames
}

_PROGRAM() {
    local words path given name word typed before= quote= kind=text candidate
    local -a commands options valued operands values found
    local repeats=
    COMPREPLY=()
    _PROGRAM_words
    _PROGRAM_walk
    word=${words[${#words[@]} - 1]}
    typed=$word
    if [[ -n $name ]]; then
        :
    elif [[ $word = --*=* ]]; then
        name=${word%%=*} before=${word%%=*}=
        word=${word#*=}
        _PROGRAM_has "$name" "${valued[@]}" || return 0
    elif [[ $word = -* ]]; then
        values=("${options[@]}")
    elif [[ ${#commands[@]} -gt 0 ]]; then
        values=("${commands[@]}")
    elif [[ $given -lt ${#operands[@]} ]]; then
        name=${operands[given]}
    elif [[ -n $repeats ]]; then
        name=${operands[${#operands[@]} - 1]}
    fi
    [[ -z $name ]] || _PROGRAM_value "$path" "$name"
    case $word in # the marks that quote a word are the user's
        [\"\']*) quote=${word:0:1} word=${word:1} ;;
        *) word=${word//\\/} ;;
    esac
    [[ $kind = text ]] || _PROGRAM_files "$kind" "$word"
    for candidate in "${values[@]}"; do
        if [[ $candidate = "$word"* ]]; then
            [[ -n $quote ]] || printf -v candidate %q "$candidate"
            found+=("$candidate")
        fi
    done
    # What bash replaces begins behind the last mark at which it parts.
    case ${COMP_WORDS[COMP_CWORD]} in
        [=:]*) ;;
        *) typed=${typed%"${COMP_WORDS[COMP_CWORD]}"} ;;
    esac
    for candidate in "${found[@]}"; do
        candidate=$before$candidate
        COMPREPLY+=("${candidate#"$typed"}")
    done
}

complete -F _PROGRAM PROGRAM
)";

std::string bashList(std::string_view variable, const std::vector<std::string>& words) {
    return "    " + std::string(variable) + "=(" + joined(words, " ", singleQuoted) + ")\n";
}

/// The case of one command in the function that sets what the command takes.
std::string commandCase(const CommandWithPath& entry) {
    std::vector<std::string> commands;
    std::vector<std::string> options;
    std::vector<std::string> valued;
    std::vector<std::string> operands;
    bool repeats = false;
    for (const cli::CommandDescription& below : entry.command->commands)
        commands.push_back(below.name);
    for (const cli::ArgumentDescription& option : entry.command->options)
        for (const std::string& name : option.names) {
            options.push_back(name);
            if (!option.metavar.empty())
                valued.push_back(name);
        }
    for (const cli::ArgumentDescription& positional : entry.command->positionals) {
        operands.push_back(positional.names.front());
        repeats = positional.repeats;
    }
    return "    " + singleQuoted(entry.path) + ")\n    " + bashList("commands", commands) + "    " +
           bashList("options", options) + "    " + bashList("valued", valued) + "    " +
           bashList("operands", operands) + "        repeats=" + (repeats ? "yes" : "") + "\n        ;;\n";
}

/// The case of one argument in the function that sets which values it takes.
std::string valueCase(const std::string& path, const cli::ArgumentDescription& argument) {
    std::string result;
    if (argument.metavar.empty() || (argument.values.empty() && argument.kind == cli::ValueKind::Text))
        return result;
    for (const std::string& name : argument.names)
        result.append(result.empty() ? "    " : " | ").append(singleQuoted(fmt::format("{} {}", path, name)));
    result += ")\n";
    if (argument.kind != cli::ValueKind::Text)
        result += std::string("        kind=") +
                  (argument.kind == cli::ValueKind::Document ? "document" : "path") + '\n';
    if (!argument.values.empty())
        result += "    " + bashList("values", argument.values);
    return result + "        ;;\n";
}

} // namespace

std::string bashCompletion(const cli::CommandDescription& root) {
    std::string commandCases;
    std::string valueCases;
    for (const CommandWithPath& entry : commandsWithPaths(root)) {
        commandCases += commandCase(entry);
        for (const cli::ArgumentDescription& option : entry.command->options)
            valueCases += valueCase(entry.path, option);
        for (const cli::ArgumentDescription& positional : entry.command->positionals)
            valueCases += valueCase(entry.path, positional);
    }
    return named("# Completion of PROGRAM for bash. Written by the build from what the program's parsers "
                 "know.\n"
                 "\n_PROGRAM_command() { # PATH\n    case $1 in\n",
                 root.name) +
           commandCases + "    esac\n}\n" +
           named("\n_PROGRAM_value() { # PATH ARGUMENT\n    case \"$1 $2\" in\n", root.name) + valueCases +
           "    *) ;;\n    esac\n}\n" + named(bashEngine, root.name);
}

} // namespace specloom::command_pages
