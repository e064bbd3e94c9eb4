#include "openapi_generator_doc_html/texts.h"

#include "code_morph_astro/escapes.h"
#include "openapi_generator_doc_html/document/description.h"

namespace specloom::openapi_generator::doc_html {

void Texts::enter(const Locale& locale) {
    if (locale == locale_)
        return;
    locale_ = locale;
    descriptions_.clear();
    current_ = nullptr;
    if (!locale_)
        return;
    const auto found = translations_->locales().find(*locale_);
    current_ = found == translations_->locales().end() ? nullptr : &found->second;
}

std::string_view Texts::translate(std::string_view text) const {
    if (current_ == nullptr)
        return text;
    const auto found = current_->find(text);
    return found == current_->end() ? text : std::string_view(found->second);
}

std::optional<std::string_view> Texts::translateIf(std::optional<std::string_view> text) const {
    return text ? std::optional(translate(*text)) : std::nullopt;
}

std::string Texts::translate(std::string_view pattern, std::string_view name) const {
    std::string text(translate(pattern));
    if (const std::size_t place = text.find("{}"); place != std::string::npos)
        text.replace(place, 2, name);
    return text;
}

const std::string& Texts::describe(std::optional<std::string_view> description) {
    static const std::string none;
    if (!description || description->empty())
        return none;
    const auto found = descriptions_.find(*description);
    if (found != descriptions_.end())
        return found->second;
    return descriptions_
        .emplace(*description,
                 code_morph::astro::toAstroAttribute(renderDescription(translate(*description))))
        .first->second;
}

} // namespace specloom::openapi_generator::doc_html
