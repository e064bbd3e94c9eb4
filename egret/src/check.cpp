#include "egret/check.h"

#include "egret/analysis/budget.h"
#include "egret/checks/anchor_precedence.h"
#include "egret/checks/class_alternation.h"
#include "egret/checks/class_number.h"
#include "egret/checks/class_overlap.h"
#include "egret/checks/class_range.h"
#include "egret/checks/class_separator.h"
#include "egret/checks/delimiters.h"
#include "egret/checks/doubled_backslash.h"
#include "egret/checks/empty_alternative.h"
#include "egret/checks/empty_repeat.h"
#include "egret/checks/enum_contradiction.h"
#include "egret/checks/exponential_repeat.h"
#include "egret/checks/format_contradiction.h"
#include "egret/checks/length_contradiction.h"
#include "egret/checks/matches_everything.h"
#include "egret/checks/matches_nothing.h"
#include "egret/checks/misplaced_anchor.h"
#include "egret/checks/missing_anchor.h"
#include "egret/checks/missing_repeat.h"
#include "egret/checks/posix_class.h"
#include "egret/checks/shadowed_alternative.h"
#include "egret/checks/superfluous_escape.h"
#include "egret/checks/unescaped_dot.h"
#include "egret/checks/unportable_escape.h"
#include "foundation/registry.h"

#include <algorithm> // std::is_sorted, std::ranges::stable_sort
#include <iterator>  // std::begin, std::end

namespace specloom::egret {

namespace {

struct Check {
    std::string_view name;
    void (*find)(const checks::Subject& subject, checks::Findings& findings);
};

constexpr Check checkTable[] = {
    Check{"anchor-precedence", checks::findAnchorPrecedence},
    Check{"class-alternation", checks::findClassAlternation},
    Check{"class-number", checks::findClassNumber},
    Check{"class-overlap", checks::findClassOverlap},
    Check{"class-range", checks::findClassRange},
    Check{"class-separator", checks::findClassSeparator},
    Check{"delimiters", checks::findDelimiters},
    Check{"doubled-backslash", checks::findDoubledBackslash},
    Check{"empty-alternative", checks::findEmptyAlternative},
    Check{"empty-repeat", checks::findEmptyRepeat},
    Check{"enum-contradiction", checks::findEnumContradiction},
    Check{"exponential-repeat", checks::findExponentialRepeat},
    Check{"format-contradiction", checks::findFormatContradiction},
    Check{"length-contradiction", checks::findLengthContradiction},
    Check{"matches-everything", checks::findMatchesEverything},
    Check{"matches-nothing", checks::findMatchesNothing},
    Check{"misplaced-anchor", checks::findMisplacedAnchor},
    Check{"missing-anchor", checks::findMissingAnchor},
    Check{"missing-repeat", checks::findMissingRepeat},
    Check{"posix-class", checks::findPosixClass},
    Check{"shadowed-alternative", checks::findShadowedAlternative},
    Check{"superfluous-escape", checks::findSuperfluousEscape},
    Check{"unescaped-dot", checks::findUnescapedDot},
    Check{"unportable-escape", checks::findUnportableEscape},
};

static_assert(std::is_sorted(std::begin(checkTable), std::end(checkTable),
                             [](const Check& a, const Check& b) { return a.name < b.name; }),
              "the checks stand in the order of their ids");

constexpr Registry checkRegistry(checkTable);

} // namespace

std::vector<Warning> check(std::string_view pattern, const PatternUse& use) {
    regex::Spelling spelling;
    const regex::SyntaxTree tree = regex::parse(pattern, spelling);
    const checks::ShortestLengths shortest(tree.root);
    const checks::Subject subject{pattern, tree, spelling, use, shortest};
    std::vector<Warning> warnings;
    for (const Check& row : checkTable) {
        checks::Findings findings;
        try {
            row.find(subject, findings);
        } catch (const checks::BudgetSpent&) {
            // What it has found so far holds.
        }
        for (const Warning& warning : findings.warnings())
            warnings.push_back({row.name, warning.message, warning.offset});
    }
    std::ranges::stable_sort(warnings, {}, &Warning::offset);
    return warnings;
}

std::vector<std::string_view> checkIds() {
    return checkRegistry.names();
}

} // namespace specloom::egret
