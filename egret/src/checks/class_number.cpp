#include "egret/checks/class_number.h"

#include "egret/analysis/tree.h"
#include "egret/checks/class_entries.h"

namespace specloom::egret::checks {

namespace {

bool isDigitEntry(const regex::Spelling::ClassEntry& entry) {
    return !isNamed(entry) && ascii::isDigit(entry.first) && ascii::isDigit(entry.last);
}

/// Whether nobody who meant digits would write one behind the other so: "1-12", "0-255", but not "0-35-9".
bool isNumberSpelt(const regex::Spelling::ClassEntry& left, const regex::Spelling::ClassEntry& right) {
    const bool adjoining = left.end == right.begin && isDigitEntry(left) && isDigitEntry(right);
    return adjoining && (isRange(left) || isRange(right)) &&
           (right.first <= left.last + 1 || (isRange(left) && left.first == left.last));
}

} // namespace

bool hasNumbers(const regex::Spelling::Class& members) {
    for (std::size_t i = 1; i < members.entries.size(); ++i)
        if (isNumberSpelt(members.entries[i - 1], members.entries[i]))
            return true;
    return false;
}

void findClassNumber(const Subject& subject, Findings& findings) {
    for (const regex::Spelling::Class& members : subject.spelling.classes)
        if (hasNumbers(members))
            findings.add(members.begin, "The class " + quoted(subject.textOf(members)) +
                                            " takes one digit: it is no range of numbers");
}

} // namespace specloom::egret::checks
