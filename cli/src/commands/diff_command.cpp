#include "cli/commands/diff_command.h"

#include "cli/app.h"
#include "cli/config_file.h"
#include "cli/exit_status.h"
#include "cli/notes_flag.h"
#include "foundation/printable.h"
#include "openapi/reader.h"
#include "openapi_diff/differ.h"
#include "source_edit/repaired_file.h"
#include "telemetry/telemetry.h"

#include <iostream> // std::cout
#include <memory>   // std::make_shared, std::make_unique, std::shared_ptr, std::unique_ptr
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

/// Brings the version of the tree into the file.
void updateVersion(const openapi::ReadResult& document, const std::string& path, const Notes& notes) {
    const telemetry::Span span("update_dest");
    const openapi::Info& info = document.root().info();
    source_edit::Edits edits(document.source());
    edits.setMember(*info.source(), "version", std::make_unique<jv::JV>(info.version()));
    const source_edit::RepairedFile file(path, edits);
    file.write();
    file.tell(notes);
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
    parser.addFlag("--print-version",
                   {.help = "Prints the minimal suggested version alone, and writes nothing."});
    addNotesFlag(parser);
    parser.addPositional("source_file",
                         {.help = "Path to the original OpenAPI file.", .kind = ValueKind::Document});
    parser.addPositional("dest_file", {.help = "Path to final OpenAPI file.", .kind = ValueKind::Document});
    app.addCommandLine(parser);
}

std::int32_t DiffCommand::run() {
    const telemetry::Span span("cli_command_diff");
    const auto formats = std::make_shared<openapi::SchemaFormatRegistry>();
    const bool printsVersion = parser.flag("--print-version");
    std::ostream nowhere(nullptr);
    openapi_diff::Differ differ(printsVersion ? nowhere : std::cout);
    configureDiffer(differ, *formats, parser.option("--config"));
    const bool updatesVersion = parser.flag("--update-version");
    const std::string report = parser.optionOrDefault("--report");
    differ.setUpdateVersion(updatesVersion || printsVersion);
    differ.setReport(report);
    differ.setFormatter(parser.optionOrDefault("--formatter"), report);
    const std::unique_ptr<openapi::ReadResult> source =
        read("read_source", parser.positional("source_file"), formats);
    const std::string destinationPath = parser.positional("dest_file");
    const std::unique_ptr<openapi::ReadResult> destination = read("read_dest", destinationPath, formats);
    const openapi_diff::Differ::Outcome outcome = differ.run(*source, *destination);
    if (printsVersion)
        std::cout << printable(destination->root().info().version()) << '\n';
    else if (outcome.bumped != openapi_diff::ChangeLevel::None)
        updateVersion(*destination, destinationPath, notesOf(parser));
    return outcome.level == openapi_diff::ChangeLevel::Breaking ? exit_status::failure : exit_status::success;
}

} // namespace specloom::cli
