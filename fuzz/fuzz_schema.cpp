// JSON Schema: the input is an array of a schema and instances. What is decided is also explained, each error
// leads to a value, and a schema says the same of a copy.

#include "fuzz/check.h"
#include "jv/json_reader.h"
#include "jv_schema/schema.h"

#include <optional> // std::optional

namespace {

using specloom::fuzz::require;
using specloom::jv::JV;
using specloom::jv::JVDocument;
using specloom::jv::schema::CompileError;
using specloom::jv::schema::CompileOptions;
using specloom::jv::schema::Draft;
using specloom::jv::schema::Schema;

std::optional<Schema> compile(const JV& schema, std::uint64_t draw) {
    constexpr Draft drafts[] = {Draft::D4, Draft::D6, Draft::D7, Draft::D2019, Draft::D2020};
    CompileOptions options;
    options.defaultDraft = drafts[draw % 5];
    options.assertFormats = draw % 2 == 0;
    try {
        return Schema::compile(schema, options);
    } catch (const CompileError& error) {
        require(std::string_view(error.what()).ends_with(error.location()), "a fault says where it is");
        return std::nullopt;
    }
}

void check(const Schema& schema, const JV& instance) {
    JVDocument document;
    document.setRoot(JVDocument::clone(instance));
    const auto errors = schema.validate(*document.root());
    require(errors.empty() == schema.isValid(instance), "what is invalid has a reason");
    for (const auto& error : errors) {
        require(!error.message.empty() && error.schemaLocation.find('#') != std::string::npos,
                "an error says what is wrong");
        require(document.lookup(error.instancePointer) != nullptr, "an error leads to a value");
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view input = specloom::fuzz::textOf(data, size);
    const auto document = specloom::fuzz::readIfGood(input, specloom::jv::DocumentFormat::Json);
    if (document == nullptr || !document->root()->isArray() || document->root()->size() == 0)
        return 0;
    const auto elements = std::as_const(*document->root()).elements();
    if (const auto schema = compile(*elements[0], specloom::fuzz::drawFrom(input))) {
        for (const JV* instance : elements.subspan(1))
            check(*schema, *instance);
    }
    return 0;
}
