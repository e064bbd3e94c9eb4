#include "jv_schema/keywords/limits.h"

#include "jv_schema/compiler.h"
#include "jv_schema/evaluation.h"
#include "jv_schema/messages.h"
#include "number/exact_numbers.h"

#include <fmt/core.h>

namespace specloom::jv::schema {

namespace {

enum class Side { Minimum, Maximum };

class Limit : public Keyword {
  public:
    Limit(const Site& site, Side side, bool exclusive)
        : Keyword(site.place, site.keyword, only(Kind::Number)), limit_(site.value), side_(side),
          exclusive_(exclusive) {}

    [[nodiscard]] bool evaluate(const JV& instance, Evaluation& evaluation) const override {
        const std::optional<int> order = number::compareExactly(instance.number(), limit_.number());
        const int inside = side_ == Side::Minimum ? 1 : -1;
        if (order && (*order == inside || (*order == 0 && !exclusive_)))
            return true;
        return evaluation.fail(*this, [&] {
            const char* text = side_ == Side::Minimum ? (exclusive_ ? message::notAbove : message::tooSmall)
                                                      : (exclusive_ ? message::notBelow : message::tooLarge);
            return fmt::format(fmt::runtime(text), described(limit_), described(instance));
        });
    }

  private:
    const JV& limit_;
    Side side_;
    bool exclusive_;
};

[[nodiscard]] std::unique_ptr<Keyword> makeLimit(const Site& site, Side side) {
    site.require(Kind::Number);
    bool exclusive = site.keyword.starts_with("exclusive");
    if (site.dialect().draft() == Draft::D4) {
        // There the other keyword is a switch of this one.
        const JV* flag = site.schema().get(side == Side::Minimum ? "exclusiveMinimum" : "exclusiveMaximum");
        exclusive = flag != nullptr && flag->isBoolean() && flag->boolean();
    }
    return std::make_unique<Limit>(site, side, exclusive);
}

} // namespace

std::unique_ptr<Keyword> makeMinimum(const Site& site) {
    return makeLimit(site, Side::Minimum);
}

std::unique_ptr<Keyword> makeMaximum(const Site& site) {
    return makeLimit(site, Side::Maximum);
}

} // namespace specloom::jv::schema
