#include "foundation/validators/validators.h"

#include <algorithm>   // std::find
#include <iterator>    // std::begin, std::end
#include <string_view> // std::string_view

namespace specloom {
namespace {

constexpr std::string_view encodings[] = {"7bit",   "8bit",   "binary", "quoted-printable",
                                          "base16", "base32", "base64"};

} // namespace

bool isTransferEncoding(std::string_view text) noexcept {
    return std::find(std::begin(encodings), std::end(encodings), text) != std::end(encodings);
}

} // namespace specloom
