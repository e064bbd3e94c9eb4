#include "openapi_generator/plugin_runner.h"

#include "foundation/message.h"
#include "jv/deser.h"
#include "openapi_generator/config_error.h"
#include "telemetry/telemetry.h"

#include <new>       // std::bad_alloc
#include <stdexcept> // std::runtime_error
#include <utility>   // std::move

namespace specloom::openapi_generator {

PluginRunner::PluginRunner(std::unique_ptr<FileSystem> fileSystem)
    : fileSystem_(std::move(fileSystem)), formats_(std::make_shared<openapi::SchemaFormatRegistry>()) {}

Plugin& PluginRunner::addPlugin(std::unique_ptr<Plugin> plugin) {
    plugins_.push_back(std::move(plugin));
    return *plugins_.back();
}

void PluginRunner::addLocaleFile(std::string_view locale, std::string_view path) {
    translations_.add(locale, *jv::loadDocument(path).document->root());
}

void PluginRunner::run() {
    readConfiguration();
    runPlugins(readDocument());
}

void PluginRunner::run(std::unique_ptr<openapi::ReadResult> document) {
    readConfiguration();
    runPlugins(std::move(document));
}

void PluginRunner::runPlugins(std::unique_ptr<openapi::ReadResult> document) {
    document_ = std::move(document);
    const telemetry::Span span("run");
    for (const auto& plugin : plugins_)
        plugin->run(document_->root());
}

void PluginRunner::readConfiguration() {
    const telemetry::Span span("config");
    if (configPath_) {
        applyConfiguration(*configPath_);
        return;
    }
    for (const auto& plugin : plugins_)
        plugin->configureDefaults();
}

void PluginRunner::applyConfiguration(const std::string& path) {
    std::unique_ptr<jv::JVDocument> configuration; // lives until its ConfigErrors are told
    try {
        configuration = std::move(jv::loadDocument(path).document);
        if (const jv::JV* custom = configuration->lookup("/openapi/custom_formats"))
            formats_->addFromJV(*custom);
        for (const auto& plugin : plugins_)
            plugin->configure(*configuration->root());
    } catch (const std::bad_alloc&) {
        throw; // of this run, and no fault of the configuration
    } catch (const ConfigError& error) {
        if (error.value() != nullptr && error.value()->pos().isKnown())
            throw std::runtime_error(formatMessage("Error reading configuration file (line {}): {}",
                                                   error.value()->pos().line, error.what()));
        throw std::runtime_error(formatMessage("Error reading configuration file: {}", error.what()));
    } catch (const std::exception& error) {
        throw std::runtime_error(formatMessage("Error reading configuration file: {}", error.what()));
    }
}

std::unique_ptr<openapi::ReadResult> PluginRunner::readDocument() const {
    const telemetry::Span span("read");
    return openapi::readFile(inputPath_, formats_);
}

std::string PluginRunner::childPointer(const openapi::Node& node, std::string_view segment) const {
    return document_->pointerOf(node, segment).value_or("");
}

const openapi::Node* PluginRunner::nodeAtPointer(std::string_view pointer) const {
    return document_->nodeAtPointer(pointer);
}

jv::Pos PluginRunner::nodePos(const openapi::Node& node) const {
    return document_->positionOf(node);
}

std::string_view PluginRunner::nodeFile(const openapi::Node& node) const {
    return document_->locationOf(node).file;
}

} // namespace specloom::openapi_generator
