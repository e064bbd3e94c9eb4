#include "openapi_generator/translations.h"

#include "foundation/message.h"

#include <stdexcept> // std::runtime_error
#include <utility>   // std::move

namespace specloom::openapi_generator {

void Translations::add(std::string_view locale, const jv::JV& root) {
    if (!root.isObject())
        throw std::runtime_error("Invalid locale data");
    Texts texts;
    for (const auto& [key, value] : root.members()) {
        if (!value->isString())
            throw std::runtime_error(formatMessage("Invalid literal for key: {}", key));
        texts.emplace(key, value->text());
    }
    locales_.insert_or_assign(std::string(locale), std::move(texts));
}

} // namespace specloom::openapi_generator
