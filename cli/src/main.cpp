#include "cli/app.h"
#include "cli/exit_status.h"
#include "cli/process.h"
#include "cli/standard_output.h"
#include "foundation/printable.h"

#include <cstdlib>   // std::exit
#include <exception> // std::exception
#include <iostream>  // std::cout
#include <new>       // std::bad_alloc
#include <stdexcept> // std::length_error

using namespace specloom::cli;

/// The one place where failures end: the text alone, on standard output, where reports go too.
int main(int argc, char** argv) {
    prepareProcess();
    try {
        App app;
        app.registerCommands();
        const std::int32_t status = app.run(argc, argv);
        flushStandardOutput();
        return status;
    } catch (const std::bad_alloc&) {
        endOutOfMemory();
    } catch (const std::length_error&) { // more than any memory holds was asked for
        endOutOfMemory();
    } catch (const std::exception& error) {
        // Our own texts are printable already. Those of a library may be not.
        std::cout << specloom::printableLines(error.what()) << '\n';
    } catch (...) {
        std::cout << "Unknown error.\n";
    }
    std::exit(exit_status::failure);
}
