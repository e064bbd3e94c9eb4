#include "egret/checks/class_alternation.h"

#include "egret/analysis/tree.h"
#include "egret/checks/class_entries.h"

namespace specloom::egret::checks {

bool isClassAlternation(const Subject& subject, const regex::Spelling::Class& members) {
    for (std::size_t i = 1; i + 1 < members.entries.size(); ++i)
        if (subject.textOf(members.entries[i]) == "|" && isOfWords(members.entries[i - 1]) &&
            isOfWords(members.entries[i + 1]))
            return true;
    return false;
}

void findClassAlternation(const Subject& subject, Findings& findings) {
    for (const regex::Spelling::Class& members : subject.spelling.classes)
        if (isClassAlternation(subject, members))
            findings.add(members.begin,
                         "The class " + quoted(subject.textOf(members)) +
                             " takes one character, '|' among them: alternatives stand in parentheses");
}

} // namespace specloom::egret::checks
