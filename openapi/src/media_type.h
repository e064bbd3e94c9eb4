#pragma once

#include "openapi/encoding.h"
#include "openapi/examples.h"
#include "openapi/schema.h"

namespace specloom::openapi {

/// Media Type Object (OpenAPI 3.1.0, section 4.8.14).
class MediaType final : public Node {
  public:
    explicit MediaType(Node* parent) : Node(parent, NodeType::MediaType) {}

    /// The resolved schema, or null.
    [[nodiscard]] const Schema* schema() const { return resolveTo<Schema>(schema_.get()); }
    [[nodiscard]] const Node* schemaNode() const { return schema_.get(); }
    /// Each replaces what is there.
    Schema* createSchema();
    Reference* setSchemaReference(Node& target);

    [[nodiscard]] const Examples& examples() const { return examples_; }
    [[nodiscard]] Examples& examples() { return examples_; }

    /// All of them are Encoding.
    [[nodiscard]] const NodeMap& encodings() const { return encodings_; }
    /// Throws std::runtime_error "Encoding already exists".
    Encoding* createEncoding(Text name);

  private:
    NodePointer schema_;
    Examples examples_;
    NodeMap encodings_;
};

} // namespace specloom::openapi
