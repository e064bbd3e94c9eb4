#pragma once

#include "openapi/node.h"
#include "openapi/parameter.h"

#include <optional>    // std::optional
#include <string>      // std::string
#include <string_view> // std::string_view
#include <vector>      // std::vector

namespace specloom::openapi_generator::doc_html {

struct Constraint {
    std::string_view name; ///< the keyword, such as "minLength"
    std::string number;    ///< a JSON number
};

/// A row of a table: a property of an object, a parameter, or a body as a whole.
struct Property {
    std::string name;
    std::string type; ///< typeText()
    bool required = false;
    bool deprecated = false;
    /// Those of `minimum`, `maximum`, `minLength`, `maxLength`, `minItems`, `maxItems`, `minProperties` and
    /// `maxProperties` that are there, in this order.
    std::vector<Constraint> constraints;
    /// The values of `enum`, or the one of `const`: texts as they are, others as JSON.
    std::vector<std::string> enumeration;
    std::optional<std::string> description; ///< Markdown, as the document has it
    /// The schema of `components` that tells about the value, or about the items of the array.
    std::optional<std::string> resource;
    /// Those of an object that is described in place, or of the items of such an array, and so on; what a
    /// resource tells is not among them.
    std::vector<Property> properties;
};

/// So many tables stand within one another; a schema that goes deeper ends there.
inline constexpr std::size_t deepestPropertyTable = 16;

/// The properties of a schema, or of a reference to one, and those that the members of its `allOf` add, in
/// the order of the document; of an array, those of its items. A property that several of them describe comes
/// once, as the first does, and is required when one of them says so. None for null.
[[nodiscard]] std::vector<Property> propertiesOf(const openapi::Node* schema);

/// The row of a parameter; a parameter with `content` is described by the schema of its media type.
[[nodiscard]] Property propertyOf(const openapi::Parameter& parameter);

/// The row of a value that has no name, such as a body. `schema` may be null.
[[nodiscard]] Property propertyOf(const openapi::Node* schema);

} // namespace specloom::openapi_generator::doc_html
