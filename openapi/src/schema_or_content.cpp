#include "openapi/schema_or_content.h"

#include "openapi/media_type.h"
#include "openapi/reference.h"
#include "openapi/schema.h"

namespace specloom::openapi {

const Schema* SchemaOrContent::schema() const {
    return resolveTo<Schema>(schemaNode());
}

const MediaType* SchemaOrContent::mediaType() const {
    return mode_ == Mode::Content ? static_cast<const MediaType*>(node_.get()) : nullptr;
}

Schema* SchemaOrContent::createSchema(Node* owner) {
    node_ = std::make_unique<Schema>(owner);
    mode_ = Mode::Schema;
    key_ = Text();
    return static_cast<Schema*>(node_.get());
}

Reference* SchemaOrContent::setSchemaReference(Node* owner, Node& target) {
    node_ = target.createReference(owner);
    mode_ = Mode::Schema;
    key_ = Text();
    return static_cast<Reference*>(node_.get());
}

MediaType* SchemaOrContent::createMediaType(Node* owner, Text name) {
    node_ = std::make_unique<MediaType>(owner);
    mode_ = Mode::Content;
    key_ = std::move(name);
    return static_cast<MediaType*>(node_.get());
}

} // namespace specloom::openapi
