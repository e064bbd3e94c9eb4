#pragma once

#include "foundation/memory_file_system.h"
#include "openapi_generator/plugin_runner.h"
#include "test_support/golden_folder.h"
#include "test_support/temporary_folder.h"

#include <exception>   // std::exception
#include <filesystem>  // std::filesystem
#include <memory>      // std::make_unique
#include <string>      // std::string
#include <string_view> // std::string_view
#include <utility>     // std::move

#include <gtest/gtest.h>

namespace specloom::test_support {

/// The path of a document that generators are tried on: "bookshop" is an example of the manual, the others
/// stand in tests/generators/documents/ under their file names.
[[nodiscard]] inline std::string generatorDocument(std::string_view name) {
    const std::filesystem::path root = SPECLOOM_SOURCE_DIR;
    return (name == "bookshop" ? root / "examples/bookshop-3.1.yaml"
                               : root / "tests/generators/documents" / name)
        .string();
}

/// What a generator made of a document.
struct GeneratedProject {
    MemoryFileSystem::Files files; ///< with the name of the output folder, "out", before each path
    std::string failure;           ///< what ended the run; empty when nothing did
};

/// Runs a plugin on the document at `path`, into memory, with the configuration at `configPath` if that is
/// not empty, and as the command line with the package of that name.
template <typename Plugin>
[[nodiscard]] GeneratedProject generate(std::string_view path, std::string_view configPath = {},
                                        std::string_view packageName = {}) {
    auto memory = std::make_unique<MemoryFileSystem>();
    const MemoryFileSystem& made = *memory;
    openapi_generator::PluginRunner runner(std::move(memory));
    runner.setInputPath(path);
    if (!configPath.empty())
        runner.setConfigPath(configPath);
    auto& plugin = runner.addPlugin(std::make_unique<Plugin>(runner));
    plugin.setParam("outputPath", "out");
    if (!packageName.empty())
        plugin.setParam("packageName", packageName);
    GeneratedProject result;
    try {
        runner.run();
    } catch (const std::exception& error) {
        result.failure = error.what();
    }
    result.files = made.files();
    return result;
}

/// Compares what was generated with all files of a folder, carriage returns included, or writes that folder
/// anew, which fails the test.
inline void expectGoldenFolder(const GeneratedProject& project, const std::filesystem::path& golden) {
    EXPECT_EQ(project.failure, "");
    const TemporaryFolder folder;
    LocalFileSystem disk;
    for (const auto& [path, content] : project.files) {
        disk.createDirectories(folder.at(path));
        disk.writeFile(folder.at(path), content);
    }
    expectGoldenFolder(folder.path() / "out", golden);
}

} // namespace specloom::test_support
