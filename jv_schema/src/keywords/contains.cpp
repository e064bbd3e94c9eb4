#include "jv_schema/keywords/contains.h"

#include "jv_schema/compiler.h"
#include "jv_schema/count.h"
#include "jv_schema/evaluation.h"
#include "jv_schema/messages.h"

#include <limits> // std::numeric_limits

#include <fmt/core.h>

namespace specloom::jv::schema {

namespace {

class Contains : public Keyword {
  public:
    explicit Contains(const Site& site)
        : Keyword(site.place, site.keyword, only(Kind::Array)), node_(site.compiler.nodeOf(site.value)),
          marks_(site.dialect().draft() == Draft::D2020) {
        const bool counts = site.dialect().has(Vocabulary::Validation) &&
                            site.dialect().isOneOf(bit(Draft::D2019) | bit(Draft::D2020));
        if (const JV* least = site.schema().get("minContains"); counts && least != nullptr)
            least_ = countOf(site, *least);
        if (const JV* most = site.schema().get("maxContains"); counts && most != nullptr)
            most_ = countOf(site, *most);
    }

    [[nodiscard]] bool evaluate(const JV& instance, Evaluation& evaluation) const override {
        const bool needsAll = most_ != unlimited || evaluation.explains() || (marks_ && evaluation.tracks());
        std::size_t found = 0;
        for (const JV* item : instance.elements()) {
            if (found >= least_ && !needsAll)
                return true;
            if (!evaluation.probeChild(node_, *item))
                continue;
            ++found;
            if (marks_)
                evaluation.mark(*item);
        }
        if (found >= least_ && found <= most_)
            return true;
        return evaluation.fail(*this, [&] {
            return found < least_ ? fmt::format(message::containsNone,
                                                counted(least_, "matching item", "matching items"), found)
                                  : fmt::format(message::containsMany,
                                                counted(most_, "matching item", "matching items"), found);
        });
    }

  private:
    static constexpr std::size_t unlimited = std::numeric_limits<std::size_t>::max();

    const Node& node_;
    bool marks_;
    std::size_t least_ = 1;
    std::size_t most_ = unlimited;
};

} // namespace

std::unique_ptr<Keyword> makeContains(const Site& site) {
    return std::make_unique<Contains>(site);
}

} // namespace specloom::jv::schema
