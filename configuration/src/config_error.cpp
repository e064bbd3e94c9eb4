#include "configuration/config_error.h"

#include "jv/jv.h"

namespace specloom::configuration {

jv::Pos positionOf(const jv::JVError& error) noexcept {
    return error.value() == nullptr ? jv::Pos{} : error.value()->pos();
}

} // namespace specloom::configuration
