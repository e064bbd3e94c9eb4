// Generates an Express server:  generate_express INPUT OUTPUT [CONFIGURATION]

#include "openapi_generator/plugin_runner.h"
#include "openapi_generator_server_express/plugin.h"

#include <exception> // std::exception
#include <iostream>  // std::cout
#include <memory>    // std::make_unique
#include <vector>    // std::vector

namespace generator = specloom::openapi_generator;

int main(int count, char** arguments) {
    const std::vector<std::string> given(arguments + 1, arguments + count);
    if (given.size() < 2)
        return 2;
    try {
        generator::PluginRunner runner;
        runner.setInputPath(given[0]);
        if (given.size() > 2)
            runner.setConfigPath(given[2]);
        runner.addPlugin(std::make_unique<generator::server_express::Plugin>(runner))
            .setParam("outputPath", given[1]);
        runner.run();
    } catch (const std::exception& error) {
        std::cout << error.what() << '\n';
        return 1;
    }
    return 0;
}
