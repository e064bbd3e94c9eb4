#include "openapi/writer.h"

#include "openapi/writer/object_writer.h"

#include <utility> // std::move

namespace specloom::openapi {

namespace {

/// The order of the names in `required`, which the tree keeps as a set.
[[nodiscard]] std::vector<std::string_view> requiredNames(const Node& schema) {
    std::vector<std::string_view> names;
    if (schema.source() == nullptr || !schema.source()->isObject())
        return names;
    const jv::JV* required = schema.source()->get("required");
    if (required == nullptr || !required->isArray())
        return names;
    for (const jv::JV* name : required->elements()) {
        if (name->isString())
            names.push_back(name->text());
    }
    return names;
}

} // namespace

Writer::Writer(const ReadResult& result) : valueSource_(&result.source()) {
    keyOrderOfNode_ = [&result](const Node& node) { return result.keyOrderOf(node); };
    keyOrderOfField_ = [&result](const Node& node, std::string_view key) {
        const bool isNameSet = node.type() == NodeType::Schema && key == "required";
        return isNameSet ? requiredNames(node) : result.keyOrderOf(node, key);
    };
}

void Writer::setKeyOrders(NodeKeyOrder ofNode, FieldKeyOrder ofField) {
    keyOrderOfNode_ = std::move(ofNode);
    keyOrderOfField_ = std::move(ofField);
}

std::unique_ptr<jv::JVDocument> Writer::write(const OpenAPI& root) const {
    auto output = std::make_unique<jv::JVDocument>();
    const WriteContext context{.output = *output,
                               .keyOrderOfNode = keyOrderOfNode_,
                               .keyOrderOfField = keyOrderOfField_,
                               .valueSource = valueSource_,
                               .isVersion30 = root.isVersion30(),
                               .isVersion31 = root.isVersion31(),
                               .constFromEnum = constFromEnum_,
                               .booleanSchemas = booleanSchemas_};
    output->setRoot(writeNode(context, root));
    return output;
}

void writeFile(const ReadResult& result, std::string_view path) {
    jv::saveDocument(*Writer(result).write(result.root()), path);
}

void writeTree(const OpenAPI& root, std::string_view path, jv::DocumentFormat format) {
    jv::saveDocument(*Writer().write(root), path, {.format = format, .indent = 2, .sorter = {}});
}

} // namespace specloom::openapi
