#include "openapi_generator_doc_html/document/description.h"

#include "markdown/html.h"

namespace specloom::openapi_generator::doc_html {

std::string renderDescription(std::string_view description) {
    constexpr unsigned levelsOfPages = 3;
    return markdown::toHtml(description,
                            {.headingShift = levelsOfPages, .headingIdPrefix = {}, .tables = true});
}

} // namespace specloom::openapi_generator::doc_html
