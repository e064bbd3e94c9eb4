#pragma once

#include "foundation/text_tables.h"
#include "openapi_generator/translations.h"
#include "openapi_generator_doc_html/urls.h"

#include <optional>    // std::optional
#include <string>      // std::string
#include <string_view> // std::string_view

namespace specloom::openapi_generator::doc_html {

/// The texts of a document and of the site itself, in the language of the locale that is in effect.
class Texts {
  public:
    /// The translations outlive the object.
    explicit Texts(const Translations& translations) noexcept : translations_(&translations) {}

    /// Puts a locale, or none, into effect.
    void enter(const Locale& locale);
    [[nodiscard]] const Locale& locale() const noexcept { return locale_; }

    /// The translation of a text of the document or the site; the text itself where there is none. Good as
    /// long as both are.
    [[nodiscard]] std::string_view translate(std::string_view text) const;
    [[nodiscard]] std::optional<std::string_view> translateIf(std::optional<std::string_view> text) const;
    /// The translation of a pattern with "{}", with a name in its place.
    [[nodiscard]] std::string translate(std::string_view pattern, std::string_view name) const;

    /// A description, translated and rendered, as the value of an attribute; empty for none. Good until
    /// another locale is entered.
    [[nodiscard]] const std::string& describe(std::optional<std::string_view> description);

  private:
    const Translations* translations_;
    Locale locale_;
    const Translations::Texts* current_ = nullptr; ///< null where there is no file of the locale
    TextMap<std::string> descriptions_;            ///< many stand in hundreds of places
};

} // namespace specloom::openapi_generator::doc_html
