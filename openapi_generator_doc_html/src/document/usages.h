#pragma once

#include "openapi/operation_ref.h"

#include <memory>      // std::unique_ptr
#include <string>      // std::string
#include <string_view> // std::string_view
#include <vector>      // std::vector

namespace specloom::openapi_generator::doc_html {

/// Which schemas of `components` each operation uses, directly or by what it refers to: parameters, bodies,
/// responses, headers, callbacks, other schemas, and those that a discriminator maps to.
///
/// Found once, in time in proportion to the document and to what there is to tell.
class Usages {
  public:
    /// The document outlives the result.
    explicit Usages(const openapi::OpenAPI& document);
    Usages(const Usages&) = delete;
    Usages& operator=(const Usages&) = delete;
    ~Usages();

    /// The names of the schemas that an operation uses, in their order among the components.
    [[nodiscard]] std::vector<std::string> schemasOf(const openapi::OperationRef& ref) const;
    /// The operations that use a schema, in the order of openapi::operationsOf(); none for a name that is
    /// not there.
    [[nodiscard]] std::vector<openapi::OperationRef> operationsOf(std::string_view schema) const;

  private:
    struct Tables;

    std::unique_ptr<const Tables> tables_;
};

} // namespace specloom::openapi_generator::doc_html
