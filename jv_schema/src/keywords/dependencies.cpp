#include "jv_schema/keywords/dependencies.h"

#include "jv_schema/compiler.h"
#include "jv_schema/evaluation.h"
#include "jv_schema/messages.h"

#include <string_view> // std::string_view
#include <vector>      // std::vector

#include <fmt/core.h>

namespace specloom::jv::schema {

namespace {

class Dependencies : public Keyword {
  public:
    explicit Dependencies(const Site& site) : Keyword(site.place, site.keyword, only(Kind::Object)) {
        site.require(Kind::Object);
        for (const Member member : site.value.members()) {
            Dependency& dependency = dependencies_.emplace_back();
            dependency.name = member.key;
            if (!member.value->isArray() || site.keyword != "dependencies") {
                dependency.node = &site.compiler.nodeOf(*member.value);
                continue;
            }
            for (const JV* name : member.value->elements()) {
                site.require(*name, Kind::String);
                dependency.needed.push_back(name->text());
            }
        }
    }

    [[nodiscard]] bool evaluate(const JV& instance, Evaluation& evaluation) const override {
        bool valid = true;
        for (const Dependency& dependency : dependencies_) {
            if (instance.get(dependency.name) == nullptr)
                continue;
            if (dependency.node != nullptr)
                valid &= evaluation.apply(*dependency.node, instance);
            for (const std::string_view name : dependency.needed) {
                if (instance.get(name) == nullptr)
                    valid = evaluation.fail(*this, [&] {
                        return fmt::format(message::missingDependency, quoted(name), quoted(dependency.name));
                    });
            }
            if (!valid && !evaluation.explains())
                return false;
        }
        return valid;
    }

  private:
    struct Dependency {
        std::string_view name;
        const Node* node = nullptr;
        std::vector<std::string_view> needed;
    };
    std::vector<Dependency> dependencies_;
};

} // namespace

std::unique_ptr<Keyword> makeDependencies(const Site& site) {
    return std::make_unique<Dependencies>(site);
}

} // namespace specloom::jv::schema
