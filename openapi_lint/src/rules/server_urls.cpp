#include "openapi_lint/rules/server_urls.h"

#include "foundation/strings.h"
#include "openapi_lint/disabling.h"
#include "openapi_lint/lint_context.h"

namespace specloom::openapi_lint {
namespace {

constexpr const char* urlRefused = "Server URL is not lower case or uses http protocol";

/// The host of what follows the "//" of a URL (RFC 3986, section 3.2), with the brackets of an IPv6 address.
/// The URLs of servers are templates, which URL parsers refuse.
std::string_view hostOf(std::string_view text) {
    std::string_view authority = text.substr(0, text.find_first_of("/?#"));
    if (const std::size_t at = authority.rfind('@'); at != std::string_view::npos)
        authority.remove_prefix(at + 1);
    const std::size_t bracket = authority.starts_with('[') ? authority.find(']') : std::string_view::npos;
    return bracket == std::string_view::npos ? authority.substr(0, authority.find(':'))
                                             : authority.substr(0, bracket + 1);
}

/// Four numbers with dots between them, of which the first is 127: the whole block is loopback (RFC 1122,
/// section 3.2.1.3).
bool isLoopbackAddress(std::string_view host) {
    std::size_t parts = 1;
    std::size_t digits = 0;
    for (const char c : host) {
        if (c == '.') {
            ++parts;
            digits = 0;
        } else if (c < '0' || c > '9' || ++digits > 3) {
            return false;
        }
    }
    return host.starts_with("127.") && parts == 4 && digits > 0;
}

/// The names of the local machine (RFC 6761, section 6.3) and its loopback addresses.
bool isLocalMachine(std::string_view host) {
    return host == "localhost" || host.ends_with(".localhost") || host == "[::1]" || isLoopbackAddress(host);
}

bool isAccepted(std::string_view url) {
    constexpr std::string_view plain = "http://";
    const bool isProtected = url.starts_with("https://") ||
                             (url.starts_with(plain) && isLocalMachine(hostOf(url.substr(plain.size()))));
    return isProtected && toLowerCase(url) == url;
}

} // namespace

void ServerURLs::check(LintContext& context) {
    const openapi::OpenAPI& root = context.root();
    if (isDisabled(*this, &root))
        return;
    for (const auto& server : root.servers())
        if (!isAccepted(server->url()))
            report(context, urlRefused, *server);
}

} // namespace specloom::openapi_lint
