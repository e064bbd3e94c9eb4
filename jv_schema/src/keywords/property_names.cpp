#include "jv_schema/keywords/property_names.h"

#include "jv_schema/compiler.h"
#include "jv_schema/evaluation.h"
#include "jv_schema/messages.h"

#include <fmt/core.h>

namespace specloom::jv::schema {

namespace {

class PropertyNames : public Keyword {
  public:
    explicit PropertyNames(const Site& site)
        : Keyword(site.place, site.keyword, only(Kind::Object)), node_(site.compiler.nodeOf(site.value)) {}

    [[nodiscard]] bool evaluate(const JV& instance, Evaluation& evaluation) const override {
        bool valid = true;
        for (const Member member : instance.members()) {
            const JV name(member.key);
            if (evaluation.probeTemporary(node_, name))
                continue;
            if (!evaluation.explains())
                return false;
            valid = evaluation.failAt(*this, member.key, [&] {
                const auto reasons = evaluation.findingsOf(node_, name);
                return fmt::format(message::propertyName, quoted(member.key),
                                   reasons.empty() ? message::noValue : reasons.front().error.message);
            });
        }
        return valid;
    }

  private:
    const Node& node_;
};

} // namespace

std::unique_ptr<Keyword> makePropertyNames(const Site& site) {
    return std::make_unique<PropertyNames>(site);
}

} // namespace specloom::jv::schema
