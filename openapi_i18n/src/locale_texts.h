#pragma once

#include "jv/deser.h"

#include <cstddef>     // std::size_t
#include <span>        // std::span
#include <string>      // std::string
#include <string_view> // std::string_view
#include <vector>      // std::vector

namespace specloom::openapi_i18n {

struct LocaleText {
    std::string source; ///< as the document has it
    std::string translation;
};

/// What a locale file becomes.
struct UpdatedTexts {
    std::vector<LocaleText> texts;
    std::size_t fresh = 0;    ///< texts without a translation so far, which stand for themselves
    std::size_t kept = 0;     ///< those with one
    std::size_t obsolete = 0; ///< translations whose text is not among the sources any more
};

/// The texts of a locale file in their order. Throws std::runtime_error "Invalid locale data" when `document`
/// is no object, "Invalid literal for key: " and the key when a member is no string.
[[nodiscard]] std::vector<LocaleText> readLocaleTexts(const jv::JVDocument& document);

/// The sources, each once and in their order, with the translations that there are. Those of other texts
/// stand behind them, in the order that they had, or are left out.
[[nodiscard]] UpdatedTexts updateTexts(std::span<const std::string_view> sources,
                                       const std::vector<LocaleText>& existing, bool dropsObsolete);

/// A locale file: an object with translations by source text. Throws what jv::documentToText() throws.
[[nodiscard]] std::string localeFileText(const std::vector<LocaleText>& texts, jv::DocumentFormat format);

} // namespace specloom::openapi_i18n
