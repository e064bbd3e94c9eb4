#include "cli/argument_parser.h"

#include <cstdlib>  // std::exit
#include <iostream> // std::cout

#include <argparse/argparse.hpp>

#include "cli/exit_status.h"
#include "cli/standard_output.h"

namespace specloom::cli {

struct ArgumentParser::Parser : argparse::ArgumentParser {
    /// Its own help and version end the process with status 0 even when their text went nowhere, so both are
    /// made here, with the library's words.
    Parser(const std::string& programName, const std::string& version)
        : argparse::ArgumentParser(programName, version, argparse::default_arguments::none) {
        addEnding("-h", "--help", "shows help message and exits", [this] { return help().str(); });
        addEnding("-v", "--version", "prints version information and exits",
                  [version] { return version + '\n'; });
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
    }

    argparse::Argument& add(std::string_view name, const ArgumentHelp& help) {
        argparse::Argument& argument = add_argument(name).help(std::string(help.help));
        if (!help.metavar.empty())
            argument.metavar(std::string(help.metavar));
        return argument;
    }
};

ArgumentParser::ArgumentParser(std::string_view programName, std::string_view version)
    : parser_(std::make_unique<Parser>(std::string(programName), std::string(version))) {}

ArgumentParser::~ArgumentParser() = default;

void ArgumentParser::addDescription(std::string_view description) {
    parser_->add_description(std::string(description));
}

void ArgumentParser::addFlag(std::string_view name, const ArgumentHelp& help) {
    parser_->add(name, help).default_value(false).implicit_value(true).nargs(0);
}

void ArgumentParser::addOption(std::string_view name, const ArgumentHelp& help) {
    parser_->add(name, help).nargs(1);
}

void ArgumentParser::addOption(std::string_view name, const ArgumentHelp& help,
                               std::string_view defaultValue) {
    addOption(name, help, defaultValue, {});
}

void ArgumentParser::addOption(std::string_view name, const ArgumentHelp& help, std::string_view defaultValue,
                               std::initializer_list<std::string_view> choices) {
    // A default value behind nargs() would make the value itself optional: one that is no choice would then
    // be left to the positional arguments.
    argparse::Argument& argument = parser_->add(name, help).default_value(std::string(defaultValue)).nargs(1);
    for (const std::string_view choice : choices)
        argument.add_choice(std::string(choice));
}

void ArgumentParser::addPositional(std::string_view name, const ArgumentHelp& help) {
    parser_->add(name, help).nargs(1);
}

void ArgumentParser::addPositionals(std::string_view name, const ArgumentHelp& help) {
    parser_->add(name, help).nargs(argparse::nargs_pattern::at_least_one);
}

void ArgumentParser::addSubparser(ArgumentParser& parser) {
    parser_->add_subparser(*parser.parser_);
}

void ArgumentParser::parse(const std::vector<std::string>& arguments) {
    parser_->parse_args(arguments);
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
