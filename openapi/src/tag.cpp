#include "openapi/tag.h"

namespace specloom::openapi {

ExternalDocumentation* Tag::createExternalDocs(Text url) {
    if (externalDocs_ != nullptr)
        throw std::runtime_error("External docs already exist");
    externalDocs_ = std::make_unique<ExternalDocumentation>(this, std::move(url));
    return externalDocs_.get();
}

} // namespace specloom::openapi
