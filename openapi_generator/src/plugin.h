#pragma once

#include "jv/jv.h"
#include "openapi/openapi.h"
#include "openapi_generator/part.h"

#include <memory>      // std::unique_ptr
#include <string>      // std::string
#include <string_view> // std::string_view
#include <utility>     // std::forward
#include <vector>      // std::vector

namespace specloom::openapi_generator {

class PluginRunner;

/// What makes files of a document. Its work goes through four stages, each of which is an operation here;
/// files reach the disk at the end of the last one, when every part has succeeded.
class Plugin {
  public:
    /// `host` outlives the plugin.
    explicit Plugin(PluginRunner& host) noexcept : host_(&host) {}
    Plugin(const Plugin&) = delete;
    Plugin& operator=(const Plugin&) = delete;
    virtual ~Plugin() = default;

    /// Sets "packageName", "packageVersion" or "outputPath". Other names are ignored.
    virtual void setParam(std::string_view name, std::string_view value);
    /// Copies what the plugin needs from the root of a configuration, which does not live on. Throws
    /// ConfigError.
    virtual void configure(const jv::JV& /*root*/) {}
    /// Takes the place of configure() when there is no configuration.
    virtual void configureDefaults() {}
    /// The four stages, each in a span of its name.
    virtual void run(const openapi::OpenAPI& root);

    [[nodiscard]] const std::string& outputPath() const noexcept { return outputPath_; }
    [[nodiscard]] const std::string& packageName() const noexcept { return packageName_; }
    [[nodiscard]] const std::string& packageVersion() const noexcept { return packageVersion_; }

  protected:
    /// First stage: takes over what was set from outside.
    virtual void configureSelf() {}
    /// Second stage: makes all parts and their files. Two that claim one path fail here.
    virtual void configureParts() {}
    /// Third stage: each part in its turn.
    virtual void collectData();
    /// Fourth stage: each part in its turn. Plugins save their project behind that.
    virtual void generateCode();

    void setPackage(std::string_view name, std::string_view version);
    /// Appends a part, which lives as long as the plugin. Parts take their turns in this order.
    template <typename T, typename... Arguments>
    T& addPart(Arguments&&... arguments) {
        auto part = std::make_unique<T>(std::forward<Arguments>(arguments)...);
        T& result = *part;
        parts_.push_back(std::move(part));
        return result;
    }

    [[nodiscard]] PluginRunner& host() const noexcept { return *host_; }
    /// The root of the document; null before run().
    [[nodiscard]] const openapi::OpenAPI* document() const noexcept { return document_; }

  private:
    PluginRunner* host_;
    std::string outputPath_;
    std::string packageName_;
    std::string packageVersion_;
    std::vector<std::unique_ptr<Part>> parts_;
    const openapi::OpenAPI* document_ = nullptr;
};

} // namespace specloom::openapi_generator
