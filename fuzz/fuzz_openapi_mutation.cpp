// The tree of real documents in which a few places were changed. Byte by byte, the input says which document,
// and then which change at which place.

#include "fuzz/check.h"
#include "fuzz/document_mutation.h"
#include "fuzz/tree_check.h"

namespace fuzz = specloom::fuzz;
namespace jv = specloom::jv;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::vector<std::string>& documents = fuzz::documentTexts(100'000);
    fuzz::require(!documents.empty(), "there are documents to change");
    fuzz::Choices choices(fuzz::textOf(data, size));
    const std::string& text = documents[choices.below(documents.size())];
    auto document = fuzz::readIfGood(text, jv::DocumentFormat::Json);
    for (int changes = 0; changes < 8 && !choices.atEnd(); ++changes)
        fuzz::mutate(*document, choices);
    document->reindex();
    fuzz::checkTree(std::move(document));
    return 0;
}
