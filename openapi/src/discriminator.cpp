#include "openapi/discriminator.h"

namespace specloom::openapi {

void Discriminator::setMapping(Text value, Text schema) {
    if (Text* present = mapping_.find(value.view()); present != nullptr)
        *present = std::move(schema);
    else
        mapping_.add(std::move(value), std::move(schema));
}

} // namespace specloom::openapi
