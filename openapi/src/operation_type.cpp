#include "openapi/operation_type.h"

#include "foundation/message.h"
#include "openapi/shape.h"

#include <algorithm> // std::find
#include <stdexcept> // std::runtime_error

#include <fmt/format.h> // fmt::format

namespace specloom::openapi {

static_assert(
    [] {
        std::size_t next = 0;
        for (const MemberShape& member : shape::pathItem)
            if (isOperation(member) && (next == operationKeys.size() || member.name != operationKeys[next++]))
                return false;
        return next == operationKeys.size();
    }(),
    "the operations of a path item are those of OperationType, in its order");

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
