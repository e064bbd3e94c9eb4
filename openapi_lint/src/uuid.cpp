#include "openapi_lint/uuid.h"

#include "foundation/ascii.h"

#include <algorithm> // std::generate
#include <array>     // std::array
#include <random>    // std::mt19937

namespace specloom::openapi_lint {
namespace {

/// Every character that is no hyphen stands for a digit: 4 for itself, y for one of 8, 9, a and b.
constexpr std::string_view version4 = "xxxxxxxx-xxxx-4xxx-yxxx-xxxxxxxxxxxx";
constexpr std::string_view digits = "0123456789abcdef";

/// One seed of 32 bits would let two of some ten thousand documents get the same identifier.
std::mt19937 seededGenerator() {
    std::random_device device;
    std::array<std::random_device::result_type, std::mt19937::state_size> words{};
    std::generate(words.begin(), words.end(), [&] { return device(); });
    std::seed_seq seed(words.begin(), words.end());
    return std::mt19937(seed);
}

} // namespace

bool isUuid(std::string_view text) noexcept {
    if (text.size() != version4.size())
        return false;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char c = text[i];
        if (version4[i] == '-' ? c != '-' : !ascii::isHexDigit(c))
            return false;
    }
    return true;
}

std::string newUuid() {
    static std::mt19937 generator = seededGenerator();
    std::uniform_int_distribution<std::size_t> anyDigit(0, 15);
    std::uniform_int_distribution<std::size_t> variantDigit(8, 11);
    std::string uuid(version4);
    for (char& c : uuid) {
        if (c == 'x')
            c = digits[anyDigit(generator)];
        else if (c == 'y')
            c = digits[variantDigit(generator)];
    }
    return uuid;
}

} // namespace specloom::openapi_lint
