#include "jv_schema/keywords/conditional.h"

#include "jv_schema/compiler.h"
#include "jv_schema/evaluation.h"

namespace specloom::jv::schema {

namespace {

class Conditional : public Keyword {
  public:
    explicit Conditional(const Site& site)
        : Keyword(site.place, site.keyword), if_(site.compiler.nodeOf(site.value)) {
        if (const JV* schema = site.sibling("then"))
            then_ = &site.compiler.nodeOf(*schema);
        if (const JV* schema = site.sibling("else"))
            else_ = &site.compiler.nodeOf(*schema);
    }

    [[nodiscard]] bool evaluate(const JV& instance, Evaluation& evaluation) const override {
        const std::size_t marks = evaluation.markCount();
        const bool holds = evaluation.probe(if_, instance);
        if (!holds)
            evaluation.forgetMarks(marks);
        const Node* branch = holds ? then_ : else_;
        return branch == nullptr || evaluation.apply(*branch, instance);
    }

  private:
    const Node& if_;
    const Node* then_ = nullptr;
    const Node* else_ = nullptr;
};

} // namespace

std::unique_ptr<Keyword> makeConditional(const Site& site) {
    return std::make_unique<Conditional>(site);
}

} // namespace specloom::jv::schema
