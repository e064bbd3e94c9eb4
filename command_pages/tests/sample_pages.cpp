// Writes the pages of a command line that has what the program's own may come to have: commands below
// commands, options with two names, and texts that mean something to a shell or to roff.

#include "command_pages/completions.h"
#include "command_pages/man_page.h"

#include <filesystem> // std::filesystem::path
#include <fstream>    // std::ofstream
#include <string>     // std::string

namespace {

using namespace specloom;
using cli::ValueKind;

cli::CommandDescription leaf(const std::string& name) {
    return {
        .name = name,
        .description = "'Tis a \"leaf\": $(touch hurt) `touch hurt` [x]:y \\fBnot bold\\fR",
        .options =
            {
                {.names = {"-h", "--help"}, .help = "shows help"},
                {.names = {"-o", "--output"},
                 .help = ".so hurt",
                 .metavar = "OUTPUT",
                 .kind = ValueKind::Path},
                {.names = {"-f", "--from"}, .help = "from where", .metavar = "FROM", .required = true},
                {.names = {"--text"}, .help = "any text", .metavar = "A:B]"},
                {.names = {"--odd"},
                 .help = "it's 100% \\odd~^`",
                 .metavar = "ODD",
                 .values = {"{a,b}", "$HOME", "it's", "back\\slash", "two words", "co:lon", "*", "-dash"}},
                {.names = {"--many"},
                 .help = "again",
                 .metavar = "MANY",
                 .values = {"x", "y"},
                 .repeats = true},
            },
        .positionals = {{.names = {"file"}, .help = "one", .metavar = "INPUT", .kind = ValueKind::Document}},
        .commands = {},
    };
}

cli::CommandDescription sampleCommandLine() {
    cli::CommandDescription root = {
        .name = "sample",
        .description = "",
        .options = {{.names = {"-h", "--help"}, .help = "shows help"}},
        .positionals = {},
        .commands = {
            {.name = "make",
             .description = "Makes things.",
             .options = {},
             .positionals = {},
             .commands = {{.name = "client",
                           .description = "Makes clients.",
                           .options = {},
                           .positionals = {},
                           .commands = {leaf("fetch"), leaf("fly-by")}},
                          leaf("data")}},
            {.name = "say", .description = "Says it.", .options = {}, .positionals = {}, .commands = {}}}};
    return root;
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 2)
        return 1;
    const std::filesystem::path folder = argv[1];
    const cli::CommandDescription root = sampleCommandLine();
    std::ofstream(folder / "sample.1") << command_pages::manPage(root, "1.2\u00e9");
    std::ofstream(folder / "sample.bash") << command_pages::bashCompletion(root);
    std::ofstream(folder / "_sample") << command_pages::zshCompletion(root);
    std::ofstream(folder / "sample.fish") << command_pages::fishCompletion(root);
}
