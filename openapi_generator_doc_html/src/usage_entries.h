#pragma once

#include "foundation/text_tables.h"
#include "openapi_generator_doc_html/naming.h"
#include "openapi_generator_doc_html/texts.h"
#include "openapi_generator_doc_html/urls.h"
#include "templating/forms.h"

#include <string>      // std::string
#include <string_view> // std::string_view
#include <vector>      // std::vector

namespace specloom::openapi_generator::doc_html {

/// The elements that link to what is used and to what uses it, each on a line of its own. There are many more
/// of them than of what they link to, so each is made once for a locale.
class UsageEntries {
  public:
    /// All outlive the object.
    UsageEntries(const DocumentNames& names, const Texts& texts, const Urls& urls, templating::Forms& forms);

    /// The one of a schema that an operation uses. Good until the next call for another locale.
    [[nodiscard]] const std::string& ofSchema(std::string_view name);
    /// The one of an operation that uses a schema: labelled by its summary, or else by its method and path.
    [[nodiscard]] const std::string& ofOperation(const openapi::OperationRef& ref);

  private:
    void enterLocale();

    const DocumentNames* names_;
    const Texts* texts_;
    const Urls* urls_;
    templating::Forms* forms_;
    Locale locale_; ///< of what is made
    TextMap<std::string> schemas_;
    std::vector<std::string> operations_; ///< empty where it is not made yet
};

} // namespace specloom::openapi_generator::doc_html
