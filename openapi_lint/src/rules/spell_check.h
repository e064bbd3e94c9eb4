#pragma once

#include "foundation/text_tables.h"
#include "openapi_lint/rule.h"

#include <memory> // std::unique_ptr
#include <string> // std::string

namespace specloom::openapi_lint {

class Dictionary;

/// `spell-check`: the texts of the document are spelled as a dictionary has it.
///
/// Finds each word of descriptions, summaries and titles that is neither in a Hunspell dictionary nor among
/// the accepted words, once an object. Code, HTML, the destinations of links, URLs and names such as `petId`
/// are left out. Can be disabled on each object with texts and on those around it. Without a dictionary it
/// finds nothing. Its findings count as fixable although nothing fixes them: only the author knows the right
/// word.
///
/// Fails: `description: Retreive the tide tables`.
/// Passes: `description: Retrieve the tide tables`.
class SpellCheck final : public Rule {
  public:
    static constexpr std::string_view ruleId = "spell-check";
    explicit SpellCheck(Severity severity);
    ~SpellCheck() override;
    [[nodiscard]] bool isFixable() const override { return true; }
    /// An object with the paths "affix" and "dictionary", an array "words" of accepted words and an array
    /// "word_files" of paths of files with one accepted word a line. Paths are the program's, relative ones
    /// from its working directory.
    void configure(const jv::JV* options) override;
    void check(LintContext& context) override;

  private:
    std::unique_ptr<Dictionary> dictionary_;
    TextSet acceptedWords_;
};

} // namespace specloom::openapi_lint
