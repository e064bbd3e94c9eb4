#include "cli/commands/format_command.h"

#include "cli/app.h"
#include "cli/config_file.h"
#include "cli/exit_status.h"
#include "foundation/file_system.h"
#include "foundation/message.h"
#include "foundation/output_file.h"
#include "jv/deser.h"
#include "openapi_format/formatter.h"
#include "telemetry/telemetry.h"

#include <optional>  // std::optional
#include <stdexcept> // std::runtime_error
#include <string>    // std::string
#include <vector>    // std::vector

namespace specloom::cli {
namespace {

openapi_format::Configuration readConfiguration(const std::optional<std::string>& path) {
    if (!path)
        return openapi_format::Configuration::recommended();
    openapi_format::Configuration configuration;
    readConfigFile(*path, [&](const ConfigFile& file) {
        configuration = openapi_format::Configuration::load(file.commandSection("format"));
    });
    return configuration;
}

/// The file itself, or its neighbour with the extension of `target` when it was read in the other format.
std::string targetPath(const std::string& file, jv::DocumentFormat read, jv::DocumentFormat target) {
    if (target == read)
        return file;
    return pathToUtf8(pathFromUtf8(file).replace_extension(jv::extensionOf(target)));
}

void formatInPlace(const openapi_format::Formatter& formatter, const std::string& file) {
    const jv::LoadedDocument loaded = jv::loadDocument(file);
    const jv::DocumentFormat target = formatter.configuration().format().value_or(loaded.format);
    const std::string text = formatter.text(*loaded.document, target);
    OutputFile(targetPath(file, loaded.format, target)).replace(text);
}

void formatTo(const openapi_format::Formatter& formatter, const std::string& file,
              const std::string& output) {
    const jv::LoadedDocument loaded = jv::loadDocument(file);
    const std::optional<jv::DocumentFormat> target = jv::formatFromPath(output);
    if (!target) {
        static_cast<void>(OutputFile(output)); // a bad extension is told after the file was created
        throw std::runtime_error(formatMessage("Unknown file format: {}", output));
    }
    const std::string text = formatter.text(*loaded.document, *target);
    OutputFile(output).replace(text);
}

} // namespace

void FormatCommand::configure(App& app) {
    parser.addDescription("Format one or more OpenAPI files.");
    parser.addOption(
        "--config",
        {.help = "Path to the configuration file.", .metavar = "CONFIG", .kind = ValueKind::Document});
    parser.addOption(
        "--output",
        {.help = "Path to the output file or directory.", .metavar = "OUTPUT", .kind = ValueKind::Document});
    parser.addPositionals(
        "files",
        {.help = "Path to OpenAPI files to format.", .metavar = "FILES", .kind = ValueKind::Document});
    app.addCommandLine(parser);
}

std::int32_t FormatCommand::run() {
    const telemetry::Span span("cli_command_format");
    const openapi_format::Formatter formatter(readConfiguration(parser.option("--config")));
    const std::vector<std::string> files = parser.positionals("files");
    const std::optional<std::string> output = parser.option("--output");
    if (!output) {
        for (const std::string& file : files)
            formatInPlace(formatter, file);
    } else {
        if (files.size() > 1)
            throw std::runtime_error("Only one input file is allowed when using --output.");
        formatTo(formatter, files.front(), *output);
    }
    return exit_status::success;
}

} // namespace specloom::cli
