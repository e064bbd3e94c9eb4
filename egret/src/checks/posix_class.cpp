#include "egret/checks/posix_class.h"

#include "egret/analysis/tree.h"

#include <algorithm>   // std::ranges::any_of
#include <array>       // std::array
#include <string_view> // std::string_view

namespace specloom::egret::checks {

namespace {

constexpr std::array<std::string_view, 13> posixClasses{
    "[:alnum:]", "[:alpha:]", "[:ascii:]", "[:blank:]", "[:cntrl:]", "[:digit:]", "[:graph:]",
    "[:lower:]", "[:print:]", "[:punct:]", "[:space:]", "[:upper:]", "[:xdigit:]"};

} // namespace

bool isPosixClass(const Subject& subject, const regex::Spelling::Class& members) {
    const std::string_view text = subject.textOf(members);
    return std::ranges::any_of(posixClasses, [&](std::string_view name) { return text.ends_with(name); });
}

void findPosixClass(const Subject& subject, Findings& findings) {
    for (const regex::Spelling::Class& members : subject.spelling.classes)
        if (isPosixClass(subject, members))
            findings.add(members.begin,
                         "The class " + quoted(subject.textOf(members)) +
                             " takes the letters of its name: there are no such names of classes");
}

} // namespace specloom::egret::checks
