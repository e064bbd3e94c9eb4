#include "openapi/operation_type.h"

#include <algorithm> // std::find
#include <stdexcept> // std::runtime_error

#include "foundation/message.h"

namespace specloom::openapi {

std::string_view operationKey(OperationType type) {
    const auto number = static_cast<std::size_t>(type);
    if (number >= operationKeys.size())
        throw std::runtime_error(formatMessage("invalid operation key {}", number));
    return operationKeys[number];
}

bool isOperationKey(std::string_view text) {
    return std::find(operationKeys.begin(), operationKeys.end(), text) != operationKeys.end();
}

} // namespace specloom::openapi
