#include "openapi/media_type.h"

#include "openapi/node_children.h"

namespace specloom::openapi {

Schema* MediaType::createSchema() {
    schema_ = std::make_unique<Schema>(this);
    return static_cast<Schema*>(schema_.get());
}

Reference* MediaType::setSchemaReference(Node& target) {
    schema_ = target.createReference(this);
    return static_cast<Reference*>(schema_.get());
}

Encoding* MediaType::createEncoding(Text name) {
    return createChild<Encoding>(encodings_, this, std::move(name), "Encoding already exists");
}

} // namespace specloom::openapi
