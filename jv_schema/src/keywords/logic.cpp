#include "jv_schema/keywords/logic.h"

#include "jv/jv_pointer.h"
#include "jv_schema/compiler.h"
#include "jv_schema/evaluation.h"
#include "jv_schema/messages.h"

#include <algorithm> // std::find, std::max
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

[[nodiscard]] const JV& schemaOf(const Node& branch) {
    return *(branch.alias == nullptr ? branch : *branch.alias).place->schema;
}

[[nodiscard]] std::vector<std::string_view> typesOf(const Node& branch) {
    const JV* type = schemaOf(branch).isObject() ? schemaOf(branch).get("type") : nullptr;
    std::vector<std::string_view> names;
    if (type != nullptr && type->isString())
        names.push_back(type->text());
    if (type != nullptr && type->isArray()) {
        for (const JV* name : type->elements())
            names.push_back(name->text()); // a string, or the schema would not have been compiled
    }
    return names;
}

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
        const JV& schema = schemaOf(branch);
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

/// The findings of the branch with the shortest distance.
struct Closest {
    std::optional<Distance> distance;
    Findings findings;
    bool onlyTypes = true; ///< whether no branch has more to say than that the type is another

    /// Apart, so that the frame of its caller, of which there is one for each level, stays small.
    [[gnu::noinline]] void consider(const std::vector<const Node*>& branches, const Node& branch,
                                    const JV& instance, Findings found, std::size_t depth) {
        onlyTypes &= found.size() == 1 && found.front().keyword == "type" && found.front().depth == depth;
        const Distance candidate(branches, branch, instance, found, depth);
        if (distance && !candidate.isCloserThan(*distance))
            return;
        distance = candidate;
        findings = std::move(found);
    }
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
        Closest closest;
        for (const Node* branch : branches_)
            closest.consider(branches_, *branch, instance, evaluation.findingsOf(*branch, instance),
                             evaluation.depth());
        return tell(closest, instance, evaluation);
    }

  private:
    // Apart from failClosest(), of which there is a frame for each level.
    [[gnu::noinline]] bool tell(Closest& closest, const JV& instance, Evaluation& evaluation) const {
        // Which members a branch would have looked at is not known: none of them is to be called unknown.
        evaluation.mark(instance);
        if (closest.findings.empty())
            return evaluation.fail(*this, [] { return message::noBranch; });
        if (closest.onlyTypes && branches_.size() > 1)
            return failTypes(instance, evaluation);
        evaluation.putFindings(std::move(closest.findings));
        return false;
    }

    [[nodiscard]] bool failTypes(const JV& instance, Evaluation& evaluation) const {
        std::vector<std::string_view> names;
        for (const Node* branch : branches_) {
            for (const std::string_view name : typesOf(*branch)) {
                if (std::find(names.begin(), names.end(), name) == names.end())
                    names.push_back(name);
            }
        }
        return evaluation.fail(*this, [&] {
            return names.empty() ? std::string(message::noBranch)
                                 : fmt::format(message::type, alternatives(names), typeOf(instance));
        });
    }

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
        return count == 1 || evaluation.failOfTwo(*this, first, last);
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
