// The YAML reader and writer: what is read survives being written, in block and in flow style.

#include "fuzz/check.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    namespace fuzz = specloom::fuzz;
    using specloom::jv::DocumentFormat;
    const std::string_view text = fuzz::textOf(data, size);
    const auto document = fuzz::readIfGood(text, DocumentFormat::Yaml);
    if (document == nullptr)
        return 0;
    if (fuzz::canBeKept(*document, DocumentFormat::Yaml))
        for (const auto indent : {0, 2, static_cast<int>(fuzz::drawFrom(text) % 10)})
            fuzz::requireRoundTrip(*document, DocumentFormat::Yaml, indent);
    if (fuzz::canBeKept(*document, DocumentFormat::Json))
        fuzz::requireRoundTrip(*document, DocumentFormat::Json, 2);
    return 0;
}
