#pragma once

#include "openapi_generator_doc_html/document/properties.h"
#include "openapi_generator_doc_html/texts.h"
#include "openapi_generator_doc_html/urls.h"
#include "templating/forms.h"

#include <cstddef> // std::size_t
#include <string>  // std::string
#include <vector>  // std::vector

namespace specloom::openapi_generator::doc_html {

/// Writes the elements of properties and what stands in them, each on lines of its own.
class PropertyLines {
  public:
    /// All outlive the object.
    PropertyLines(Texts& texts, const Urls& urls, templating::Forms& forms);

    /// The attributes of a property, a parameter or a body: its type, its constraints, the resource that it
    /// links to. A name that is empty is left out.
    [[nodiscard]] std::string attributesOf(const Property& property) const;
    /// Its description and the properties in it, which stand at `indentation` blanks.
    [[nodiscard]] std::string contentOf(const Property& property, std::size_t indentation);
    /// The elements of properties for the slot "properties".
    [[nodiscard]] std::string linesOf(const std::vector<Property>& properties, std::size_t indentation);

  private:
    void append(const std::vector<Property>& properties, std::size_t indentation, std::string& out);
    void appendContent(const Property& property, std::size_t indentation, std::string& out);

    Texts* texts_;
    const Urls* urls_;
    templating::Forms* forms_;
};

} // namespace specloom::openapi_generator::doc_html
