#include "cli/commands/server_command.h"

#include "cli/app.h"
#include "cli/exit_status.h"
#include "telemetry/telemetry.h"

namespace specloom::cli {

void ServerCommand::configure(App& app) {
    parser.addDescription("Starts mock server.");
    app.addCommandLine(parser);
}

std::int32_t ServerCommand::run() {
    const telemetry::Span span("cli_command_server");
    return exit_status::success;
}

} // namespace specloom::cli
