#include "cli/commands/lint_command.h"

#include "cli/app.h"
#include "cli/config_file.h"
#include "cli/exit_status.h"
#include "cli/notes_flag.h"
#include "openapi/reader.h"
#include "openapi_lint/formatter_registry.h"
#include "openapi_lint/linter.h"
#include "telemetry/telemetry.h"

#include <iostream> // std::cout
#include <memory>   // std::make_shared, std::shared_ptr, std::unique_ptr
#include <optional> // std::optional
#include <string>   // std::string
#include <utility>  // std::move

namespace specloom::cli {
namespace {

void configureLinter(openapi_lint::Linter& linter, openapi::SchemaFormatRegistry& formats,
                     const std::optional<std::string>& path) {
    if (!path) {
        linter.configureDefaults();
        return;
    }
    readConfigFile(*path, [&](const ConfigFile& file) {
        file.addCustomFormatsTo(formats);
        linter.configure(file.commandSection("lint"));
    });
}

std::unique_ptr<openapi::ReadResult> read(const std::string& path,
                                          std::shared_ptr<const openapi::SchemaFormatRegistry> formats) {
    const telemetry::Span span("read");
    return openapi::readFile(path, std::move(formats));
}

} // namespace

void LintCommand::configure(App& app) {
    parser.addDescription("Lint one or more OpenAPI files.");
    parser.addOption(
        "--config",
        {.help = "Path to the configuration file.", .metavar = "CONFIG", .kind = ValueKind::Document});
    parser.addFlag("--fix", {.help = "Automatically fixes problems where possible."});
    parser.addFlag("--fix-dry-run",
                   {.help = "Prints what --fix would change as a unified diff, in place of the report."});
    parser.addOption("--formatter",
                     {.help = "Specifies the formatter", .values = openapi_lint::formatterNames()},
                     openapi_lint::defaultFormatter);
    parser.addPositionals(
        "files", {.help = "Path to OpenAPI files to lint.", .metavar = "FILES", .kind = ValueKind::Document});
    addNotesFlag(parser);
    app.addCommandLine(parser);
}

std::int32_t LintCommand::run() {
    const telemetry::Span span("cli_command_lint");
    const auto formats = std::make_shared<openapi::SchemaFormatRegistry>();
    openapi_lint::Linter linter(std::cout);
    configureLinter(linter, *formats, parser.option("--config"));
    const bool dryRun = parser.flag("--fix-dry-run");
    linter.setAutoFix(dryRun || parser.flag("--fix"));
    linter.setDryRun(dryRun);
    linter.setNotes(notesOf(parser));
    linter.setFormatter(parser.optionOrDefault("--formatter"));
    for (const std::string& file : parser.positionals("files")) {
        const std::unique_ptr<openapi::ReadResult> document = read(file, formats);
        const telemetry::Span process("process");
        linter.run(*document, file);
    }
    return exit_status::success;
}

} // namespace specloom::cli
