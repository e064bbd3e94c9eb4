#pragma once

#include <functional>  // std::function
#include <string>      // std::string
#include <string_view> // std::string_view

#include <nlohmann/json_fwd.hpp>

namespace specloom::templating {

/// Fills a template in the language of inja with `data`.
///
/// What stands in the data is put in as it is: it is neither taken for template code nor escaped nor checked
/// for being UTF-8. Line ends of the template are kept, be they line feeds or carriage returns with line
/// feeds; a line that holds nothing but statements ({% ... %}) or comments ({# ... #}) and blanks leaves no
/// trace. There are no line statements: "##" at the start of a line is text. Files are never looked for.
///
/// Throws an exception derived from std::runtime_error, whose text names the fault and its place in the
/// template, when the template is faulty or asks for a value that the data does not hold.
[[nodiscard]] std::string render(std::string_view text, const nlohmann::json& data);

/// The text of the template of a name; with a null data pointer when there is none.
using TemplateSource = std::function<std::string_view(std::string_view name)>;

/// The same for the template of that name in `source`, which also gives the templates that it extends and
/// includes. Throws std::runtime_error "Template not found: " and the name for one that is not there.
[[nodiscard]] std::string renderNamed(std::string_view name, const TemplateSource& source,
                                      const nlohmann::json& data);

} // namespace specloom::templating
