#include "egret/checks/delimiters.h"

#include "egret/analysis/tree.h"

#include <string_view> // std::string_view

namespace specloom::egret::checks {

bool hasDelimiters(std::string_view source) {
    const std::size_t flags = source.find_last_not_of("dgimsuvy");
    if (flags == std::string_view::npos || flags < 2 || source.front() != '/' || source[flags] != '/')
        return false;
    const std::string_view inside = source.substr(1, flags - 1);
    // Without an anchor it may as well be a path: "/users/".
    const bool anchored = inside.starts_with('^') || inside.ends_with('$');
    return anchored && !inside.ends_with('\\');
}

void findDelimiters(const Subject& subject, Findings& findings) {
    if (hasDelimiters(subject.source))
        findings.add(
            0, "The slashes around the pattern, and what follows them, are part of it: a pattern has no "
               "delimiters and no flags");
}

} // namespace specloom::egret::checks
