#include "configuration/config_file.h"

#include "foundation/message.h"
#include "jv/deser.h"

#include <utility> // std::move

#include <fmt/format.h>

namespace specloom::configuration {

void ConfigFile::load(std::string_view path, const FileSystem& files) {
    document_ = std::move(jv::loadDocument(files, path).document);
    const jv::JV* version = document_->lookup("/version");
    if (version == nullptr || !version->isString())
        throw ConfigFileError("Missing configuration version.", locationOf(document_->root()).pos);
    if (version->text() != "1.0")
        throw ConfigFileError(formatMessage("Unsupported configuration version: '{}'.", version->text()),
                              locationOf(version).pos);
}

const jv::JV* ConfigFile::commandSection(std::string_view name) const {
    const jv::JV* section = document_ ? document_->lookup(fmt::format("/commands/{}", name)) : nullptr;
    if (section != nullptr && !section->isObject())
        throw ConfigFileError(formatMessage("An object is expected for '{}'", name), jv::Pos{});
    return section;
}

const jv::JV* ConfigFile::customFormats() const {
    const jv::JV* formats = document_ ? document_->lookup("/openapi/custom_formats") : nullptr;
    if (formats != nullptr && !formats->isArray())
        throw ConfigFileError("An object is expected for '/openapi/custom_formats'", locationOf(formats).pos);
    return formats;
}

void ConfigFile::addCustomFormatsTo(openapi::SchemaFormatRegistry& formats) const {
    if (const jv::JV* custom = customFormats(); custom != nullptr)
        formats.addFromJV(*custom);
}

void readConfigFile(std::string_view path, const std::function<void(const ConfigFile&)>& apply,
                    const FileSystem& files) {
    ConfigFile file;
    try {
        file.load(path, files);
        apply(file);
    } catch (const jv::JVError& error) {
        throw ConfigFileError(Message(error), file.locationOf(error.value()).pos);
    }
}

} // namespace specloom::configuration
