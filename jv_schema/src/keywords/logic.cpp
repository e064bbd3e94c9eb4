#include "jv_schema/keywords/logic.h"

#include "jv/jv_pointer.h"
#include "jv_schema/compiler.h"
#include "jv_schema/evaluation.h"
#include "jv_schema/messages.h"

#include <algorithm> // std::max
#include <optional>  // std::optional
#include <tuple>     // std::tie
#include <utility>   // std::move
#include <vector>    // std::vector

#include <fmt/core.h>

namespace specloom::jv::schema {

namespace {

using Findings = std::vector<Evaluation::Finding>;

class AllOf : public Keyword {
  public:
    explicit AllOf(const Site& site)
        : Keyword(site.place, site.keyword), branches_(site.nodesOf(site.value)) {}

    [[nodiscard]] bool evaluate(const JV& instance, Evaluation& evaluation) const override {
        bool valid = true;
        for (const Node* branch : branches_) {
            if (evaluation.apply(*branch, instance))
                continue;
            valid = false;
            if (!evaluation.explains())
                return false;
        }
        return valid;
    }

  private:
    std::vector<const Node*> branches_;
};

/// How far an instance is from a branch of `anyOf` or `oneOf` that it does not match.
class Distance {
  public:
    Distance(const std::vector<const Node*>& branches, const Node& branch, const JV& instance,
             const Findings& findings, std::size_t depth)
        : faults_(findings.size()) {
        for (const Evaluation::Finding& finding : findings) {
            mismatch_ = std::max(mismatch_, mismatchOf(finding, branches, depth));
            depth_ = std::max(depth_, finding.depth);
        }
        const JV* properties = propertiesOf(branch);
        if (properties == nullptr || !instance.isObject())
            return;
        for (const Member member : instance.members())
            known_ += properties->has(member.key) ? 1 : 0;
    }

    /// What another kind of value or another discriminating property makes a stranger is farther than what
    /// lacks a property, and that farther than other faults. Then what matches deeper is closer, what knows
    /// more of the properties, and what has fewer faults.
    [[nodiscard]] bool isCloserThan(const Distance& other) const {
        return std::tie(mismatch_, other.depth_, other.known_, faults_) <
               std::tie(other.mismatch_, depth_, known_, other.faults_);
    }

  private:
    enum class Mismatch { None, Missing, Discriminator, Type };

    [[nodiscard]] static const JV* propertiesOf(const Node& branch) {
        const JV& schema = *(branch.alias == nullptr ? branch : *branch.alias).place->schema;
        const JV* properties = schema.isObject() ? schema.get("properties") : nullptr;
        return properties != nullptr && properties->isObject() ? properties : nullptr;
    }

    [[nodiscard]] static Mismatch mismatchOf(const Evaluation::Finding& finding,
                                             const std::vector<const Node*>& branches, std::size_t depth) {
        const bool isChoice = finding.keyword == "const" || finding.keyword == "enum";
        if (finding.depth == depth) {
            if (finding.keyword == "type" || isChoice)
                return Mismatch::Type;
            if (finding.keyword == "required")
                return Mismatch::Missing;
        } else if (finding.depth == depth + 1 && isChoice &&
                   discriminates(branches, finding.error.instancePointer)) {
            return Mismatch::Discriminator;
        }
        return Mismatch::None;
    }

    /// Whether more than one branch lists the values of a property.
    [[nodiscard]] static bool discriminates(const std::vector<const Node*>& branches,
                                            const std::string& pointer) {
        const std::string name =
            JVPointer::unescapeToken(std::string_view(pointer).substr(pointer.rfind('/') + 1));
        int lists = 0;
        for (const Node* branch : branches) {
            const JV* properties = propertiesOf(*branch);
            const JV* property = properties == nullptr ? nullptr : properties->get(name);
            lists += property != nullptr && (property->has("const") || property->has("enum")) ? 1 : 0;
        }
        return lists > 1;
    }

