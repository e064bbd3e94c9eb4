// The tree of whatever JSON there is: it is refused with a text, or written back so that it reads as the
// same.

#include "fuzz/check.h"
#include "fuzz/tree_check.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    namespace fuzz = specloom::fuzz;
    auto document = fuzz::readIfGood(fuzz::textOf(data, size), specloom::jv::DocumentFormat::Json);
    if (document != nullptr)
        fuzz::checkTree(std::move(document));
    return 0;
}
