#include "egret/checks/format_contradiction.h"

#include "egret/analysis/text_automaton.h"
#include "egret/analysis/tree.h"
#include "foundation/registry.h"

#include <string_view> // std::string_view

namespace specloom::egret::checks {

namespace {

/// A pattern for all texts of a format, and for some that are none.
struct FormatShape {
    std::string_view name;
    std::string_view pattern;
};

constexpr Registry formatShapes({
    FormatShape{"byte", R"(^[A-Za-z0-9+/=_\s-]*$)"},
    FormatShape{"date", R"(^\d{4}-\d{2}-\d{2}$)"},
    FormatShape{"date-time", R"(^\d{4}-\d{2}-\d{2}[Tt ]\d{2}:\d{2}:\d{2}(\.\d+)?([Zz]|[+-]\d{2}:\d{2})?$)"},
    FormatShape{"duration", R"(^P[0-9A-Z.,]+$)"},
    FormatShape{"email", R"(^[^@]+@[^@]+$|^"[^]*"@[^@]+$)"},
    FormatShape{"hostname", R"(^[A-Za-z0-9.-]+$)"},
    FormatShape{"ipv4", R"(^\d{1,3}(\.\d{1,3}){3}$)"},
    FormatShape{"ipv6", R"(^[0-9A-Fa-f:.]*:[0-9A-Fa-f:.]*:[0-9A-Fa-f:.]*$)"},
    FormatShape{"json-pointer", R"(^(/[^]*)?$)"},
    FormatShape{"time", R"(^\d{2}:\d{2}:\d{2}(\.\d+)?([Zz]|[+-]\d{2}:\d{2})?$)"},
    FormatShape{"uri", R"(^[A-Za-z][A-Za-z0-9+.-]*:)"},
    FormatShape{"uuid", R"(^[0-9A-Fa-f]{8}(-[0-9A-Fa-f]{4}){3}-[0-9A-Fa-f]{12}$)"},
});

} // namespace

void findFormatContradiction(const Subject& subject, Findings& findings) {
    const FormatShape* shape = formatShapes.find(subject.use.format);
    if (shape == nullptr)
        return;
    Budget budget;
    const regex::SyntaxTree other = regex::parse(shape->pattern);
    const regex::SyntaxTree* const trees[] = {&subject.tree, &other};
    const Alphabet alphabet(trees, budget);
    const TextAutomaton texts(alphabet, positionAutomaton(alphabet, 0, subject.tree.root, budget), budget);
    const TextAutomaton shaped(alphabet, positionAutomaton(alphabet, 1, other.root, budget), budget);
    // A pattern that matches nothing contradicts more than the format.
    if (matchesAnything(texts) && !haveCommonText(texts, shaped, budget))
        findings.add(0, "No text of the format " + quoted(shape->name) + " matches the pattern");
}

} // namespace specloom::egret::checks
