#pragma once

#include "openapi/operation_ref.h"
#include "openapi_generator_server_spring/context.h"

#include <string>        // std::string
#include <string_view>   // std::string_view
#include <unordered_map> // std::unordered_map
#include <vector>        // std::vector

namespace specloom::openapi_generator::server_spring {

/// An argument of a method.
struct Argument {
    std::string annotation;
    std::string type;
    std::string name;
};

/// The expression for a value of a type that constructors and services give where nothing better is known:
/// `text` for a string, "new Pet()" for a record.
[[nodiscard]] std::string defaultValueOf(const SchemaTypeInfo& type, std::string_view text);

/// What a method takes and gives back.
struct Signature {
    std::vector<Argument> arguments;
    std::string resultType = "void";
    std::string resultAnnotation;
    std::string resultValue; ///< an expression of resultType; empty for "void"
    /// Qualified names of the classes of all but resultAnnotation, and of those in it.
    std::vector<std::string> imports;
    std::vector<std::string> resultImports;
};

/// The signatures of operations, made when they are first asked for: the issues that they give rise to are
/// reported once, however many classes have a method of an operation.
class Signatures {
  public:
    /// The context outlives this.
    explicit Signatures(Context& context) : context_(&context) {}

    [[nodiscard]] const Signature& of(const openapi::OperationRef& ref);
    /// The arguments of such a signature as they stand in a declaration, made once.
    [[nodiscard]] const std::string& declarationOf(const Signature& signature);

  private:
    Context* context_;
    std::unordered_map<const openapi::Operation*, Signature> signatures_;
    std::unordered_map<const Signature*, std::string> declarations_;
};

} // namespace specloom::openapi_generator::server_spring
