#include "egret/checks/unportable_escape.h"

#include "egret/analysis/tree.h"
#include "regex/utf8.h"

#include <string_view> // std::string_view

namespace specloom::egret::checks {

void findUnportableEscape(const Subject& subject, Findings& findings) {
    constexpr std::string_view escapable = "^$\\.*+?()[]{}|/"; // IdentityEscape of section 22.2.1
    for (const regex::Spelling::IdentityEscape& escape : subject.spelling.escapes) {
        const std::string_view escaped = subject.source.substr(escape.begin + 1);
        const bool known = escapable.find(escaped.front()) != std::string_view::npos;
        if (known || (escape.inClass && escaped.front() == '-'))
            continue;
        const std::size_t length = 1 + regex::decodeCharacter(escaped).length;
        findings.add(escape.begin,
                     quoted(subject.source.substr(escape.begin, length)) +
                         " is an error in engines that use the flag 'u': the character needs no backslash");
    }
}

} // namespace specloom::egret::checks
