#include "cli/commands/license_command.h"

#include "cli/app.h"
#include "cli/exit_status.h"
#include "cli/libraries.h"
#include "foundation/message.h"

#include <algorithm>   // std::find_if
#include <iostream>    // std::cout
#include <optional>    // std::optional
#include <string>      // std::string
#include <string_view> // std::string_view
#include <vector>      // std::vector

#include <fmt/format.h>

namespace specloom::cli {
namespace {

void printNames() {
    std::string names;
    for (const std::string_view name : libraryNames()) {
        if (!names.empty())
            names += ", ";
        names += name;
    }
    std::cout << librariesHeading << fmt::format("{0}\n", names);
}

std::int32_t printLicense(const std::string& name) {
    const std::vector<LibraryInfo>& all = libraries();
    const auto library =
        std::find_if(all.begin(), all.end(), [&](const LibraryInfo& row) { return row.name == name; });
    if (library == all.end()) {
        std::cout << formatMessage("No library with name {} found.", name).composed() << '\n';
        return exit_status::failure;
    }
    std::cout << library->license;
    return exit_status::success;
}

void printLicenses() {
    std::cout << librariesHeading;
    for (const LibraryInfo& library : libraries())
        std::cout << fmt::format("{0}{1}\n\n", library.name, library.license);
}

} // namespace

void LicenseCommand::configure(App& app) {
    parser.addDescription("Show licenses of 3rd party libraries used in this project.");
    parser.addFlag("--list", {.help = "List all 3rd party libraries used in this project."});
    parser.addOption("--library",
                     {.help = "Name of the library to show license for.", .values = libraryNames()});
    app.addCommandLine(parser);
}

std::int32_t LicenseCommand::run() {
    if (parser.flag("--list")) {
        printNames();
        return exit_status::success;
    }
    if (const std::optional<std::string> name = parser.option("--library"))
        return printLicense(*name);
    printLicenses();
    return exit_status::success;
}

} // namespace specloom::cli
