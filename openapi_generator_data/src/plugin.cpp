#include "openapi_generator_data/plugin.h"

#include "configuration/section.h"
#include "foundation/file_system.h"
#include "foundation/message.h"
#include "foundation/validators/validators.h"
#include "jv/json_writer.h"
#include "jv/jv_pointer.h"
#include "jv/tree_builder.h"
#include "openapi_generator/config_error.h"
#include "openapi_generator/issue.h"
#include "openapi_generator/plugin_runner.h"
#include "openapi_generator_data/pattern_warnings.h"

#include <memory>    // std::make_unique
#include <optional>  // std::optional
#include <stdexcept> // std::runtime_error
#include <utility>   // std::move

namespace specloom::openapi_generator::data {

namespace {

constexpr std::int32_t indent = 2;
/// After so many it is known how large they are.
constexpr std::uint64_t valuesToTell = 20;

/// The same for every value beyond what can be made.
[[nodiscard]] std::uint64_t countOf(const number::Number& quantity) {
    constexpr std::uint64_t most = jv_generator::mostGenerated + 1;
    if (quantity.kind() == number::NumberKind::Big || quantity.compare(most) >= 0)
        return most;
    return static_cast<std::uint64_t>(quantity.toDouble());
}

} // namespace

void Plugin::setParam(std::string_view name, std::string_view value) {
    if (name == "pointer") {
        if (!isJSONPointer(value))
            throw ConfigError("Invalid JSON pointer", nullptr);
        pointer_ = value;
    } else if (name == "mimeType") {
        if (!isMediaType(value))
            throw ConfigError("Invalid MIME type", nullptr);
        mimeType_ = value;
    } else if (name == "quantity") {
        const std::optional<number::Number> quantity = number::Number::tryParse(value);
        if (!quantity || quantity->compare(0) <= 0)
            throw ConfigError("Quantity is not a positive number", nullptr);
        quantity_ = *quantity;
    } else {
        openapi_generator::Plugin::setParam(name, value);
    }
}

void Plugin::configure(const jv::JV& root) {
    static_cast<void>(configuration::pluginSection(root, "data")); // refuses other kinds
    if (const jv::JV* section = root.resolve({"commands", "generate", "data"}))
        generator_.config().readFrom(*section);
}

void Plugin::configureDefaults() {
    jv_generator::GeneratorConfig& config = generator_.config();
    config.setNumberRange(-10, 10);
    config.setLengthRange(0, 10);
    config.setItemsRange(0, 10);
    config.setPropertiesRange(0, 10);
}

void Plugin::configureSelf() {
    schema_ = host().nodeAtPointer(pointer_);
    if (schema_ == nullptr)
        throw std::runtime_error(formatMessage("Schema not found at {}", pointer_));
    const openapi::Node* resolved = schema_->resolve();
    if (resolved == nullptr || resolved->type() != openapi::NodeType::Schema)
        throw std::runtime_error(formatMessage("Node at {} is not a schema", pointer_));
}

void Plugin::collectData() {
    generator_.setSchema(*schema_);
    format_ = jv::formatFromPath(outputPath());
    const bool isSingle = quantity_.compare(1) <= 0;
    if (!isSingle)
        generator_.requireRoomFor(countOf(quantity_));
    if (!isSingle && format_ == jv::DocumentFormat::Json)
        output_ = valuesOneByOne();
    else
        output_ = valuesAtOnce(isSingle);
}

/// An array of which one value is held at a time.
std::string Plugin::valuesOneByOne() {
    jv::JSONWriter writer;
    writer.setIndent(indent);
    writer.startArray();
    jv::TreeBuilder value(std::make_unique<jv::JVDocument>());
    for (std::uint64_t i = 0; quantity_.compare(i) > 0; ++i) {
        value.restart();
        generator_.generate(value);
        writer.writeItem(value.document());
        if (i == valuesToTell)
            writer.expectItems(countOf(quantity_));
    }
    writer.endArray();
    return std::move(writer).output();
}

std::string Plugin::valuesAtOnce(bool isSingle) {
    jv::TreeBuilder values(std::make_unique<jv::JVDocument>());
    if (!isSingle)
        values.startArray({});
    for (std::uint64_t i = 0; i == 0 || quantity_.compare(i) > 0; ++i)
        generator_.generate(values);
    if (!isSingle)
        values.end();
    return jv::documentToText(values.document(), {format_.value_or(jv::DocumentFormat::Json), indent, {}});
}

void Plugin::generateCode() {
    if (!format_)
        throw std::runtime_error(formatMessage("Cannot guess format for {}", outputPath()));
    host().fileSystem().createDirectories(outputPath());
    host().fileSystem().writeFile(outputPath(), output_);
    reportIssues(warningsOfPatterns(generator_.usedPatterns()));
}

} // namespace specloom::openapi_generator::data
