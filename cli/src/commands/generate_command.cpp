#include "cli/commands/generate_command.h"

#include "cli/app.h"
#include "cli/exit_status.h"
#include "foundation/unreachable.h"
#include "openapi_generator/plugin_runner.h"
#include "telemetry/telemetry.h"

namespace specloom::cli {

void GenerateCommand::configure(App& app) {
    parser.addDescription("Generate code and documentation from an OpenAPI file.");
    for (const GenerateGroup& row : generateGroups())
        groups_.emplace_back(row);
    for (const GenerateLeaf& row : generateLeaves()) {
        ArgumentParser& leaf = leaves_.emplace_back(row).parser;
        row.declareArguments(leaf);
        parentOf(row).addSubparser(leaf);
    }
    for (Branch<GenerateGroup>& group : groups_)
        parser.addSubparser(group.parser);
    app.addCommandLine(parser);
}

ArgumentParser& GenerateCommand::parentOf(const GenerateLeaf& leaf) {
    for (Branch<GenerateGroup>& group : groups_)
        if (group.row->name == leaf.group)
            return group.parser;
    return parser;
}

const GenerateCommand::Branch<GenerateLeaf>& GenerateCommand::chosenLeaf() {
    for (const Branch<GenerateLeaf>& leaf : leaves_)
        if (parentOf(*leaf.row).isSubcommandUsed(leaf.row->name))
            return leaf;
    SPECLOOM_UNREACHABLE(nullptr);
}

std::int32_t GenerateCommand::run() {
    const telemetry::Span span("cli_command_generate");
    openapi_generator::PluginRunner runner;
    const Branch<GenerateLeaf>& leaf = chosenLeaf();
    openapi_generator::Plugin& plugin = runner.addPlugin(leaf.row->makePlugin(runner, *leaf.row));
    leaf.row->handOverArguments(leaf.parser, runner, plugin);
    runner.run();
    return exit_status::success;
}

} // namespace specloom::cli
