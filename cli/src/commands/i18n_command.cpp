#include "cli/commands/i18n_command.h"

#include "cli/app.h"
#include "cli/exit_status.h"
#include "openapi_i18n/extractor.h"
#include "telemetry/telemetry.h"

#include <iostream> // std::cerr, std::cout
#include <optional> // std::optional
#include <string>   // std::string

namespace specloom::cli {

void I18NCommand::configure(App& app) {
    parser.addDescription("Extract i18n data from an OpenAPI spec.");
    parser.addPositional(
        "files",
        {.help = "Path to OpenAPI file to process.", .metavar = "FILES", .kind = ValueKind::Document});
    parser.addOption("--output", {.help = "Path to extracted i18n literals.", .kind = ValueKind::Document});
    parser.addFlag("--drop-obsolete",
                   {.help = "Leaves out translations of texts that do not occur any more."});
    app.addCommandLine(parser);
}

std::int32_t I18NCommand::run() {
    const telemetry::Span span("cli_command_i18n");
    openapi_i18n::Extractor extractor(std::cout, Notes(&std::cerr));
    if (const std::optional<std::string> output = parser.option("--output"))
        extractor.setOutputPath(*output);
    extractor.setDropsObsolete(parser.flag("--drop-obsolete"));
    extractor.run(parser.positional("files"));
    return exit_status::success;
}

} // namespace specloom::cli
