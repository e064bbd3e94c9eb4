#include "custom_formats.h"

#include <exception> // std::exception

namespace specloom::openapi {

namespace {

void tryToRead(CorpusDocument& document, const std::string& path) {
    document.refusal.clear();
    try {
        document.result = readFile(path, &document.formats);
    } catch (const std::exception& error) {
        document.refusal = error.what();
    }
}

} // namespace

std::set<std::string> unknownFormatsIn(std::string_view report) {
    constexpr std::string_view head = "Unknown format: ";
    std::set<std::string> names;
    while (!report.empty()) {
        const std::string_view line = report.substr(0, report.find('\n'));
        report.remove_prefix(std::min(line.size() + 1, report.size()));
        if (line.starts_with(head))
            names.emplace(line.substr(head.size(), line.rfind(" at (") - head.size()));
    }
    return names;
}

std::unique_ptr<CorpusDocument> readWithCustomFormats(const std::string& path) {
    auto document = std::make_unique<CorpusDocument>();
    tryToRead(*document, path);
    document->customFormats = unknownFormatsIn(document->refusal);
    if (document->customFormats.empty())
        return document;
    for (const std::string& name : document->customFormats)
        document->formats.add(name, SchemaType::String);
    tryToRead(*document, path);
    return document;
}

} // namespace specloom::openapi
