#pragma once

#include "foundation/text_tables.h"
#include "openapi_generator_server_spring/signature.h"

#include <cstddef>     // std::size_t
#include <string_view> // std::string_view

namespace specloom::openapi_generator::server_spring {

/// The most entries of the constant pool of a class file (The Java Virtual Machine Specification,
/// section 4.1): their number and one has 16 bits.
inline constexpr std::size_t mostConstants = 65534;

/// The constant pool of a controller. That is the largest of the classes of a group: what other classes have
/// for an operation is less, or the same.
///
/// The number is not less than what compilers make of the class, also with the names of arguments and with
/// what debuggers want, and not much more.
class ControllerConstants {
  public:
    /// No less than what a method that hands an operation on to the service adds, whatever it shares with
    /// others.
    [[nodiscard]] static std::size_t boundFor(const Signature& signature) noexcept;
    /// What there is for no method alone.
    static constexpr std::size_t fixed = 200;

    /// Adds those of such a method.
    void add(const openapi::OperationRef& ref, std::string_view methodName,
             std::string_view serviceMethodName, const Signature& signature);
    [[nodiscard]] std::size_t count() const noexcept { return entries_ + texts_.size(); }

  private:
    void addAnnotations(std::string_view text);

    std::size_t entries_ = fixed;
    TextSet annotations_;
    TextSet texts_; ///< each stands there once
};

} // namespace specloom::openapi_generator::server_spring
