#include "openapi_generator_server_spring/controller_constants.h"

#include <string> // std::string

namespace specloom::openapi_generator::server_spring {
namespace {

/// Of annotations: each text and number stands behind "= ", "=" or, alone, a bracket.
std::size_t constantsOf(std::string_view annotations) noexcept {
    std::size_t count = 0;
    for (std::size_t at = annotations.find_first_of("=("); at < annotations.size() - 1;
         at = annotations.find_first_of("=(", at + 1))
        count += annotations[at + 1] == '"' || (annotations[at] == '=' && annotations[at + 1] == ' ') ? 1 : 0;
    return count;
}

/// The reference to the method of the service, and its name with its descriptor.
constexpr std::size_t constantsOfCall = 2;

bool isGeneric(std::string_view type) noexcept {
    return type.find('<') != std::string_view::npos;
}

} // namespace

std::size_t ControllerConstants::boundFor(const Signature& signature) noexcept {
    constexpr std::size_t textsOfMethod = 5;   // both names, the path, the descriptor in both its forms
    constexpr std::size_t textsOfArgument = 3; // its name, the type in both its forms
    std::size_t bound = constantsOfCall + textsOfMethod + constantsOf(signature.resultAnnotation);
    for (const Argument& argument : signature.arguments)
        bound += textsOfArgument + constantsOf(argument.annotation);
    return bound;
}

void ControllerConstants::addAnnotations(std::string_view text) {
    if (annotations_.emplace(text).second)
        entries_ += constantsOf(text);
}

void ControllerConstants::add(const openapi::OperationRef& ref, std::string_view methodName,
                              std::string_view serviceMethodName, const Signature& signature) {
    texts_.emplace(methodName);
    texts_.emplace(serviceMethodName);
    texts_.emplace(ref.path);
    entries_ += constantsOfCall;
    std::string descriptor = signature.resultType + " ";
    for (const Argument& argument : signature.arguments) {
        descriptor.append(argument.type) += ' ';
        texts_.insert(argument.name);
        addAnnotations(argument.annotation);
        if (texts_.insert(argument.type).second && isGeneric(argument.type))
            ++entries_; // with and without its elements
    }
    addAnnotations(signature.resultAnnotation);
    if (texts_.insert(descriptor).second && isGeneric(descriptor))
        ++entries_;
}

} // namespace specloom::openapi_generator::server_spring
