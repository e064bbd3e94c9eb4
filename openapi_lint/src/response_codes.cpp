#include "openapi_lint/response_codes.h"

namespace specloom::openapi_lint {
namespace {

bool isBetween(char c, char first, char last) {
    return first <= c && c <= last;
}

} // namespace

bool isResponseCode(std::string_view key) {
    return key.size() == 3 && isBetween(key[0], '1', '5') && isBetween(key[1], '0', '9') &&
           isBetween(key[2], '0', '9');
}

bool isResponseCodeRange(std::string_view key) {
    return key.size() == 3 && isBetween(key[0], '1', '5') && key.ends_with("XX");
}

} // namespace specloom::openapi_lint
