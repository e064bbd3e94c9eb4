#pragma once

#include "jv/jv.h"

#include <functional>  // std::less
#include <map>         // std::map
#include <string>      // std::string
#include <string_view> // std::string_view

namespace specloom::openapi_generator {

/// The texts of locale files.
class Translations {
  public:
    using Texts = std::map<std::string, std::string, std::less<>>;

    /// Takes the texts of a locale, in place of what it had. Throws std::runtime_error "Invalid locale data"
    /// when `root` is no object, "Invalid literal for key: " and the key when a member is no string.
    void add(std::string_view locale, const jv::JV& root);

    /// Texts by key, by locale.
    [[nodiscard]] const std::map<std::string, Texts, std::less<>>& locales() const noexcept {
        return locales_;
    }

  private:
    std::map<std::string, Texts, std::less<>> locales_;
};

} // namespace specloom::openapi_generator
