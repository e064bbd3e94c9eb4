#include "jv_schema/keywords/pattern_keyword.h"

#include "jv_schema/compiler.h"
#include "jv_schema/evaluation.h"
#include "jv_schema/messages.h"
#include "jv_schema/pattern_site.h"

#include <fmt/core.h>

namespace specloom::jv::schema {

namespace {

class PatternKeyword : public Keyword {
  public:
    explicit PatternKeyword(const Site& site)
        : Keyword(site.place, site.keyword, only(Kind::String)), source_(site.value.text()),
          matcher_(compilePattern(site, source_)) {}

    [[nodiscard]] bool evaluate(const JV& instance, Evaluation& evaluation) const override {
        if (matches(matcher_, source_, instance.text(), *this, evaluation))
            return true;
        return evaluation.fail(*this, [&] { return fmt::format(message::pattern, quoted(source_)); });
    }

  private:
    std::string_view source_;
    regex::Pattern matcher_;
};

} // namespace

std::unique_ptr<Keyword> makePattern(const Site& site) {
    site.require(Kind::String);
    return std::make_unique<PatternKeyword>(site);
}

} // namespace specloom::jv::schema
