#include "egret/checks/doubled_backslash.h"

#include "egret/analysis/tree.h"
#include "foundation/ascii.h"

#include <string_view> // std::string_view

namespace specloom::egret::checks {

namespace {

/// Whether "d+", "w" and their like stand here and no longer word.
bool isClassLetter(std::string_view behind) {
    if (behind.empty() || std::string_view("dDwWsS").find(behind.front()) == std::string_view::npos)
        return false;
    return behind.size() == 1 || !(ascii::isAlphanumeric(behind[1]) || behind[1] == '_' || behind[1] == '\\');
}

} // namespace

void findDoubledBackslash(const Subject& subject, Findings& findings) {
    for (const regex::Spelling::IdentityEscape& escape : subject.spelling.escapes) {
        const std::string_view text = subject.source.substr(escape.begin);
        if (escape.inClass || !text.starts_with("\\\\") || !isClassLetter(text.substr(2)))
            continue;
        findings.add(escape.begin, quoted(text.substr(0, 3)) + " is a backslash and a letter: the class is " +
                                       quoted(text.substr(1, 2)));
    }
}

} // namespace specloom::egret::checks
