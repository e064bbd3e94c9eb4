// Sample values: the input is an array of schemas, which refer to one another as S0, S1 and so on. Values of
// the first one fit it, formats included, or one line says where and why there are none; and the same schema
// gives the same values.

#include "fuzz/check.h"
#include "fuzz/tree_check.h"
#include "jv/json_writer.h"
#include "jv_generator/generator.h"
#include "jv_generator/json_schema.h"
#include "jv_schema/schema.h"

#include <array>     // std::array
#include <stdexcept> // std::runtime_error
#include <utility>   // std::move

namespace {

namespace fuzz = specloom::fuzz;
namespace jv_generator = specloom::jv_generator;
using specloom::jv::JV;
using specloom::jv::JVDocument;
using specloom::jv::schema::CompileOptions;
using specloom::jv::schema::Schema;

constexpr int values = 3;
/// Schemas that ask for more take too long to be of use here.
constexpr std::uint64_t largestValue = 20'000;

/// A document with these schemas among its components.
std::unique_ptr<JVDocument> documentOf(const JV& schemas, bool isOld) {
    auto document = std::make_unique<JVDocument>();
    JV& root = *document->makeRoot(specloom::jv::Kind::Object);
    root.setString("openapi", isOld ? "3.0.3" : "3.1.0");
    JV& info = *root.setObject("info");
    info.setString("title", "t");
    info.setString("version", "1");
    root.setObject("paths");
    JV& components = *root.setObject("components")->setObject("schemas");
    std::size_t count = 0;
    for (const JV* schema : schemas.elements()) {
        const std::string name = "S" + std::to_string(count++);
        if (schema->isObject() || (schema->isBoolean() && !isOld))
            components.set(name, JVDocument::clone(*schema));
    }
    document->reindex();
    return document;
}

std::string textOf(std::unique_ptr<JV> value) {
    JVDocument document;
    document.setRoot(std::move(value));
    specloom::jv::JSONWriter writer;
    writer.write(document);
    return std::move(writer).output();
}

void checkRefusal(std::string_view text) {
    constexpr std::array<std::string_view, 5> beginnings = {
        "No value fits the schema at /components/schemas/",
        "No value was found for the schema at /components/schemas/",
        "The schema at /components/schemas/",
        "Every value of the schema at /components/schemas/",
        "The values of the schema at /components/schemas/",
    };
    bool isKnown = false;
    for (const std::string_view beginning : beginnings)
        isKnown |= text.starts_with(beginning);
    fuzz::require(isKnown && !text.ends_with(": ") && text.find('\n') == std::string_view::npos,
                  "a refusal is one line with a pointer and a reason: " + std::string(text));
}

/// The values, each held against the schema, and the refusal if there is one.
std::string sample(const specloom::openapi::Node& node) {
    std::string text;
    try {
        jv_generator::Generator generator;
        generator.setSchema(node);
        generator.requireRoomFor(jv_generator::mostGenerated / largestValue);
        const jv_generator::JSONSchema bundle(node);
        CompileOptions options;
        options.assertFormats = true;
        const Schema schema = Schema::compile(bundle.bundle(), options);
        for (int i = 0; i < values; ++i) {
            std::unique_ptr<JV> value = generator.generate();
            const bool fits = schema.isValid(*value);
            text += textOf(std::move(value)) + '\n';
            fuzz::require(fits, "a value fits its schema: " + text);
        }
    } catch (const std::runtime_error& error) {
        checkRefusal(error.what());
        text += error.what();
    }
    return text;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view input = fuzz::textOf(data, size);
    const auto schemas = fuzz::readIfGood(input, specloom::jv::DocumentFormat::Json);
    if (schemas == nullptr || !schemas->root()->isArray())
        return 0;
    const bool isOld = fuzz::drawFrom(input) % 4 == 0;
    const auto document = fuzz::readIfGood(documentOf(*schemas->root(), isOld));
    const auto* node = document == nullptr ? nullptr : document->nodeAtPointer("/components/schemas/S0");
    if (node == nullptr)
        return 0;
    const std::string made = sample(*node);
    fuzz::require(sample(*node) == made, "the same schema gives the same values");
    return 0;
}
