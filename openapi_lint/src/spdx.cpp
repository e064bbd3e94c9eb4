#include "openapi_lint/spdx.h"

#include "openapi_lint/lint_data.h"

#include <algorithm> // std::binary_search
#include <vector>    // std::vector

namespace specloom::openapi_lint {
namespace {

/// The lines of data/spdx_identifiers.txt, which stand in byte-wise order. To take over a newer list: the
/// values of "licenseId" and "licenseExceptionId" of its licenses.json and exceptions.json, sorted with
/// LC_ALL=C.
std::vector<std::string_view> readIdentifiers() {
    std::vector<std::string_view> identifiers;
    std::string_view rest = lintData("spdx_identifiers.txt");
    while (!rest.empty()) {
        const std::size_t end = rest.find('\n');
        identifiers.push_back(rest.substr(0, end));
        rest.remove_prefix(end + 1);
    }
    return identifiers;
}

} // namespace

bool isSpdxIdentifier(std::string_view text) {
    static const std::vector<std::string_view> identifiers = readIdentifiers();
    return std::binary_search(identifiers.begin(), identifiers.end(), text);
}

} // namespace specloom::openapi_lint
