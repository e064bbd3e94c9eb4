// The formatter: it changes nothing but the order of keys, and what it wrote it leaves alone.

#include "fuzz/check.h"
#include "openapi_format/formatter.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    namespace fuzz = specloom::fuzz;
    using specloom::jv::DocumentFormat;
    const std::string_view text = fuzz::textOf(data, size);
    for (const DocumentFormat source : {DocumentFormat::Json, DocumentFormat::Yaml}) {
        const auto original = fuzz::readIfGood(text, source);
        if (original == nullptr)
            continue;
        for (const DocumentFormat target : {DocumentFormat::Json, DocumentFormat::Yaml}) {
            if (!fuzz::canBeKept(*original, target))
                continue;
            const specloom::openapi_format::Formatter formatter;
            const auto document = fuzz::readIfGood(text, source);
            const std::string once = formatter.text(*document, target);
            const auto again = fuzz::readIfGood(once, target);
            fuzz::require(again != nullptr, "what was formatted is read:\n" + once);
            fuzz::require(again->root()->equals(*original->root()), "the values are the same:\n" + once);
            fuzz::require(formatter.text(*again, target) == once, "a second run changes nothing:\n" + once);
        }
    }
    return 0;
}
