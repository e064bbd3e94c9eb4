#include "openapi_i18n/extractor.h"

#include "foundation/file_system.h"
#include "foundation/message.h"
#include "foundation/output_file.h"
#include "jv/deser.h"
#include "openapi/reader.h"
#include "openapi_i18n/locale_texts.h"
#include "openapi_i18n/site_texts.h"
#include "openapi_i18n/texts.h"
#include "telemetry/telemetry.h"

#include <exception> // std::exception
#include <memory>    // std::make_shared, std::unique_ptr
#include <ostream>   // std::ostream
#include <stdexcept> // std::runtime_error
#include <utility>   // std::move
#include <vector>    // std::vector

namespace specloom::openapi_i18n {

namespace {

/// The built-in formats, and all others that a document names: they say nothing of its texts.
[[nodiscard]] std::shared_ptr<openapi::SchemaFormatRegistry> formatsNamedIn(const jv::JVDocument& document) {
    auto formats = std::make_shared<openapi::SchemaFormatRegistry>();
    std::vector<const jv::JV*> waiting{document.root()};
    while (!waiting.empty()) {
        const jv::JV& value = *waiting.back();
        waiting.pop_back();
        if (value.isArray())
            waiting.insert(waiting.end(), value.elements().begin(), value.elements().end());
        if (!value.isObject())
            continue;
        for (const jv::Member member : value.members()) {
            waiting.push_back(member.value);
            if (member.key == "format" && member.value->isString() &&
                formats->find(member.value->text()) == nullptr)
                formats->add(member.value->text(), openapi::SchemaType::String);
        }
    }
    return formats;
}

[[nodiscard]] std::unique_ptr<openapi::ReadResult> readDocument(std::string_view path) {
    const telemetry::Span span("read");
    std::unique_ptr<jv::JVDocument> document = jv::loadDocument(path).document;
    auto formats = formatsNamedIn(*document);
    return openapi::read(std::move(document), std::move(formats));
}

[[nodiscard]] std::vector<LocaleText> existingTexts(const std::string& path) {
    if (!LocalFileSystem().exists(path))
        return {};
    try {
        return readLocaleTexts(*jv::loadDocument(path).document);
    } catch (const std::exception& error) {
        throw std::runtime_error(formatMessage("{}: {}", path, error.what()));
    }
}

/// Throws std::runtime_error "Unknown file format: {}".
[[nodiscard]] jv::DocumentFormat formatOf(const std::optional<std::string>& path) {
    const std::optional<jv::DocumentFormat> format =
        path ? jv::formatFromPath(*path) : jv::DocumentFormat::Json;
    if (!format)
        throw std::runtime_error(formatMessage("Unknown file format: {}", *path));
    return *format;
}

[[nodiscard]] UpdatedTexts extract(const openapi::ReadResult& document,
                                   const std::vector<LocaleText>& existing, bool dropsObsolete) {
    const telemetry::Span span("extract");
    std::vector<std::string_view> sources = translatableTexts(document);
    sources.insert(sources.end(), siteTexts().begin(), siteTexts().end());
    return updateTexts(sources, existing, dropsObsolete);
}

} // namespace

void Extractor::run(std::string_view path) const {
    const jv::DocumentFormat format = formatOf(outputPath_);
    const std::unique_ptr<openapi::ReadResult> document = readDocument(path);
    const UpdatedTexts updated = extract(
        *document, outputPath_ ? existingTexts(*outputPath_) : std::vector<LocaleText>(), dropsObsolete_);
    const telemetry::Span span("write");
    const std::string text = localeFileText(updated.texts, format);
    if (outputPath_)
        OutputFile(*outputPath_).replace(text);
    else
        out_ << text;
    notes_.add(formatMessage("{} new, {} kept, {} obsolete", updated.fresh, updated.kept, updated.obsolete));
}

} // namespace specloom::openapi_i18n
