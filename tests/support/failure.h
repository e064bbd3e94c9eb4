#pragma once

#include <exception> // std::exception
#include <string>    // std::string

namespace specloom::test_support {

/// The text of the exception with which `action` ends; empty when it ends well. What is no `Error` passes.
template <typename Error = std::exception, typename Action>
[[nodiscard]] std::string failureOf(Action action) {
    try {
        static_cast<void>(action());
    } catch (const Error& error) {
        return error.what();
    }
    return "";
}

} // namespace specloom::test_support
