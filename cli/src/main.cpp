#include <cstdlib>   // std::exit
#include <exception> // std::exception
#include <iostream>  // std::cout
#include <stdexcept> // std::runtime_error

#include "cli/app.h"
#include "cli/exit_status.h"
#include "foundation/printable.h"

using namespace specloom::cli;

/// The one place where failures end: the text alone, on standard output, where reports go too.
int main(int argc, char** argv) {
    try {
        App app;
        app.registerCommands();
        const std::int32_t status = app.run(argc, argv);
        // A report that did not get out whole must not pass for one.
        if (!std::cout.flush())
            throw std::runtime_error("Failed to write to standard output.");
        return status;
    } catch (const std::exception& error) {
        // Our own texts are printable already. Those of a library may be not.
        std::cout << specloom::printableLines(error.what()) << '\n';
    } catch (...) {
        std::cout << "Unknown error.\n";
    }
    std::exit(exit_status::failure);
}
