#include "jv_schema/keywords/unevaluated.h"

#include "jv_schema/compiler.h"
#include "jv_schema/evaluation.h"

#include <algorithm> // std::binary_search, std::find, std::sort
#include <span>      // std::span
#include <vector>    // std::vector

namespace specloom::jv::schema {

namespace {

constexpr std::size_t fewMarks = 64; // are searched one by one

/// What the other keywords have marked, for questions in about the order of the marks. Marks made after its
/// construction are not seen.
class Evaluated {
  public:
    explicit Evaluated(const Evaluation& evaluation)
        : evaluation_(evaluation), count_(evaluation.marks().size()) {
        if (count_ <= fewMarks)
            return;
        sorted_.assign(evaluation.marks().begin(), evaluation.marks().end());
        std::sort(sorted_.begin(), sorted_.end());
    }

    [[nodiscard]] bool contains(const JV& value) {
        if (count_ > fewMarks)
            return std::binary_search(sorted_.begin(), sorted_.end(), &value);
        const auto marks = evaluation_.marks().first(count_);
        for (std::size_t tries = 0; tries < count_; ++tries) {
            const bool found = marks[next_] == &value;
            next_ = next_ + 1 == count_ ? 0 : next_ + 1;
            if (found)
                return true;
        }
        return false;
    }

  private:
    const Evaluation& evaluation_;
    std::size_t count_;
    std::size_t next_ = 0;
    std::vector<const JV*> sorted_;
};

class UnevaluatedItems : public Keyword {
  public:
    explicit UnevaluatedItems(const Site& site)
        : Keyword(site.place, site.keyword, only(Kind::Array)), node_(site.compiler.nodeOf(site.value)) {}

    [[nodiscard]] bool evaluate(const JV& instance, Evaluation& evaluation) const override {
        Evaluated evaluated(evaluation);
        if (evaluated.contains(instance))
            return true;
        bool valid = true;
        std::size_t index = 0;
        for (const JV* item : instance.elements()) {
            const std::size_t at = index++;
            if (evaluated.contains(*item) || evaluation.applyTo(node_, *item, at))
                continue;
            valid = false;
            if (!evaluation.explains())
                return false;
        }
        evaluation.mark(instance);
        return valid;
    }

  private:
    const Node& node_;
};

class UnevaluatedProperties : public Keyword {
  public:
    explicit UnevaluatedProperties(const Site& site)
        : Keyword(site.place, site.keyword, only(Kind::Object)), node_(site.compiler.nodeOf(site.value)) {}

    [[nodiscard]] bool evaluate(const JV& instance, Evaluation& evaluation) const override {
        Evaluated evaluated(evaluation);
        if (evaluated.contains(instance))
            return true;
        bool valid = true;
        for (const Member member : instance.members()) {
            if (evaluated.contains(*member.value) || evaluation.applyTo(node_, *member.value, member.key))
                continue;
            valid = false;
            if (!evaluation.explains())
                return false;
        }
        evaluation.mark(instance);
        return valid;
    }

  private:
    const Node& node_;
};

} // namespace

std::unique_ptr<Keyword> makeUnevaluatedItems(const Site& site) {
    return std::make_unique<UnevaluatedItems>(site);
}

std::unique_ptr<Keyword> makeUnevaluatedProperties(const Site& site) {
    return std::make_unique<UnevaluatedProperties>(site);
}

} // namespace specloom::jv::schema
