#include "egret/checks/class_separator.h"

#include "egret/analysis/tree.h"
#include "egret/checks/class_entries.h"

namespace specloom::egret::checks {

bool hasSeparators(const Subject& subject, const regex::Spelling::Class& members) {
    const auto isRangeOfWords = [](const regex::Spelling::ClassEntry& entry) {
        return isOfWords(entry) && (isRange(entry) || isNamed(entry));
    };
    for (std::size_t i = 1; i + 1 < members.entries.size(); ++i)
        if (subject.textOf(members.entries[i]) == "," && isRangeOfWords(members.entries[i - 1]) &&
            isRangeOfWords(members.entries[i + 1]))
            return true;
    return false;
}

void findClassSeparator(const Subject& subject, Findings& findings) {
    for (const regex::Spelling::Class& members : subject.spelling.classes)
        if (hasSeparators(subject, members))
            findings.add(members.begin, "The comma in the class " + quoted(subject.textOf(members)) +
                                            " separates nothing: it is one of the characters");
}

} // namespace specloom::egret::checks
