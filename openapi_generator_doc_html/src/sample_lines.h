#pragma once

#include "openapi_generator_doc_html/configuration.h"
#include "openapi_generator_doc_html/document/samples.h"
#include "openapi_generator_doc_html/naming.h"
#include "openapi_generator_doc_html/texts.h"
#include "templating/forms.h"

#include <memory> // std::unique_ptr
#include <string> // std::string
#include <vector> // std::vector

namespace specloom::openapi_generator::doc_html {

/// The elements with the code samples of an operation, on lines of their own; each empty when there is none.
struct OperationSamples {
    std::string requestExamples;
    std::string responseExamples;
    std::string responseSchemas;
};

/// Writes the elements of code samples. What does not depend on the language is made once.
class SampleLines {
  public:
    /// All outlive the object.
    SampleLines(const openapi::OpenAPI& document, const Configuration& configuration,
                const DocumentNames& names, const Texts& texts, templating::Forms& forms);

    /// Throws what Samples throws.
    [[nodiscard]] OperationSamples linesOf(const openapi::OperationRef& ref);

  private:
    /// Attributes of the element of a sample, and what they leave out.
    struct Line {
        std::string attributes; ///< but for the code
        bool generated = false;
        std::string code; ///< its attribute
    };
    struct Lines {
        std::vector<Line> requests, responses, schemas;
    };

    [[nodiscard]] Lines makeLines(const openapi::OperationRef& ref);
    [[nodiscard]] std::string attributesOf(const Line& line) const;

    const Configuration* configuration_;
    const DocumentNames* names_;
    const Texts* texts_;
    Samples samples_;
    templating::Forms* forms_;
    /// By the place of the operation in the document, when there is more than one locale.
    std::vector<std::unique_ptr<const Lines>> made_;
};

} // namespace specloom::openapi_generator::doc_html
