#pragma once

#include "cli/command_line.h"

#include <memory>      // std::unique_ptr
#include <optional>    // std::optional
#include <string>      // std::string
#include <string_view> // std::string_view
#include <vector>      // std::vector

namespace specloom::cli {

/// How many values an option takes.
enum class ValueCount {
    One,
    Required,      ///< one, and requiredOption() asks for it; parsing does not
    AtMostOne,     ///< where it has none, it counts as left out
    AnyRepeatedly, ///< all words up to the next option, and the option may be given again
};

/// How an argument stands in usage and help texts, and what is known of its value.
struct ArgumentHelp {
    std::string_view help;
    std::string_view metavar = {}; // the value's place holder; none leaves the parser's own
    ValueKind kind = ValueKind::Text;
    std::vector<std::string_view> values = {}; // that are offered; unlike choices they are not checked
    std::string_view briefName = {};           // a second name of an option, such as "-o"
    ValueCount count = ValueCount::One;        // of an option
};

/// The command line's grammar and, after parse(), what it holds. A thin layer over argparse: that header
/// costs every source that includes it seconds, and combinations of its features have traps that the few
/// forms below stay clear of. Wording and layout of help texts and errors are argparse's own.
///
/// Each parser also knows --help, -h, --version and -v; they print to standard output and end the process
/// with status 0 while parsing.
class ArgumentParser {
  public:
    ArgumentParser(std::string_view programName, std::string_view version);
    ~ArgumentParser();
    ArgumentParser(const ArgumentParser&) = delete;
    ArgumentParser& operator=(const ArgumentParser&) = delete;

    void addDescription(std::string_view description);

    /// An argument without value, such as "--list".
    void addFlag(std::string_view name, const ArgumentHelp& help);

    /// An argument with a value, or as many as `help.count` says, that may be left out altogether, such as
    /// "--config".
    void addOption(std::string_view name, const ArgumentHelp& help);

    /// The same with the value that it has when it is left out. Where there are choices, of which the default
    /// is one, it must be one of them.
    void addOption(std::string_view name, const ArgumentHelp& help, std::string_view defaultValue,
                   const std::vector<std::string_view>& choices = {});

    /// One value without a name before it. `name` has no dashes.
    void addPositional(std::string_view name, const ArgumentHelp& help);

    /// Values without a name before them, one or more of them. `name` has no dashes.
    void addPositionals(std::string_view name, const ArgumentHelp& help);

    /// `parser` takes over behind its program's name. It is held by reference and must outlive this parser's
    /// use.
    void addSubparser(ArgumentParser& parser);

    /// What was added so far, to this parser and to those attached to it, the default arguments first.
    [[nodiscard]] CommandDescription describe() const;

    /// Reads a command line, the program's name first. Throws std::runtime_error or std::logic_error with
    /// argparse's text.
    void parse(const std::vector<std::string>& arguments);

    // What was parsed. Asking for a name that was not added throws std::logic_error.

    [[nodiscard]] bool isSubcommandUsed(std::string_view name) const;
    [[nodiscard]] bool flag(std::string_view name) const;
    [[nodiscard]] std::optional<std::string> option(std::string_view name) const;
    /// Of an option that takes any number of values: all of them, in their order.
    [[nodiscard]] std::vector<std::string> options(std::string_view name) const;
    /// Of an option that may not be left out. Throws std::logic_error "No value provided for '--output'.",
    /// with the option's name, when it was.
    [[nodiscard]] std::string requiredOption(std::string_view name) const;
    /// Of an option with a default value.
    [[nodiscard]] std::string optionOrDefault(std::string_view name) const;
    [[nodiscard]] std::string positional(std::string_view name) const;
    [[nodiscard]] std::vector<std::string> positionals(std::string_view name) const;

  private:
    struct Parser; // argparse's
    std::unique_ptr<Parser> parser_;
};

} // namespace specloom::cli
