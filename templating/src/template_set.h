#pragma once

#include "foundation/embedded_file.h"
#include "foundation/message.h"
#include "jv/jv.h"

#include <cstddef>     // std::size_t
#include <functional>  // std::function
#include <memory>      // std::unique_ptr
#include <span>        // std::span
#include <stdexcept>   // std::runtime_error
#include <string>      // std::string
#include <string_view> // std::string_view
#include <variant>     // std::variant
#include <vector>      // std::vector

namespace specloom::templating {

/// A fault of a template, or of the data for what the template asks of it. Its text is
///   "Template NAME, line L, column C: REASON"
/// where the name is that of the template that holds the fault, be it included, extended or rendered. Lines
/// and columns count from 1, columns in bytes. A fault of a call whose reason does not come from the template
/// language has the place of the expression or statement around it; a literal that cannot be read has none.
class TemplateError final : public std::runtime_error {
  public:
    explicit TemplateError(const Message& message) : std::runtime_error(message.composed()) {}
};

/// A function that templates call by its name, with this many arguments and no others.
struct Function {
    std::string name;
    std::size_t parameterCount = 1;
    /// It returns a text, or whether a condition holds. What it throws becomes the reason of a TemplateError;
    /// std::bad_alloc stays what it is.
    std::function<std::variant<std::string, bool>(std::span<const std::string_view> arguments)> call;
};

/// Templates in the language of inja, which include and extend one another by name.
///
/// What stands in the data is put in as it is: it is neither taken for template code nor escaped nor checked
/// for being UTF-8. Line ends of a template are kept, be they line feeds or carriage returns with line feeds;
/// a line that holds nothing but statements ({% ... %}) or comments ({# ... #}) and spaces leaves no trace.
/// There are no line statements: "##" at the start of a line is text. Files are never looked for. A template
/// cannot include itself, nor through others, so that rendering nests no deeper than the templates do.
///
/// Beside the functions of the language, every template has those of foundation/escapes.h, case_style.h,
/// printable.h and strings.h that make a text of a text, under the names that they have there:
///   escapeHtml, escapeHtmlDoubleQuoted, escapeSingleQuoted, escapeDoubleQuoted, escapeMarkdown, escapeTap,
///   printable, printableAtLineStart, trim, trimLines,
///   toCamelCase, toConstCase, toKebabCase, toPascalCase, toHeaderCase, toSnakeCase,
/// and, made of them,
///   toJsonLiteral        escapeDoubleQuoted() in double quotes,
///   toJavaScriptLiteral  escapeSingleQuoted() in single quotes.
/// These read their first argument and ignore others. An argument of any function that is no string, null
/// and numbers included, is a fault with the reason "type must be string, but is " and the type.
///
/// Every set has the template html.jinja, the frame of a page of HTML: it takes "title" from the data, its
/// styles from html_styles.jinja, which the set must have, and what the page shows from the block "content".
///
/// What it costs: a template is parsed when it is rendered for the first time, together with those that it
/// names, and never again. Rendering copies no templates, but the data once. It copies what it prints; a
/// loop copies its list, and each element for its turn; an include copies the variables of the
/// loops around it, so what is included for each element of a long list should not stand in a loop around
/// that list. What functions return is kept until the rendering ends, so texts that are needed in large
/// numbers are better escaped where the data are made.
///
/// One thread. A function may render templates of the same set.
class TemplateSet {
  public:
    using Table = std::span<const EmbeddedFile>;

    /// The templates of all tables, which must outlive the set; of several with one name that of the first
    /// table. A function hides that of its name of the ones above; names of the language's own are taken.
    explicit TemplateSet(const std::vector<Table>& tables, const std::vector<Function>& functions = {});
    ~TemplateSet();
    TemplateSet(const TemplateSet&) = delete;
    TemplateSet& operator=(const TemplateSet&) = delete;

    /// Gives every rendering from now on a value of that name, which is converted only once; data of that
    /// name are out of sight. Not from a function.
    void setConstant(std::string_view name, const jv::JV& value);

    /// The template of that name, filled with `data`, an object, whose texts may hold any bytes. Throws
    /// TemplateError, with "Template not found: " and the name when there is none.
    [[nodiscard]] std::string render(std::string_view name, const jv::JV& data) const;

  private:
    class Engine;
    std::unique_ptr<Engine> engine_;
};

} // namespace specloom::templating
