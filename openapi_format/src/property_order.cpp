#include "openapi_format/property_order.h"

#include "openapi_format/messages.h"

#include <stdexcept> // std::runtime_error

namespace specloom::openapi_format {

PropertyOrder::Mode PropertyOrder::mode() const {
    if (!mode_)
        throw std::runtime_error(message::orderNotSet);
    return *mode_;
}

const std::vector<std::string>& PropertyOrder::keys() const {
    if (mode_ != Mode::Fixed)
        throw std::runtime_error(message::orderNotFixed);
    return keys_;
}

} // namespace specloom::openapi_format
