#include "openapi_generator_doc_html/sample_lines.h"

#include "code_morph_astro/attributes.h"

#include <string_view> // std::string_view
#include <utility>     // std::move

namespace specloom::openapi_generator::doc_html {
namespace {

using code_morph::astro::Attributes;

SampleOptions sampleOptionsOf(const Configuration& configuration) {
    return {.curl = configuration.requestCodeExamples.curl,
            .vanillaJs = configuration.requestCodeExamples.vanillaJs,
            .useRequestBodyExamples = configuration.useRequestBodyExamples,
            .useResponseExamples = configuration.useResponseExamples};
}

std::string codeAttribute(std::string_view language, std::string_view code) {
    return Attributes().text("language", language).text("code", code).take();
}

} // namespace

SampleLines::SampleLines(const openapi::OpenAPI& document, const Configuration& configuration,
                         const DocumentNames& names, const Texts& texts, templating::Forms& forms)
    : configuration_(&configuration), names_(&names), texts_(&texts),
      samples_(document, sampleOptionsOf(configuration)), forms_(&forms) {
    if (configuration.locales.size() > 1)
        made_.resize(names.operations().size());
}

OperationSamples SampleLines::linesOf(const openapi::OperationRef& ref) {
    std::unique_ptr<const Lines> own;
    std::unique_ptr<const Lines>& lines = made_.empty() ? own : made_[names_->indexOf(ref)];
    if (lines == nullptr)
        lines = std::make_unique<const Lines>(makeLines(ref));
    OperationSamples result;
    for (const Line& line : lines->requests)
        result.requestExamples +=
            forms_->fill("request_example.jinja", {{"attributes", attributesOf(line)}, {"code", line.code}});
    const auto codeBlock = [this](const Line& line) {
        return forms_->fill("code_block.jinja", {{"attributes", attributesOf(line) + line.code}});
    };
    for (const Line& line : lines->responses)
        result.responseExamples += codeBlock(line);
    for (const Line& line : lines->schemas)
        result.responseSchemas += codeBlock(line);
    return result;
}

SampleLines::Lines SampleLines::makeLines(const openapi::OperationRef& ref) {
    Lines lines;
    const auto addRequest = [&lines](std::string_view label, std::string_view language,
                                     const std::optional<CodeSample>& sample) {
        if (sample)
            lines.requests.push_back({Attributes().text("label", label).take(), sample->generated,
                                      codeAttribute(language, sample->code)});
    };
    const RequestSamples requests = samples_.request(ref);
    addRequest("cURL", "shell", requests.curl);
    addRequest("JavaScript", "javascript", requests.vanillaJs);
    for (const ResponseSample& response : samples_.responses(ref))
        lines.responses.push_back({Attributes().text("status", response.status).take(),
                                   response.sample.generated, codeAttribute("json", response.sample.code)});
    if (configuration_->generateResponseSchema)
        for (const ResponseSchema& schema : samples_.responseSchemas(ref))
            lines.schemas.push_back(
                {Attributes().text("status", schema.status).text("mediaType", schema.mediaType).take(), false,
                 codeAttribute("json", schema.code)});
    return lines;
}

std::string SampleLines::attributesOf(const Line& line) const {
    Attributes attributes;
    if (line.generated)
        attributes.flag("generated", true).text("generatedLabel", texts_->translate("Generated example"));
    return line.attributes + attributes.view();
}

} // namespace specloom::openapi_generator::doc_html
