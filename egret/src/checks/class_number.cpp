#include "egret/checks/class_number.h"

#include "egret/analysis/tree.h"
#include "egret/checks/class_entries.h"

namespace specloom::egret::checks {

namespace {

bool isDigitEntry(const regex::Spelling::ClassEntry& entry) {
    return !isNamed(entry) && ascii::isDigit(entry.first) && ascii::isDigit(entry.last);
}

/// Whether nobody who meant digits would write one behind the other so: "1-12", "0-23", but not "0-35-9".
bool isOutOfOrder(const regex::Spelling::ClassEntry& left, const regex::Spelling::ClassEntry& right) {
    if (!isRange(left) && !isRange(right))
        return right.first <= left.last;
    return right.first <= left.last + 1 || (isRange(left) && left.first == left.last);
}

} // namespace

bool hasNumbers(const regex::Spelling::Class& members) {
    bool ranges = false;
    bool outOfOrder = false;
    for (std::size_t i = 0; i < members.entries.size(); ++i) {
        const regex::Spelling::ClassEntry& entry = members.entries[i];
        const bool adjoins = i > 0 && isDigitEntry(members.entries[i - 1]) && isDigitEntry(entry);
        ranges = (adjoins && ranges) || isRange(entry);
        outOfOrder = adjoins && (outOfOrder || isOutOfOrder(members.entries[i - 1], entry));
        if (ranges && outOfOrder)
            return true;
    }
    return false;
}

void findClassNumber(const Subject& subject, Findings& findings) {
    for (const regex::Spelling::Class& members : subject.spelling.classes)
        if (hasNumbers(members))
            findings.add(members.begin, "The class " + quoted(subject.textOf(members)) +
                                            " takes one digit: it is no range of numbers");
}

} // namespace specloom::egret::checks
