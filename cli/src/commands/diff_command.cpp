#include "cli/commands/diff_command.h"

#include "cli/app.h"
#include "cli/config_file.h"
#include "cli/exit_status.h"
#include "openapi/reader.h"
#include "openapi/writer.h"
#include "openapi_diff/differ.h"
#include "telemetry/telemetry.h"

#include <iostream> // std::cout
#include <memory>   // std::make_shared, std::shared_ptr, std::unique_ptr
#include <optional> // std::optional
#include <string>   // std::string
#include <utility>  // std::move

namespace specloom::cli {
namespace {

void configureDiffer(openapi_diff::Differ& differ, openapi::SchemaFormatRegistry& formats,
                     const std::optional<std::string>& path) {
    if (!path)
        return; // a differ begins with the recommended configuration
    readConfigFile(*path, [&](const ConfigFile& file) {
        file.addCustomFormatsTo(formats);
        differ.configure(openapi_diff::Configuration::load(file.commandSection("diff")));
    });
}

std::unique_ptr<openapi::ReadResult> read(const char* spanName, const std::string& path,
                                          std::shared_ptr<const openapi::SchemaFormatRegistry> formats) {
    const telemetry::Span span(spanName);
    return openapi::readFile(path, std::move(formats));
}

} // namespace

void DiffCommand::configure(App& app) {
    parser.addDescription("Compares two OpenAPI files and prints the differences.");
    parser.addOption("--config", {.help = "Path to the configuration file.", .kind = ValueKind::Document});
    parser.addOption("--report", {.help = "Specifies what to print"}, openapi_diff::defaultReport,
                     openapi_diff::reportNames());
    parser.addOption("--formatter", {.help = "Specifies the formatter"}, openapi_diff::defaultFormat,
                     openapi_diff::formatNames());
    parser.addFlag("--update-version",
                   {.help = "Updates the version of the OpenAPI file to the minimal suggested version."});
    parser.addPositional("source_file",
                         {.help = "Path to the original OpenAPI file.", .kind = ValueKind::Document});
    parser.addPositional("dest_file", {.help = "Path to final OpenAPI file.", .kind = ValueKind::Document});
    app.addCommandLine(parser);
}

std::int32_t DiffCommand::run() {
    const telemetry::Span span("cli_command_diff");
    const auto formats = std::make_shared<openapi::SchemaFormatRegistry>();
    openapi_diff::Differ differ(std::cout);
    configureDiffer(differ, *formats, parser.option("--config"));
    const bool updateVersion = parser.flag("--update-version");
    const std::string report = parser.optionOrDefault("--report");
    differ.setUpdateVersion(updateVersion);
    differ.setReport(report);
    differ.setFormatter(parser.optionOrDefault("--formatter"), report);
    const std::unique_ptr<openapi::ReadResult> source =
        read("read_source", parser.positional("source_file"), formats);
    const std::string destinationPath = parser.positional("dest_file");
    const std::unique_ptr<openapi::ReadResult> destination = read("read_dest", destinationPath, formats);
    const openapi_diff::Differ::Outcome outcome = differ.run(*source, *destination);
    if (updateVersion && outcome.bumped != openapi_diff::ChangeLevel::None) {
        const telemetry::Span update("update_dest");
        openapi::writeFile(*destination, destinationPath);
    }
    return outcome.level == openapi_diff::ChangeLevel::Breaking ? exit_status::failure : exit_status::success;
}

} // namespace specloom::cli