    Mismatch mismatch_ = Mismatch::None;
    std::size_t depth_ = 0;
    std::size_t known_ = 0;
    std::size_t faults_;
};

/// What `anyOf` and `oneOf` share: branches of which the closest one speaks when none matches.
class Alternatives : public Keyword {
  public:
    explicit Alternatives(const Site& site)
        : Keyword(site.place, site.keyword), branches_(site.nodesOf(site.value)) {}

  protected:
    [[nodiscard]] const std::vector<const Node*>& branches() const noexcept { return branches_; }

    /// The number of branches that match, up to `enough`; `first` and `last` become the first and the last
    /// one of them.
    [[nodiscard]] std::size_t matching(const JV& instance, Evaluation& evaluation, std::size_t enough,
                                       std::size_t& first, std::size_t& last) const {
        std::size_t count = 0;
        for (std::size_t i = 0; i < branches_.size() && count < enough; ++i) {
            const std::size_t marks = evaluation.markCount();
            if (!evaluation.probe(*branches_[i], instance)) {
                evaluation.forgetMarks(marks);
                continue;
            }
            if (count++ == 0)
                first = i;
            last = i;
        }
        return count;
    }

    /// Returns false after the closest branch has told its faults.
    [[nodiscard]] bool failClosest(const JV& instance, Evaluation& evaluation) const {
        if (!evaluation.explains())
            return false;
        Findings closest;
        std::optional<Distance> shortest;
        const std::size_t before = evaluation.findingCount();
        for (const Node* branch : branches_) {
            static_cast<void>(evaluation.apply(*branch, instance));
            Findings findings = evaluation.takeFindings(before);
            const Distance distance(branches_, *branch, instance, findings, evaluation.depth());
            if (!shortest || distance.isCloserThan(*shortest)) {
                shortest = distance;
                closest = std::move(findings);
            }
        }
        // Which members a branch would have looked at is not known: none of them is to be called unknown.
        evaluation.mark(instance);
        if (closest.empty())
            return evaluation.fail(*this, [] { return message::noBranch; });
        evaluation.putFindings(std::move(closest));
        return false;
    }

  private:
    std::vector<const Node*> branches_;
};

class AnyOf : public Alternatives {
  public:
    using Alternatives::Alternatives;

    [[nodiscard]] bool evaluate(const JV& instance, Evaluation& evaluation) const override {
        // What a branch evaluates counts even when another one matches already.
        const std::size_t enough = evaluation.tracks() ? branches().size() : 1;
        std::size_t first = 0;
        std::size_t last = 0;
        return matching(instance, evaluation, enough, first, last) != 0 || failClosest(instance, evaluation);
    }
};

class OneOf : public Alternatives {
  public:
    using Alternatives::Alternatives;

    [[nodiscard]] bool evaluate(const JV& instance, Evaluation& evaluation) const override {
        std::size_t first = 0;
        std::size_t last = 0;
        const std::size_t count = matching(instance, evaluation, 2, first, last);
        if (count == 0)
            return failClosest(instance, evaluation);
        return count == 1 ||
               evaluation.fail(*this, [&] { return fmt::format(message::severalBranches, first, last); });
    }
};

class Not : public Keyword {
  public:
    explicit Not(const Site& site)
        : Keyword(site.place, site.keyword), node_(site.compiler.nodeOf(site.value)) {}

    [[nodiscard]] bool evaluate(const JV& instance, Evaluation& evaluation) const override {
        const std::size_t marks = evaluation.markCount();
        const bool matches = evaluation.probe(node_, instance);
        evaluation.forgetMarks(marks);
        return !matches || evaluation.fail(*this, [] { return message::negation; });
    }

  private:
    const Node& node_;
};

} // namespace

std::unique_ptr<Keyword> makeAllOf(const Site& site) {
    return std::make_unique<AllOf>(site);
}

std::unique_ptr<Keyword> makeAnyOf(const Site& site) {
    return std::make_unique<AnyOf>(site);
}

std::unique_ptr<Keyword> makeOneOf(const Site& site) {
    return std::make_unique<OneOf>(site);
}

std::unique_ptr<Keyword> makeNot(const Site& site) {
    return std::make_unique<Not>(site);
}

} // namespace specloom::jv::schema
