// Two versions of real documents: the input says which document, and which changes are made on either side.

#include "fuzz/check.h"
#include "fuzz/document_mutation.h"
#include "openapi/reader.h"
#include "openapi_diff/differ.h"

#include <exception>   // std::exception
#include <memory>      // std::unique_ptr
#include <sstream>     // std::ostringstream
#include <string_view> // std::string_view
#include <vector>      // std::vector

namespace {

namespace fuzz = specloom::fuzz;
namespace jv = specloom::jv;
namespace openapi = specloom::openapi;
namespace diff = specloom::openapi_diff;

/// A changed copy of a document as a tree; null when it is refused, which is reported in words.
[[nodiscard]] std::unique_ptr<openapi::ReadResult>
changed(const std::string& text, std::size_t changes, fuzz::Choices& choices,
        const std::shared_ptr<const openapi::SchemaFormatRegistry>& known) {
    auto document = fuzz::readIfGood(text, jv::DocumentFormat::Json);
    for (std::size_t change = 0; change < changes; ++change)
        fuzz::mutate(*document, choices);
    document->reindex();
    try {
        return openapi::read(std::move(document), known);
    } catch (const std::exception& error) {
        fuzz::require(*error.what() != '\0', "a refusal has a text");
        return nullptr;
    }
}

struct Told {
    diff::ChangeLevel level;
    std::string text;
};

[[nodiscard]] Told compare(const openapi::ReadResult& source, openapi::ReadResult& destination,
                           std::string_view format, std::string_view report) {
    std::ostringstream out;
    diff::Differ differ(out);
    differ.setReport(report);
    differ.setFormatter(format, report);
    const diff::ChangeLevel level = differ.run(source, destination).level;
    return {level, std::move(out).str()};
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::vector<std::string>& documents = fuzz::documentTexts(20'000);
    fuzz::require(!documents.empty(), "there are documents to change");
    fuzz::Choices choices(fuzz::textOf(data, size));
    const std::string& text = documents[choices.below(documents.size())];
    const std::vector<std::string_view> reports = diff::reportNames();
    const std::vector<std::string_view> formats = diff::formatNames();
    const std::string_view format = formats[choices.below(formats.size())];
    const auto known = std::make_shared<const openapi::SchemaFormatRegistry>();
    const auto source = changed(text, choices.below(3), choices, known);
    const auto destination = changed(text, 1 + choices.below(6), choices, known);
    if (source == nullptr || destination == nullptr)
        return 0;
    diff::ChangeLevel status{};
    for (const std::string_view report : reports) {
        const Told told = compare(*source, *destination, format, report);
        if (report == reports.front())
            status = told.level;
        fuzz::require(told.level <= status, "no report finds worse than the status");
        if (report == reports.back())
            fuzz::require(told.text == compare(*source, *destination, format, report).text,
                          "a comparison has one result");
    }
    fuzz::require(compare(*destination, *destination, "unix", "detailed").text.empty(),
                  "a document does not differ from itself");
    return 0;
}
