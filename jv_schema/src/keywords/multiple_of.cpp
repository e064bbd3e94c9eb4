#include "jv_schema/keywords/multiple_of.h"

#include "foundation/message.h"
#include "jv_schema/compiler.h"
#include "jv_schema/evaluation.h"
#include "jv_schema/messages.h"
#include "number/exact_numbers.h"

#include <fmt/core.h>

namespace specloom::jv::schema {

namespace {

class MultipleOf : public Keyword {
  public:
    MultipleOf(const Site& site, number::Divisor divisor)
        : Keyword(site.place, site.keyword, only(Kind::Number)), value_(site.value), divisor_(divisor) {}

    [[nodiscard]] bool evaluate(const JV& instance, Evaluation& evaluation) const override {
        if (divisor_.divides(instance.number()))
            return true;
        return evaluation.fail(
            *this, [&] { return fmt::format(message::noMultiple, described(value_), described(instance)); });
    }

  private:
    const JV& value_;
    number::Divisor divisor_;
};

} // namespace

std::unique_ptr<Keyword> makeMultipleOf(const Site& site) {
    site.require(Kind::Number);
    const number::Number number = site.value.number();
    const std::optional<number::Divisor> divisor = number::Divisor::of(number);
    if (!divisor) {
        const bool positive = number::compareExactly(number, number::Number()).value_or(0) > 0;
        site.fault(positive ? formatMessage(message::longDivisor, site.keyword)
                            : formatMessage(message::notPositive, site.keyword));
    }
    return std::make_unique<MultipleOf>(site, *divisor);
}

} // namespace specloom::jv::schema
