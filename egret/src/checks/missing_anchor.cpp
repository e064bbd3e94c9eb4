#include "egret/checks/missing_anchor.h"

#include "egret/analysis/anchors.h"
#include "egret/analysis/tree.h"
#include "egret/checks/delimiters.h"
#include "egret/checks/matches_everything.h"
#include "egret/checks/misplaced_anchor.h"
#include "foundation/ascii.h"

#include <algorithm> // std::max, std::min, std::ranges::all_of, std::ranges::any_of
#include <string>    // std::string

namespace specloom::egret::checks {

namespace {

using Kind = regex::Node::Kind;

/// How plain it is, from an end of a pattern that is not anchored, that a whole text was meant.
enum class Evidence {
    None,
    Weak,   ///< a repeat whose further rounds have no effect there: "[a-z]+"
    Fair,   ///< the same of several parts: "(:[a-z])+"
    Strong, ///< an upper bound that has none: "[a-z]{2,5}"
};

Evidence evidenceOf(const regex::Node& repetition, const regex::SyntaxTree& tree) {
    const regex::Node& repeated = repeatedIn(repetition);
    if (repeated.zeroWidth)
        return Evidence::None;
    const bool wide = isWide(repeated, tree);
    if (repetition.max != regex::unbounded) {
        const bool counts = repetition.max > std::max(repetition.min, 1U);
        return counts || (repetition.max > 1 && !wide) ? Evidence::Strong : Evidence::None;
    }
    if (repetition.min > 1)
        return Evidence::None;
    const auto narrow = [&](const regex::Node& node) { return isNarrow(repeatedIn(node), tree); };
    if (repeated.kind == Kind::Sequence)
        return std::ranges::any_of(repeated.children, narrow) ? Evidence::Fair : Evidence::None;
    return narrow(repeated) ? Evidence::Weak : Evidence::None;
}

/// Looks from the end on as far as there are classes, which a literal character closes off: in "^/[a-z]+/"
/// and
/// "^[a-m]" a part is meant.
Evidence evidenceAt(const regex::Node& alternative, Side side, const regex::SyntaxTree& tree) {
    const std::span<const regex::Node> parts = partsOf(alternative);
    Evidence found = Evidence::None;
    for (std::size_t i = 0; i < parts.size(); ++i) {
        const regex::Node& part = withoutGroups(side == Side::Start ? parts[i] : parts[parts.size() - 1 - i]);
        if (part.kind == Kind::Repetition)
            found = std::max(found, evidenceOf(part, tree));
        else if (part.kind != Kind::Class)
            break;
        if (isWide(repeatedIn(part), tree))
            break;
    }
    return found;
}

class MissingAnchors {
  public:
    MissingAnchors(const Subject& subject, Findings& findings) : subject_(subject), findings_(findings) {}

    void visit(const regex::Node& root) {
        const regex::Node& inner = withoutGroups(root);
        if (isListOfWords(inner))
            findings_.add(inner.begin,
                          "The pattern finds its words anywhere in a text: '^(' and ')$' around it "
                          "would hold the whole text");
        else
            for (const regex::Node& alternative : alternativesOf(inner))
                visitAlternative(alternative);
    }

  private:
    static bool isListOfWords(const regex::Node& node) {
        return node.kind == Kind::Alternation &&
               std::ranges::all_of(node.children, [](const regex::Node& child) {
                   const std::string text = literalOf(child);
                   return text.size() > 1 && std::ranges::all_of(text, [](char c) {
                              return ascii::isAlphanumeric(c) || c == '_' || c == '-';
                          });
               });
    }

    static bool hasLiterals(const regex::Node& alternative) {
        return std::ranges::any_of(partsOf(alternative),
                                   [](const regex::Node& part) { return part.kind == Kind::Character; });
    }

    void visitAlternative(const regex::Node& alternative) {
        const bool start = isAnchored(alternative, Side::Start);
        const bool end = isAnchored(alternative, Side::End);
        const Evidence atFront = start ? Evidence::None : evidenceAt(alternative, Side::Start, subject_.tree);
        const Evidence atBack = end ? Evidence::None : evidenceAt(alternative, Side::End, subject_.tree);
        if (start || end) {
            // "^v[0-9]+" may be for what begins so.
            const Evidence enough = hasLiterals(alternative) ? Evidence::Fair : Evidence::Weak;
            if (std::max(atFront, atBack) >= enough)
                report(alternative,
                       start ? "it begins with '^' and lacks '$'" : "it ends with '$' and lacks '^'");
        } else if (std::max(atFront, atBack) == Evidence::Strong ||
                   std::min(atFront, atBack) != Evidence::None) {
            report(alternative, "it lacks '^' and '$'");
        }
    }

    void report(const regex::Node& alternative, const std::string& lack) {
        findings_.add(alternative.begin,
                      quoted(subject_.textOf(alternative)) + " is not held to the whole text: " + lack);
    }

    const Subject& subject_;
    Findings& findings_;
};

} // namespace

void findMissingAnchor(const Subject& subject, Findings& findings) {
    if (!splitAnchors(subject.tree.root) && !hasDelimiters(subject.source) && !hasMisplacedAnchor(subject) &&
        !isWithoutEffect(subject))
        MissingAnchors(subject, findings).visit(subject.tree.root);
}

} // namespace specloom::egret::checks
