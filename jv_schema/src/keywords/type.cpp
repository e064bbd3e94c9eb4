#include "jv_schema/keywords/type.h"

#include "foundation/message.h"
#include "jv_schema/compiler.h"
#include "jv_schema/evaluation.h"
#include "jv_schema/messages.h"
#include "number/exact_numbers.h"

#include <optional> // std::optional
#include <string>   // std::string
#include <vector>   // std::vector

#include <fmt/core.h>

namespace specloom::jv::schema {

namespace {

class Type : public Keyword {
  public:
    Type(const Site& site, KindSet kinds, bool integers, std::string names)
        : Keyword(site.place, site.keyword, integers ? only(Kind::Number) : KindSet{0},
                  integers ? kinds | only(Kind::Number) : kinds),
          kinds_(kinds), integers_(integers), byForm_(site.dialect().draft() == Draft::D4),
          names_(std::move(names)) {}

    [[nodiscard]] bool evaluate(const JV& instance, Evaluation& evaluation) const override {
        if ((kinds_ & only(instance.kind())) != 0 || (integers_ && isInteger(instance)))
            return true;
        return evaluation.fail(*this, [&] { return fmt::format(message::type, names_, typeOf(instance)); });
    }

  private:
    [[nodiscard]] bool isInteger(const JV& instance) const {
        if (!instance.isNumber())
            return false;
        const number::Number number = instance.number();
        return number::isIntegral(number) && !(byForm_ && number.kind() == number::NumberKind::Float);
    }

    KindSet kinds_;
    bool integers_;
    bool byForm_;
    std::string names_;
};

[[nodiscard]] std::optional<Kind> kindOfType(std::string_view name) {
    for (const Kind kind :
         {Kind::Null, Kind::Boolean, Kind::Number, Kind::String, Kind::Array, Kind::Object}) {
        if (name == typeName(kind))
            return kind;
    }
    return std::nullopt;
}

} // namespace

std::unique_ptr<Keyword> makeType(const Site& site) {
    std::vector<const JV*> types{&site.value};
    if (site.value.isArray())
        types.assign(site.value.elements().begin(), site.value.elements().end());
    KindSet kinds = 0;
    bool integers = false;
    std::vector<std::string_view> names;
    for (const JV* type : types) {
        site.require(*type, Kind::String);
        const std::string_view name = type->text();
        const std::optional<Kind> kind = kindOfType(name);
        if (kind)
            kinds |= only(*kind);
        else if (name == "integer")
            integers = true;
        else
            site.fault(formatMessage(message::unknownType, quoted(name)));
        names.push_back(name);
    }
    return std::make_unique<Type>(site, kinds, integers, alternatives(names));
}

} // namespace specloom::jv::schema
