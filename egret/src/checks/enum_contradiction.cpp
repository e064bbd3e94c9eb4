#include "egret/checks/enum_contradiction.h"

#include "egret/analysis/tree.h"
#include "regex/pattern.h"

#include <string> // std::string, std::to_string

namespace specloom::egret::checks {

void findEnumContradiction(const Subject& subject, Findings& findings) {
    if (subject.use.enumeration.empty())
        return;
    const regex::Pattern pattern(subject.source);
    const std::string* first = nullptr;
    std::size_t others = 0;
    for (const std::string& text : subject.use.enumeration) {
        if (pattern.search(text) != regex::Pattern::Outcome::NoMatch)
            continue;
        others += first == nullptr ? 0 : 1;
        first = first == nullptr ? &text : first;
    }
    if (first == nullptr)
        return;
    const std::string more = others == 0 ? "" : " and " + std::to_string(others) + " more";
    findings.add(0, "The pattern does not match " + quoted(*first) + more + " of the enumeration");
}

} // namespace specloom::egret::checks
