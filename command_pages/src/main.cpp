// Writes the man page and the completions: specloom_describe FOLDER. Part of the build, not of what is
// installed.

#include "cli/app.h"
#include "command_pages/completions.h"
#include "command_pages/man_page.h"
#include "foundation/message.h"

#include <exception>  // std::exception
#include <filesystem> // std::filesystem::path
#include <fstream>    // std::ofstream
#include <iostream>   // std::cerr
#include <stdexcept>  // std::runtime_error
#include <string>     // std::string

using specloom::formatMessage;

namespace {

void write(const std::filesystem::path& path, const std::string& text) {
    std::ofstream stream(path, std::ios::binary);
    if (!(stream << text << std::flush))
        throw std::runtime_error(formatMessage("Failed to write file: {}", path.string()));
}

} // namespace

int main(int argc, char** argv) {
    using namespace specloom;
    if (argc != 2) {
        std::cerr << "Usage: specloom_describe FOLDER\n";
        return 1;
    }
    try {
        const std::filesystem::path folder = argv[1];
        const cli::CommandDescription commandLine = cli::App::describeCommandLine();
        write(folder / "specloom.1", command_pages::manPage(commandLine, SPECLOOM_VERSION));
        write(folder / "specloom.bash", command_pages::bashCompletion(commandLine));
        write(folder / "_specloom", command_pages::zshCompletion(commandLine));
        write(folder / "specloom.fish", command_pages::fishCompletion(commandLine));
        return 0;
    } catch (const std::exception& error) {
        std::cerr << error.what() << '\n';
        return 1;
    }
}
