#include "jv_schema/keywords/constants.h"

#include "jv/equal_values.h"
#include "jv_schema/compiler.h"
#include "jv_schema/evaluation.h"
#include "jv_schema/messages.h"
#include "jv_schema/value_set.h"

#include <string> // std::string

#include <fmt/core.h>

namespace specloom::jv::schema {

namespace {

constexpr std::size_t mostShown = 12; // values of an enumeration

class Const : public Keyword {
  public:
    explicit Const(const Site& site) : Keyword(site.place, site.keyword), value_(site.value) {}

    [[nodiscard]] bool evaluate(const JV& instance, Evaluation& evaluation) const override {
        if (equalValues(value_, instance))
            return true;
        return evaluation.fail(
            *this, [&] { return fmt::format(message::constant, described(value_), described(instance)); });
    }

  private:
    const JV& value_;
};

class Enum : public Keyword {
  public:
    explicit Enum(const Site& site) : Keyword(site.place, site.keyword), values_(site.value.elements()) {}

    [[nodiscard]] bool evaluate(const JV& instance, Evaluation& evaluation) const override {
        std::size_t visited = 0;
        const bool valid = values_.contains(instance, visited);
        evaluation.spend(visited);
        return valid || evaluation.fail(*this, [&] {
            return fmt::format(message::choice, shown(), described(instance));
        });
    }

  private:
    [[nodiscard]] std::string shown() const {
        std::string text;
        for (std::size_t i = 0; i < values_.values().size() && i < mostShown; ++i)
            text += (i == 0 ? "" : ", ") + described(*values_.values()[i]);
        return values_.values().size() > mostShown ? text + ", ..." : text;
    }

    ValueSet values_;
};

} // namespace

std::unique_ptr<Keyword> makeConst(const Site& site) {
    return std::make_unique<Const>(site);
}

std::unique_ptr<Keyword> makeEnum(const Site& site) {
    site.require(Kind::Array);
    return std::make_unique<Enum>(site);
}

} // namespace specloom::jv::schema
