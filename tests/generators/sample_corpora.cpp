// Makes sample values for every schema of documents that stands alone: those of the components, and of media
// types, parameters and headers.
//
//   sample_corpora COUNT FILE...
//
// writes a line to standard output for each schema, a JSON object with "document", "pointer", "values" and
// "fits" (how many of the values fit by jv_schema) or, in place of these two, with the "refusal"; and for
// each document that cannot be read one with its "failure".

#include "foundation/escapes.h"
#include "jv/json_writer.h"
#include "jv/jv_document.h"
#include "jv_generator/generator.h"
#include "jv_generator/json_schema.h"
#include "jv_schema/schema.h"
#include "openapi/header.h"
#include "openapi/media_type.h"
#include "openapi/node_visitor.h"
#include "openapi/parameter.h"
#include "test_support/read_tree.h"

#include <cstdio>    // stdout
#include <exception> // std::exception
#include <memory>    // std::unique_ptr
#include <optional>  // std::optional
#include <string>    // std::string
#include <utility>   // std::move
#include <vector>    // std::vector

#include <fmt/format.h>

namespace specloom {
namespace {

class Collector final : public openapi::NodeVisitHandler {
  public:
    using NodeVisitHandler::visit;
    void visit(const openapi::MediaType& node) override { add(node.schemaNode()); }
    void visit(const openapi::Parameter& node) override { add(node.value().schemaNode()); }
    void visit(const openapi::Header& node) override { add(node.value().schemaNode()); }
    void add(const openapi::Node* schema) {
        if (schema != nullptr && schema->source() != nullptr)
            schemas.push_back(schema);
    }

    std::vector<const openapi::Node*> schemas;
};

std::string textOf(std::unique_ptr<jv::JV> value) {
    jv::JVDocument document;
    document.setRoot(std::move(value));
    jv::JSONWriter writer;
    writer.write(document);
    return std::move(writer).output();
}

/// All schemas of a document, compiled as one: the instance is an object with the number of the schema as
/// key.
class Judge {
  public:
    explicit Judge(const std::vector<const openapi::Node*>& schemas) : bundle_(schemas) {
        const auto wrapper = jv::JVDocument::clone(bundle_.bundle());
        wrapper->remove("$ref");
        jv::JV& properties = *wrapper->setObject("properties");
        for (std::size_t i = 0; i < schemas.size(); ++i)
            properties.setObject(std::to_string(i))->setString("$ref", bundle_.reference(*schemas[i]));
        jv::schema::CompileOptions options;
        options.assertFormats = true;
        schema_ = jv::schema::Schema::compile(*wrapper, options);
    }

    [[nodiscard]] bool accepts(std::size_t schema, const jv::JV& value) const {
        const auto instance = jv::JV::newObject();
        instance->set(std::to_string(schema), jv::JVDocument::clone(value));
        return schema_->isValid(*instance);
    }

  private:
    jv_generator::JSONSchema bundle_;
    std::optional<jv::schema::Schema> schema_;
};

/// Members of the line about one schema.
std::string sample(const openapi::Node& schema, std::size_t number, int count, const Judge& judge) {
    std::string values;
    int fits = 0;
    try {
        jv_generator::Generator generator(schema);
        for (int i = 0; i < count; ++i) {
            std::unique_ptr<jv::JV> value = generator.generate();
            fits += judge.accepts(number, *value) ? 1 : 0;
            values += (i == 0 ? "" : ",") + textOf(std::move(value));
        }
    } catch (const std::exception& error) {
        return fmt::format("\"refusal\":{}", toJsonLiteral(error.what()));
    }
    return fmt::format("\"fits\":{},\"values\":[{}]", fits, values);
}

void sampleAll(const std::string& path, int count) {
    const test_support::ReadTree tree = test_support::readTree(path);
    if (tree.result == nullptr) {
        fmt::print("{{\"document\":{},\"failure\":{}}}\n", toJsonLiteral(path), toJsonLiteral(tree.refusal));
        return;
    }
    Collector collector;
    for (const auto& component : tree.result->root().components().schemas())
        collector.add(component.value.get());
    openapi::NodeVisitor(collector).visit(tree.result->root());
    if (collector.schemas.empty())
        return;
    const Judge judge(collector.schemas);
    for (std::size_t i = 0; i < collector.schemas.size(); ++i) {
        const openapi::Node& schema = *collector.schemas[i];
        fmt::print("{{\"document\":{},\"pointer\":{},{}}}\n", toJsonLiteral(path),
                   toJsonLiteral(schema.source()->pointer()), sample(schema, i, count, judge));
    }
}

} // namespace
} // namespace specloom

int main(int count, char** arguments) {
    for (int i = 2; i < count; ++i)
        specloom::sampleAll(arguments[i], std::stoi(arguments[1]));
}
