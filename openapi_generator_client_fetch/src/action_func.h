#pragma once

#include "code_morph_typescript/source_file.h"
#include "openapi/operation_ref.h"
#include "openapi/parameter.h"
#include "openapi_generator/part.h"

#include <functional>  // std::less
#include <map>         // std::map
#include <optional>    // std::optional
#include <string>      // std::string
#include <string_view> // std::string_view

namespace specloom::openapi_generator::client_fetch {

/// A type of src/types.ts.
struct NamedType {
    std::string name;
    /// The naming convention of its keys, such as "snake", where they have to be converted.
    std::optional<std::string> keyCase;
};

/// The function of src/actions.ts that stands for an operation. It builds the URL and the headers; it ends
/// there, and the call is to be added by hand.
class ActionFunc final : public Part {
  public:
    /// `file` and what `ref` refers to outlive the part.
    ActionFunc(code_morph::typescript::SourceFile& file, const openapi::OperationRef& ref)
        : file_(&file), path_(ref.path), operation_(ref.operation) {}

    void collectData() override;
    void generateCode() override;

    // The plugin makes no types and sets none of these yet.

    void setRequestType(const NamedType* type) noexcept { requestType_ = type; }
    void setResponseType(const NamedType* type) noexcept { responseType_ = type; }
    void setJsonResponse(bool isJsonResponse) noexcept { isJsonResponse_ = isJsonResponse; }
    void setNeedsAuthorization(bool isNeeded) noexcept { needsAuthorization_ = isNeeded; }

  private:
    using Parameters = std::map<std::string_view, const openapi::Parameter*, std::less<>>;

    void collectParameter(const openapi::Parameter& parameter);
    void addImports();
    void addQuery(code_morph::typescript::Function& function) const;
    void addBody(code_morph::typescript::Function& function);
    void addHeaders(code_morph::typescript::Function& function) const;
    [[nodiscard]] bool hasParams() const noexcept { return !parameters_.empty() || requestType_ != nullptr; }
    [[nodiscard]] std::string docComment() const;

    code_morph::typescript::SourceFile* file_;
    std::string path_;
    const openapi::Operation* operation_;
    std::string name_;
    bool hasQueryParams_ = false;
    Parameters parameters_; ///< of one name in several places, that of the query
    Parameters pathParameters_;
    std::map<std::string_view, std::string, std::less<>>
        headerParameters_; ///< how `params` is asked for each
    const NamedType* requestType_ = nullptr;
    const NamedType* responseType_ = nullptr;
    bool isJsonResponse_ = false;
    bool needsAuthorization_ = false;
};

} // namespace specloom::openapi_generator::client_fetch
