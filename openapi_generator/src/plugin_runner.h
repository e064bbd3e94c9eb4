#pragma once

#include "foundation/file_system.h"
#include "jv/pos.h"
#include "openapi/reader.h"
#include "openapi_generator/plugin.h"
#include "openapi_generator/translations.h"

#include <memory>      // std::shared_ptr, std::unique_ptr
#include <optional>    // std::optional
#include <string>      // std::string
#include <string_view> // std::string_view
#include <vector>      // std::vector

namespace specloom::openapi_generator {

/// One run of `generate`: reads the configuration and the document, and lets the plugins work on them.
///
///     PluginRunner runner;
///     runner.setInputPath("api.yaml");
///     Plugin& plugin = runner.addPlugin(std::make_unique<server_express::Plugin>(runner));
///     plugin.setParam("outputPath", "out");
///     runner.run();
class PluginRunner {
  public:
    /// All output goes to `fileSystem`.
    explicit PluginRunner(std::unique_ptr<FileSystem> fileSystem = std::make_unique<LocalFileSystem>());
    PluginRunner(const PluginRunner&) = delete;
    PluginRunner& operator=(const PluginRunner&) = delete;

    void setInputPath(std::string_view path) { inputPath_ = path; }
    void setConfigPath(std::string_view path) { configPath_ = path; }
    Plugin& addPlugin(std::unique_ptr<Plugin> plugin);
    /// Reads a locale file at once. Throws what jv::loadDocument() and Translations::add() throw.
    void addLocaleFile(std::string_view locale, std::string_view path);

    /// Throws, without having written anything,
    ///   std::runtime_error "Error reading configuration file (line {}): {}" for a ConfigError with a place,
    ///   "Error reading configuration file: {}" for any other failure of the configuration,
    /// and what openapi::readFile() and the plugins throw.
    void run();
    /// The same for a document that was read already, in place of the input path.
    void run(std::unique_ptr<openapi::ReadResult> document);

    // For plugins.

    [[nodiscard]] FileSystem& fileSystem() const noexcept { return *fileSystem_; }
    [[nodiscard]] const std::string& inputPath() const noexcept { return inputPath_; }
    [[nodiscard]] const Translations& translations() const noexcept { return translations_; }

    // From their run() on. Nodes are those of the document.

    /// The JSON pointer (RFC 6901) of a member of the node; empty for a node that was made in code.
    [[nodiscard]] std::string childPointer(const openapi::Node& node, std::string_view segment) const;
    /// Null when there is no such value, or no node was read from it.
    [[nodiscard]] const openapi::Node* nodeAtPointer(std::string_view pointer) const;
    /// As ReadResult::positionOf().
    [[nodiscard]] jv::Pos nodePos(const openapi::Node& node) const;
    /// The path of the file that the node was read from.
    [[nodiscard]] std::string_view nodeFile(const openapi::Node& node) const;

  private:
    void readConfiguration();
    void applyConfiguration(const std::string& path);
    [[nodiscard]] std::unique_ptr<openapi::ReadResult> readDocument() const;
    void runPlugins(std::unique_ptr<openapi::ReadResult> document);

    std::unique_ptr<FileSystem> fileSystem_;
    std::string inputPath_;
    std::optional<std::string> configPath_;
    std::shared_ptr<openapi::SchemaFormatRegistry> formats_;
    Translations translations_;
    std::unique_ptr<openapi::ReadResult> document_; ///< null before run()
    std::vector<std::unique_ptr<Plugin>> plugins_;  ///< behind what they refer to, so that they end first
};

} // namespace specloom::openapi_generator
