#include "egret/checks/superfluous_escape.h"

#include "egret/analysis/tree.h"

#include <string_view> // std::string_view

namespace specloom::egret::checks {

void findSuperfluousEscape(const Subject& subject, Findings& findings) {
    // Brackets, braces, bars, hyphens and slashes in a class are escaped for engines that read more into
    // them.
    constexpr std::string_view plainInClass = ".*+?$";
    for (const regex::Spelling::IdentityEscape& escape : subject.spelling.escapes) {
        const std::string_view text = subject.source.substr(escape.begin, 2);
        if (escape.inClass && plainInClass.find(text.back()) != std::string_view::npos)
            findings.add(escape.begin, "The backslash of " + quoted(text) + " is not needed in a class");
    }
}

} // namespace specloom::egret::checks
