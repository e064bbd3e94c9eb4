#include "cli/commands/credits_command.h"

#include "cli/app.h"
#include "cli/exit_status.h"
#include "cli/libraries.h"

#include <iostream> // std::cout

#include <fmt/format.h>

namespace specloom::cli {

void CreditsCommand::configure(App& app) {
    parser.addDescription("Show credits to 3rd party libraries used in this project.");
    app.addCommandLine(parser);
}

std::int32_t CreditsCommand::run() {
    std::cout << librariesHeading;
    for (const LibraryInfo& library : libraries()) {
        std::cout << fmt::format("- {0} ({1})\n", library.name, library.url);
        std::cout << fmt::format("    {0}\n\n", library.description);
    }
    return exit_status::success;
}

} // namespace specloom::cli
