#include "cli/argument_parser.h"

#include "cli/exit_status.h"
#include "cli/standard_output.h"
#include "foundation/message.h"
#include "foundation/strings.h"

#include <algorithm> // std::replace, std::sort
#include <cstdlib>   // std::exit
#include <exception> // std::exception
#include <iostream>  // std::cout
#include <stdexcept> // std::runtime_error

#include <argparse/argparse.hpp>

namespace specloom::cli {
namespace {

/// The place holder where none was given: the argument's name in capitals, without dashes before it.
std::string placeHolder(std::string_view name) {
    std::string result(name.substr(std::min(name.find_first_not_of('-'), name.size())));
    std::replace(result.begin(), result.end(), '-', '_');
    return toUpperCase(result);
}

} // namespace

/// argparse's parser, which does not give back what it was told, and a record of that.
struct ArgumentParser::Parser : argparse::ArgumentParser {
    /// Its own help and version end the process with status 0 even when their text went nowhere, so both are
    /// made here, with the library's words.
    Parser(std::string_view name, std::string_view version)
        : argparse::ArgumentParser(std::string(name), std::string(version),
                                   argparse::default_arguments::none) {
        described.name = name;
        addEnding("-h", "--help", "shows help message and exits", [this] { return help().str(); });
        addEnding("-v", "--version", "prints version information and exits",
                  [text = std::string(version) + '\n'] { return text; });
    }

    /// An argument that prints a text and ends the process.
    template <typename Text>
    void addEnding(const char* brief, const char* name, const char* explanation, Text text) {
        const auto end = [text](const std::string&) {
            std::cout << text();
            flushStandardOutput();
            std::exit(exit_status::success);
        };
        add_argument(brief, name)
            .action(end)
            .default_value(false)
            .help(explanation)
            .implicit_value(true)
            .nargs(0);
        described.options.push_back({.names = {brief, name}, .help = explanation});
    }

    argparse::Argument& add(std::string_view name, const ArgumentHelp& help) {
        argparse::Argument& argument =
            help.briefName.empty() ? add_argument(name) : add_argument(help.briefName, name);
        argument.help(std::string(help.help));
        if (!help.metavar.empty())
            argument.metavar(std::string(help.metavar));
        auto& list = name.starts_with('-') ? described.options : described.positionals;
        list.push_back({.names = {std::string(name)}, .help = std::string(help.help)});
        if (!help.briefName.empty())
            list.back().names.emplace(list.back().names.begin(), help.briefName);
        return argument;
    }

    /// The same for an argument with a value.
    argparse::Argument& addValued(std::string_view name, const ArgumentHelp& help) {
        argparse::Argument& argument = add(name, help);
        ArgumentDescription& description = lastOf(name);
        description.metavar = help.metavar.empty() ? placeHolder(name) : std::string(help.metavar);
        description.kind = help.kind;
        description.values.assign(help.values.begin(), help.values.end());
        return argument;
    }

    ArgumentDescription& lastOf(std::string_view name) {
        return name.starts_with('-') ? described.options.back() : described.positionals.back();
    }

    [[nodiscard]] CommandDescription describe() const {
        CommandDescription result = described;
        for (const Parser* parser : attached) // a tree that the commands lay out, a few levels deep
            result.commands.push_back(parser->describe());
        std::sort(result.commands.begin(), result.commands.end(),
                  [](const CommandDescription& a, const CommandDescription& b) { return a.name < b.name; });
        return result;
    }

    CommandDescription described; // without the commands below it, which may still grow
    std::vector<const Parser*> attached;
};

ArgumentParser::ArgumentParser(std::string_view programName, std::string_view version)
    : parser_(std::make_unique<Parser>(programName, version)) {}

ArgumentParser::~ArgumentParser() = default;

void ArgumentParser::addDescription(std::string_view description) {
    parser_->add_description(std::string(description));
    parser_->described.description = description;
}

void ArgumentParser::addFlag(std::string_view name, const ArgumentHelp& help) {
    parser_->add(name, help).default_value(false).implicit_value(true).nargs(0);
}

void ArgumentParser::addOption(std::string_view name, const ArgumentHelp& help) {
    argparse::Argument& argument = parser_->addValued(name, help);
    switch (help.count) {
    case ValueCount::One:
        argument.nargs(1);
        break;
    case ValueCount::Required:
        argument.nargs(1);
        parser_->lastOf(name).required = true;
        break;
    case ValueCount::AtMostOne:
        argument.nargs(argparse::nargs_pattern::optional);
        break;
    case ValueCount::AnyRepeatedly:
        argument.nargs(argparse::nargs_pattern::any).append();
        parser_->lastOf(name).repeats = true;
        break;
    }
}

void ArgumentParser::addOption(std::string_view name, const ArgumentHelp& help, std::string_view defaultValue,
                               const std::vector<std::string_view>& choices) {
    // A default value behind nargs() would make the value itself optional: one that is no choice would then
    // be left to the positional arguments.
    argparse::Argument& argument =
        parser_->addValued(name, help).default_value(std::string(defaultValue)).nargs(1);
    ArgumentDescription& description = parser_->lastOf(name);
    description.defaultValue = defaultValue;
    for (const std::string_view choice : choices) {
        argument.add_choice(std::string(choice));
        description.values.emplace_back(choice);
    }
}

void ArgumentParser::addPositional(std::string_view name, const ArgumentHelp& help) {
    parser_->addValued(name, help).nargs(1);
}

void ArgumentParser::addPositionals(std::string_view name, const ArgumentHelp& help) {
    parser_->addValued(name, help).nargs(argparse::nargs_pattern::at_least_one);
    parser_->lastOf(name).repeats = true;
}

void ArgumentParser::addSubparser(ArgumentParser& parser) {
    parser_->add_subparser(*parser.parser_);
    parser_->attached.push_back(parser.parser_.get());
}

CommandDescription ArgumentParser::describe() const {
    return parser_->describe();
}

void ArgumentParser::parse(const std::vector<std::string>& arguments) {
    try {
        parser_->parse_args(arguments);
    } catch (const std::exception& error) {
        // The library quotes the arguments as they are, and its texts are of one line.
        throw std::runtime_error(formatMessage("{}", error.what()));
    }
}

bool ArgumentParser::isSubcommandUsed(std::string_view name) const {
    return parser_->is_subcommand_used(name);
}

bool ArgumentParser::flag(std::string_view name) const {
    return parser_->get<bool>(name);
}

std::optional<std::string> ArgumentParser::option(std::string_view name) const {
    return parser_->present<std::string>(name);
}

std::vector<std::string> ArgumentParser::options(std::string_view name) const {
    return parser_->present<std::vector<std::string>>(name).value_or(std::vector<std::string>{});
}

std::string ArgumentParser::requiredOption(std::string_view name) const {
    return parser_->get<std::string>(name);
}

std::string ArgumentParser::optionOrDefault(std::string_view name) const {
    return parser_->get<std::string>(name);
}

std::string ArgumentParser::positional(std::string_view name) const {
    return parser_->get<std::string>(name);
}

std::vector<std::string> ArgumentParser::positionals(std::string_view name) const {
    return parser_->get<std::vector<std::string>>(name);
}

} // namespace specloom::cli
