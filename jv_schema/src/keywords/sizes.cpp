#include "jv_schema/keywords/sizes.h"

#include "foundation/utf8.h"
#include "jv_schema/compiler.h"
#include "jv_schema/count.h"
#include "jv_schema/evaluation.h"
#include "jv_schema/messages.h"

#include <string> // std::string

#include <fmt/core.h>

namespace specloom::jv::schema {

namespace {

enum class Bound { Least, Most };

class Size : public Keyword {
  public:
    Size(const Site& site, Bound bound, Kind kind)
        : Keyword(site.place, site.keyword, only(kind)), bound_(bound), limit_(countOf(site, site.value)) {}

    [[nodiscard]] bool evaluate(const JV& instance, Evaluation& evaluation) const override {
        const std::size_t size = instance.isString() ? columnsOf(instance.text()) : instance.size();
        if (bound_ == Bound::Least ? size >= limit_ : size <= limit_)
            return true;
        return evaluation.fail(*this, [&] {
            return fmt::format(fmt::runtime(bound_ == Bound::Least ? message::tooFew : message::tooMany),
                               limitOf(instance.kind()), size);
        });
    }

  private:
    [[nodiscard]] std::string limitOf(Kind kind) const {
        if (kind == Kind::String)
            return counted(limit_, "character", "characters");
        return kind == Kind::Object ? counted(limit_, "property", "properties")
                                    : counted(limit_, "item", "items");
    }

    Bound bound_;
    std::size_t limit_;
};

[[nodiscard]] std::unique_ptr<Keyword> makeSize(const Site& site, Bound bound) {
    const Kind kind = site.keyword.ends_with("Length")  ? Kind::String
                      : site.keyword.ends_with("Items") ? Kind::Array
                                                        : Kind::Object;
    return std::make_unique<Size>(site, bound, kind);
}

} // namespace

std::unique_ptr<Keyword> makeMinSize(const Site& site) {
    return makeSize(site, Bound::Least);
}

std::unique_ptr<Keyword> makeMaxSize(const Site& site) {
    return makeSize(site, Bound::Most);
}

} // namespace specloom::jv::schema
