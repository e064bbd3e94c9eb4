#pragma once

#include "templating/template_set.h"

#include <cstddef>     // std::size_t
#include <cstdint>     // std::uint64_t
#include <functional>  // std::less
#include <map>         // std::map
#include <string>      // std::string
#include <string_view> // std::string_view
#include <utility>     // std::pair
#include <vector>      // std::vector

namespace specloom::templating {

/// The members of the data of a template that takes nothing but texts.
using Texts = std::vector<std::pair<std::string_view, std::string>>;

/// Templates that are filled thousands of times, each time with other texts.
///
/// All that such a template may do with a text is to put it in, and to ask whether it is "". So the language
/// renders it once for each choice of texts that are empty, with marks in place of the others; to fill it is
/// then to join what stands between the marks with the texts.
class Forms {
  public:
    /// `templates` outlives this.
    explicit Forms(const TemplateSet& templates) : templates_(&templates) {}

    /// What TemplateSet::render() would make of the texts. Those of one template have the same names in the
    /// same order each time; at most 64. Throws what that throws.
    [[nodiscard]] std::string fill(std::string_view templateName, const Texts& texts);

  private:
    /// A template as it is for one choice of empty texts.
    struct Form {
        struct Gap {
            std::size_t offset; ///< in `fixed`
            std::size_t text;   ///< by its place among the texts
        };
        std::string fixed; ///< what stands between the gaps
        std::vector<Gap> gaps;
    };
    using EmptyTexts = std::uint64_t; ///< a bit for each text

    [[nodiscard]] Form formOf(std::string_view templateName, const Texts& texts) const;

    const TemplateSet* templates_;
    std::map<std::string, std::map<EmptyTexts, Form>, std::less<>> forms_; ///< by template
};

} // namespace specloom::templating
