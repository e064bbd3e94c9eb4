#pragma once

#include "cli/argument_parser.h"

#include <cstdint>     // std::int32_t
#include <string>      // std::string
#include <string_view> // std::string_view

namespace specloom::cli {

class App;

/// One of the program's top-level commands. An object lives for one run of the program and runs at most once.
class Command {
  public:
    virtual ~Command() = default;
    Command(const Command&) = delete;
    Command& operator=(const Command&) = delete;

    /// Declares the description and the arguments, then attaches the command to `app`.
    virtual void configure(App& app) = 0;

    /// Does the work on the parsed arguments and returns the exit status. What fails leaves as an exception
    /// whose text stands for itself.
    [[nodiscard]] virtual std::int32_t run() = 0;

    [[nodiscard]] const std::string& name() const noexcept { return name_; }

  protected:
    explicit Command(std::string_view name) : parser(name, commandVersion), name_(name) {}

    // Commands count on their own: `specloom --version` gives the program's version.
    static constexpr std::string_view commandVersion = "1.0";

    ArgumentParser parser;

  private:
    std::string name_;
};

} // namespace specloom::cli
