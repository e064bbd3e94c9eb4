#include "cli/app.h"

#include "cli/commands/credits_command.h"
#include "cli/commands/diff_command.h"
#include "cli/commands/format_command.h"
#include "cli/commands/generate_command.h"
#include "cli/commands/i18n_command.h"
#include "cli/commands/license_command.h"
#include "cli/commands/lint_command.h"
#include "cli/commands/server_command.h"
#include "cli/exit_status.h"
#include "telemetry/telemetry.h"

#include <iostream> // std::ios
#include <string>   // std::string

namespace specloom::cli {
namespace {

template <typename T>
std::unique_ptr<Command> make() {
    return std::make_unique<T>();
}

/// Every command, in the order in which the command line is asked for them.
constexpr std::unique_ptr<Command> (*commandTable[])() = {
    make<CreditsCommand>, make<FormatCommand>,   make<LicenseCommand>, make<LintCommand>,
    make<DiffCommand>,    make<GenerateCommand>, make<I18NCommand>,    make<ServerCommand>,
};

} // namespace

App::App(WithoutTelemetry) : parser_("specloom", SPECLOOM_VERSION) {}

App::App() : App(WithoutTelemetry{}) {
    telemetry::initTelemetry(".specloom.telemetry");
}

App::~App() {
    telemetry::shutdownTelemetry();
}

void App::registerCommands() {
    std::ios::sync_with_stdio(false);
    for (const auto makeCommand : commandTable)
        commands_.push_back(makeCommand());
    for (const auto& command : commands_)
        command->configure(*this);
}

std::int32_t App::run(int argc, char** argv) {
    parser_.parse(std::vector<std::string>(argv, argv + argc));
    for (const auto& command : commands_) {
        if (parser_.isSubcommandUsed(command->name()))
            return command->run();
    }
    return exit_status::noCommand;
}

CommandDescription App::describeCommandLine() {
    App app(WithoutTelemetry{});
    app.registerCommands();
    return app.parser_.describe();
}

} // namespace specloom::cli
