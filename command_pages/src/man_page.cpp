#include "command_pages/man_page.h"

#include "command_pages/commands_with_paths.h"
#include "foundation/strings.h"

#include <utility> // std::pair
#include <vector>  // std::vector

#include <fmt/format.h>
#include <utf8cpp/utf8.h>

namespace specloom::command_pages {
namespace {

/// The text as roff prints it to the letter within a line: no escape, no ligature, no other dash or quote.
std::string roff(std::string_view text) {
    static constexpr std::pair<char32_t, std::string_view> escapes[] = {
        {U'\\', "\\e"},  {U'-', "\\-"},   {U'\'', "\\(aq"}, {U'`', "\\(ga"}, {U'^', "\\(ha"},
        {U'~', "\\(ti"}, {U'"', "\\(dq"}, {U'\n', " "},     {U'\r', " "},    {U'\t', " "},
    };
    std::string result;
    for (auto at = text.begin(); at != text.end();) {
        const char32_t character = utf8::next(at, text.end());
        std::string_view escaped;
        for (const auto& [plain, escape] : escapes)
            if (plain == character)
                escaped = escape;
        if (!escaped.empty())
            result += escaped;
        else if (character < 0x80)
            result += static_cast<char>(character);
        else
            result += fmt::format("\\[u{:04X}]", static_cast<std::uint32_t>(character));
    }
    return result;
}

/// A line of text. At its start a dot or an apostrophe would make it a request.
std::string textLine(std::string_view text) {
    return "\\&" + roff(text) + '\n';
}

std::string bold(std::string_view text) {
    return "\\fB" + roff(text) + "\\fR";
}

std::string italic(std::string_view text) {
    return "\\fI" + roff(text) + "\\fR";
}

/// "-o, --output OUTPUT"
std::string optionHead(const cli::ArgumentDescription& option) {
    std::string result;
    for (const std::string& name : option.names)
        result += (result.empty() ? "" : ", ") + bold(name);
    return option.metavar.empty() ? result : result + ' ' + italic(option.metavar);
}

std::string ellipsis(const cli::ArgumentDescription& argument) {
    return argument.repeats ? ".\\|.\\|." : "";
}

/// "specloom lint [--config CONFIG] [--fix] FILES..."
std::string usage(const cli::CommandDescription& root, const CommandWithPath& entry) {
    std::string result = "\\&" + bold(entry.path);
    for (const cli::ArgumentDescription* option : ownOptions(root, *entry.command)) {
        result += (option->required ? " " : " [") + bold(option->names.back());
        if (!option->metavar.empty())
            result += "\\ " + italic(option->metavar);
        result += (option->required ? "" : "]") + ellipsis(*option);
    }
    for (const cli::ArgumentDescription& positional : entry.command->positionals)
        result += ' ' + italic(positional.metavar) + ellipsis(positional);
    if (!entry.command->commands.empty())
        result += ' ' + italic("COMMAND") + " [" + italic("ARGUMENTS") + ']';
    return result + '\n';
}

std::string paragraph(const std::string& head, std::string_view help) {
    return ".TP\n\\&" + head + '\n' + textLine(help);
}

std::string argument(const std::string& head, const cli::ArgumentDescription& argument) {
    std::string result = paragraph(head, argument.help);
    if (!argument.values.empty()) {
        std::string list;
        for (const std::string& value : argument.values)
            list += (list.empty() ? "" : ", ") + value;
        result += ".br\n" + textLine("Values: " + list + '.');
    }
    if (!argument.defaultValue.empty())
        result += ".br\n" + textLine("Default: " + argument.defaultValue + '.');
    return result;
}

std::string section(const cli::CommandDescription& root, const CommandWithPath& entry) {
    const cli::CommandDescription& command = *entry.command;
    std::string result = ".SS " + roff(entry.path.substr(root.name.size() + 1)) + '\n';
    result += usage(root, entry);
    if (!command.description.empty())
        result += ".PP\n" + textLine(command.description);
    for (const cli::ArgumentDescription& positional : command.positionals)
        result += argument(italic(positional.metavar) + ellipsis(positional), positional);
    for (const cli::ArgumentDescription* option : ownOptions(root, command))
        result += argument(optionHead(*option), *option);
    for (const cli::CommandDescription& below : command.commands)
        result += paragraph(bold(below.name), below.description);
    return result;
}

/// What no parser knows.
constexpr std::string_view foot = R"(.SH EXIT STATUS
.TP
0
A command did its work; help or a version was printed.
.TP
1
Something failed, and the line on standard output says what.
For \fBdiff\fR also: a change is breaking.
.TP
255
No command was named.
.SH FILES
.TP
\&\fI.specloom.telemetry\fR
The tracing spans of the last run in this folder.
Nothing leaves the machine.
.SH SEE ALSO
The manual in
.IR /usr/share/doc/specloom ,
or in
.I share/doc/specloom
beside the folder of the program.
)";

} // namespace

std::string manPage(const cli::CommandDescription& root, std::string_view version) {
    const std::vector<CommandWithPath> commands = commandsWithPaths(root);
    std::string page = ".\\\" Written by the build from what the program's parsers know.\n";
    page += fmt::format(".TH {} 1 \"\" \"Spec Loom {}\" \"User Commands\"\n", roff(toUpperCase(root.name)),
                        roff(version));
    page += ".nh\n.ad l\n"; // names are not parted at line ends
    page += ".SH NAME\n" + roff(root.name) + " \\- a toolchain for OpenAPI documents\n";
    page += ".SH SYNOPSIS\n" + usage(root, commands.front());
    page += ".SH DESCRIPTION\n"
            "Spec Loom works on OpenAPI 3.0 and 3.1 documents in JSON and YAML.\n"
            "What it does with them is said by the command.\n"
            "All output goes to standard output, messages about failures too.\n";
    for (const cli::CommandDescription& command : root.commands)
        page += paragraph(bold(command.name), command.description);
    page += ".SH OPTIONS\nThe program and each of its commands know these:\n";
    for (const cli::ArgumentDescription& option : root.options)
        page += argument(optionHead(option), option);
    page += ".PP\nArguments that belong to a command stand behind its name.\n"
            "A value is the next word, or stands behind an equals sign.\n";
    page += ".SH COMMANDS\n";
    for (const CommandWithPath& entry : commands)
        if (entry.command != &root)
            page += section(root, entry);
    return page.append(foot);
}

} // namespace specloom::command_pages
