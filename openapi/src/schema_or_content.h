#pragma once

#include "openapi/node.h"

#include <cstdint> // std::uint8_t

namespace specloom::openapi {

class MediaType;
class Schema;

/// How a parameter or header describes its value: not at all, by a schema, or by one media type
/// (OpenAPI 3.1.0, section 4.8.12.2).
class SchemaOrContent {
  public:
    enum class Mode : std::uint8_t { None = 0, Schema = 1, Content = 2 };

    [[nodiscard]] Mode mode() const { return mode_; }
    /// The schema or the reference to it; null unless the mode is Schema.
    [[nodiscard]] const Node* schemaNode() const { return mode_ == Mode::Schema ? node_.get() : nullptr; }
    /// The resolved schema, or null.
    [[nodiscard]] const Schema* schema() const;
    /// Null unless the mode is Content.
    [[nodiscard]] const MediaType* mediaType() const;
    /// The key of mediaType(); empty unless the mode is Content.
    [[nodiscard]] std::string_view mediaTypeName() const { return key_.view(); }

    // Each replaces what is there. The owner is the node that holds the description.
    Schema* createSchema(Node* owner);
    Reference* setSchemaReference(Node* owner, Node& target);
    MediaType* createMediaType(Node* owner, Text name);

  private:
    Mode mode_ = Mode::None;
    Text key_;
    NodePointer node_;
};

} // namespace specloom::openapi
