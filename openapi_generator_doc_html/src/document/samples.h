#pragma once

#include "openapi/operation_ref.h"

#include <memory>   // std::unique_ptr
#include <optional> // std::optional
#include <string>   // std::string
#include <vector>   // std::vector

// What the pages say about a document, as plain data.
namespace specloom::openapi_generator::doc_html {

struct CodeSample {
    std::string code;
    bool generated = false; ///< whether a value in it was made up, for the document has no example of it
};

/// The same request in several languages; absent where it was not asked for.
struct RequestSamples {
    std::optional<CodeSample> curl;
    std::optional<CodeSample> vanillaJs;
};

struct ResponseSample {
    std::string status; ///< as the document has it: a code, a range such as "4XX", or "default"
    CodeSample sample;
};

struct ResponseSchema {
    std::string status;
    std::string mediaType;
    std::string code; ///< the schema as JSON, with its references
};

struct SampleOptions {
    bool curl = true;
    bool vanillaJs = true;
    bool useRequestBodyExamples = true; ///< those of the document; else all bodies are made up
    bool useResponseExamples = true;
};

/// Code samples of the operations of a document. A value is, of these, the first that there is:
///   1. the `example`, or the first of the `examples` that holds a value, of a parameter or a media type,
///   2. the first example of the schema itself,
///   3. a value that is made up to fit the schema, the same in every run.
/// References are followed; an example that is kept elsewhere (`externalValue`) is none.
class Samples {
  public:
    /// The document outlives the samples.
    Samples(const openapi::OpenAPI& document, const SampleOptions& options);
    Samples(const Samples&) = delete;
    Samples& operator=(const Samples&) = delete;
    ~Samples();

    /// A body is that of the JSON media type, if there is one (jsonMediaType()). Throws std::runtime_error
    /// "No server found" when neither the operation nor its path item nor the document names one, and what
    /// jv_generator::Generator does.
    [[nodiscard]] RequestSamples request(const openapi::OperationRef& ref);
    /// Of each response that has JSON, in the order of the document. Throws what jv_generator::Generator
    /// does.
    [[nodiscard]] std::vector<ResponseSample> responses(const openapi::OperationRef& ref);
    /// Of each response and each of its media types that has a schema.
    [[nodiscard]] std::vector<ResponseSchema> responseSchemas(const openapi::OperationRef& ref);

  private:
    class Impl;

    std::unique_ptr<Impl> impl_;
};

} // namespace specloom::openapi_generator::doc_html
