#include "openapi_i18n/locale_texts.h"

#include "foundation/escapes.h"
#include "foundation/message.h"
#include "foundation/text_tables.h"

#include <stdexcept> // std::runtime_error

namespace specloom::openapi_i18n {

std::vector<LocaleText> readLocaleTexts(const jv::JVDocument& document) {
    const jv::JV* root = document.root();
    if (root == nullptr || !root->isObject())
        throw std::runtime_error("Invalid locale data");
    std::vector<LocaleText> texts;
    for (const jv::Member& member : document.orderedMembers(root)) {
        if (!member.value->isString())
            throw std::runtime_error(formatMessage("Invalid literal for key: {}", member.key));
        texts.push_back({std::string(member.key), std::string(member.value->text())});
    }
    return texts;
}

UpdatedTexts updateTexts(std::span<const std::string_view> sources, const std::vector<LocaleText>& existing,
                         bool dropsObsolete) {
    TextViewMap<const LocaleText*> translations;
    for (const LocaleText& text : existing)
        translations.emplace(text.source, &text);
    UpdatedTexts updated;
    TextViewSet current;
    for (const std::string_view source : sources) {
        if (!current.insert(source).second)
            continue;
        const auto known = translations.find(source);
        const bool isKnown = known != translations.end();
        updated.texts.push_back(
            {std::string(source), isKnown ? known->second->translation : std::string(source)});
        ++(isKnown ? updated.kept : updated.fresh);
    }
    for (const LocaleText& text : existing) {
        if (current.contains(text.source))
            continue;
        ++updated.obsolete;
        if (!dropsObsolete)
            updated.texts.push_back(text);
    }
    return updated;
}

std::string localeFileText(const std::vector<LocaleText>& texts, jv::DocumentFormat format) {
    std::string json = "{";
    for (const LocaleText& text : texts)
        json.append(json.size() == 1 ? "\n  " : ",\n  ")
            .append(toJsonLiteral(text.source))
            .append(": ")
            .append(toJsonLiteral(text.translation));
    json += texts.empty() ? "}\n" : "\n}\n";
    if (format == jv::DocumentFormat::Json)
        return json;
    jv::LoadOptions options;
    options.format = jv::DocumentFormat::Json;
    return jv::documentToText(*jv::parseDocument(json, options), format);
}

} // namespace specloom::openapi_i18n
