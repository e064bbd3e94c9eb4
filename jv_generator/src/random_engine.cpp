#include "jv_generator/random_engine.h"

namespace specloom::jv_generator {

/// The bits are spread over the draws as evenly as can be, the smaller shares first.
std::uint64_t RandomEngine::drawSeveral(int bits) noexcept {
    const int draws = (bits + bitsOfDraw - 1) / bitsOfDraw;
    const int share = bits / draws;
    const int smaller = draws - bits % draws;
    std::uint64_t value = 0;
    for (int i = 0; i < draws; ++i) {
        const int taken = share + (i < smaller ? 0 : 1);
        value = value << taken | draw(taken);
    }
    return value;
}

} // namespace specloom::jv_generator
