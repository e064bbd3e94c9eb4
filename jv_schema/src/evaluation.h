#pragma once

#include "jv_schema/node.h"
#include "jv_schema/schema.h"

#include <cstddef>       // std::size_t
#include <span>          // std::span
#include <stdexcept>     // std::runtime_error
#include <string>        // std::string
#include <string_view>   // std::string_view
#include <unordered_map> // std::unordered_map
#include <unordered_set> // std::unordered_set
#include <vector>        // std::vector

namespace specloom::jv::schema {

/// A limit was reached: neither valid nor invalid, but no answer.
struct Refusal : std::runtime_error {
    explicit Refusal(ValidationError reason, bool final = false)
        : std::runtime_error(reason.message), error(std::move(reason)), isFinal(final) {}
    ValidationError error;
    bool isFinal; ///< explaining would tell no more
};

/// As many errors as are wanted were found.
struct Enough {};

/// One evaluation of a schema over an instance. Deciding stops at the first fault and allocates nothing
/// unless the schema asks what was evaluated; explaining goes on and collects.
class Evaluation {
  public:
    enum class Mode : bool { Decide, Explain };

    Evaluation(const Program& program, Mode mode);

    /// Whether an instance satisfies a schema.
    [[nodiscard]] bool apply(const Node& node, const JV& instance) {
        if (!explains_) {
            if ((node.accepts & only(instance.kind())) == 0)
                return false;
            if (node.entries.empty())
                return true;
        }
        return applyKeywords(node, instance);
    }

    /// The same for a member or an item of the instance at hand.
    [[nodiscard]] bool applyTo(const Node& node, const JV& child, std::string_view key) {
        return applyBelow(node, child, Step{key, notAnIndex});
    }
    [[nodiscard]] bool applyTo(const Node& node, const JV& child, std::size_t index) {
        return applyBelow(node, child, Step{{}, index});
    }

    /// The node that a dynamic reference to the name of a number leads to, or null: of the resources that
    /// the evaluation went through, the first one that has the name tells.
    [[nodiscard]] const Node* dynamicTarget(std::size_t name) const;

    [[nodiscard]] bool explains() const noexcept { return explains_; }

    /// Returns false. When explaining, adds the error of `keyword` with the text that `text` makes.
    template <typename Text>
    bool fail(const Keyword& keyword, Text text) {
        if (explains_)
            add(keyword, text());
        return false;
    }
    /// The same for a keyword that takes one alternative, of which these two match.
    bool failOfTwo(const Keyword& keyword, std::size_t first, std::size_t second);
    /// As fail(), for a member.
    template <typename Text>
    bool failAt(const Keyword& keyword, std::string_view key, Text text) {
        if (explains_) {
            path_.push_back({key, notAnIndex});
            add(keyword, text());
            path_.pop_back();
        }
        return false;
    }

    [[noreturn]] void refuse(const Keyword& keyword, std::string message) const;
    /// Counts work that is not the application of a schema.
    void spend(std::size_t steps) {
        steps_ += steps;
        if (steps_ > longestEvaluation)
            refuseLength();
    }

    // What was evaluated of the instance at hand, for the keywords that ask. A mark is a child, or the
    // instance itself for all its children.
    [[nodiscard]] bool tracks() const noexcept { return tracks_; }
    void mark(const JV& value) {
        if (tracks_)
            marks_.push_back(&value);
    }
    [[nodiscard]] std::size_t markCount() const noexcept { return marks_.size(); }
    void forgetMarks(std::size_t count) { marks_.resize(count); }
    /// Those that the other keywords of the schema at hand have set; good until the next mark.
    [[nodiscard]] std::span<const JV* const> marks() const noexcept {
        return std::span(marks_).subspan(firstMark_);
    }

    // The same, but without explaining.
    [[nodiscard]] bool probe(const Node& node, const JV& instance);
    [[nodiscard]] bool probeChild(const Node& node, const JV& child);
    /// For a value that is gone afterwards.
    [[nodiscard]] bool probeTemporary(const Node& node, const JV& value);

    struct Finding {
        ValidationError error;
        std::size_t depth; ///< of the value at fault
        std::string_view keyword;
    };

    [[nodiscard]] std::size_t depth() const noexcept { return path_.size(); }
    /// What there is to find when a schema is applied, for a choice of what is told.
    [[nodiscard]] std::vector<Finding> findingsOf(const Node& node, const JV& instance);
    void putFindings(std::vector<Finding> findings);
    [[nodiscard]] std::vector<ValidationError> takeErrors();

  private:
    static constexpr std::size_t notAnIndex = static_cast<std::size_t>(-1);

    struct Step {
        std::string_view key;
        std::size_t index;
    };
    struct Application {
        const Node* node;
        const JV* instance;
        const Application* outer;
    };
    struct Question {
        const Node* node;
        const JV* instance;
        friend bool operator==(const Question&, const Question&) = default;
    };
    struct QuestionHash {
        std::size_t operator()(const Question& question) const noexcept;
    };

    [[nodiscard]] bool applyKeywords(const Node& node, const JV& instance);
    [[nodiscard]] bool applyBelow(const Node& node, const JV& child, Step step) {
        if (explains_)
            return explainBelow(node, child, step);
        const bool tracked = tracks_;
        tracks_ = false;
        const bool valid = apply(node, child);
        tracks_ = tracked;
        return valid;
    }
    [[nodiscard]] bool explainBelow(const Node& node, const JV& child, Step step);
    [[nodiscard]] bool applyRemembering(const Node& node, const JV& instance);
    [[nodiscard]] bool applyOnce(const Node& node, const JV& instance);
    [[nodiscard]] bool evaluateAll(const Node& node, const JV& instance);
    [[nodiscard]] bool explainAll(const Node& node, const JV& instance);
    [[nodiscard]] bool rejects(const Node& node);
    [[noreturn]] void refuseDepth(const Node& node, const JV& instance) const;
    [[noreturn]] void refuseLength() const;
    void add(const Keyword& keyword, std::string message, decltype(ValidationError::matching) matching = {});
    void add(Finding finding);
    /// For one more finding. Throws Enough when there is none and nobody has to choose among branches.
    [[nodiscard]] bool hasRoom() const;
    [[nodiscard]] std::string pointer() const;

    const Program& program_;
    bool explains_;
    bool tracks_ = false;
    std::size_t depth_ = 0;
    std::size_t steps_ = 0;
    std::size_t firstMark_ = 0;
    std::vector<const JV*> marks_;
    const Resource* resource_;
    std::vector<const Resource*> scope_; ///< the resources on the way, outermost first
    std::vector<Step> path_;             ///< to the instance at hand, when explaining
    const Application* way_ = nullptr;   ///< the schemas on the way, innermost first
    std::vector<Finding> findings_;
    std::size_t pointerBytes_ = 0; ///< of all findings_
    std::size_t choices_ = 0;      ///< how many findingsOf() are on the way
    std::size_t temporaries_ = 0;  ///< how many probeTemporary() are on the way
    std::unordered_map<Question, bool, QuestionHash> answers_;
    std::unordered_set<Question, QuestionHash> told_; ///< shared schemas whose faults were found
};

} // namespace specloom::jv::schema
