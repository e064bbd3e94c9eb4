#include "egret/checks/class_range.h"

#include "egret/analysis/tree.h"
#include "egret/checks/class_entries.h"

#include <string_view> // std::string_view

namespace specloom::egret::checks {

namespace {

enum class CharacterKind { Digit, Upper, Lower, Punctuation, Other };

CharacterKind kindOf(char32_t character) {
    if (ascii::isDigit(character))
        return CharacterKind::Digit;
    if (ascii::isUpper(character))
        return CharacterKind::Upper;
    if (ascii::isLower(character))
        return CharacterKind::Lower;
    return character > ' ' && character < 0x7F ? CharacterKind::Punctuation : CharacterKind::Other;
}

bool isAlphanumericKind(CharacterKind kind) {
    return kind == CharacterKind::Digit || kind == CharacterKind::Upper || kind == CharacterKind::Lower;
}

/// Ranges such as "!-/" and "^-~" are cut out of ASCII on purpose: they begin or end where a block of it
/// does.
bool isBlockOfAscii(char32_t first, char32_t last) {
    constexpr std::string_view firstOfBlocks = "!#:[^{";
    constexpr std::string_view lastOfBlocks = "/@`~";
    const auto isIn = [](std::string_view set, char32_t c) {
        return set.find(static_cast<char>(c)) != std::string_view::npos;
    };
    return isIn(firstOfBlocks, first) || (isIn(lastOfBlocks, last) && first != '+' && first != '.');
}

/// Of a range that is spelt without escapes.
bool isSlipOfRange(const regex::Spelling::ClassEntry& entry) {
    const CharacterKind first = kindOf(entry.first);
    const CharacterKind last = kindOf(entry.last);
    if (isAlphanumericKind(first) && isAlphanumericKind(last))
        return first != last;
    return first == CharacterKind::Punctuation && last == CharacterKind::Punctuation &&
           entry.last - entry.first > 1 && !isBlockOfAscii(entry.first, entry.last);
}

} // namespace

void findClassRange(const Subject& subject, Findings& findings) {
    for (const regex::Spelling::Class& members : subject.spelling.classes)
        for (const regex::Spelling::ClassEntry& entry : members.entries) {
            const std::string_view text = subject.textOf(entry);
            if (text.size() != 3 || isNamed(entry) || !isSlipOfRange(entry))
                continue;
            findings.add(entry.begin, "The range " + quoted(text) + " in the class " +
                                          quoted(subject.textOf(members)) +
                                          " takes characters of other kinds too");
        }
}

} // namespace specloom::egret::checks
