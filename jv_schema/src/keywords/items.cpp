#include "jv_schema/keywords/items.h"

#include "jv_schema/compiler.h"
#include "jv_schema/evaluation.h"

#include <algorithm> // std::min
#include <vector>    // std::vector

namespace specloom::jv::schema {

namespace {

class Items : public Keyword {
  public:
    Items(const Site& site, const JV* prefix, const JV* rest)
        : Keyword(site.place, site.keyword, only(Kind::Array)) {
        if (prefix != nullptr)
            prefix_ = site.nodesOf(*prefix);
        if (rest != nullptr)
            rest_ = &site.compiler.nodeOf(*rest);
    }

    [[nodiscard]] bool evaluate(const JV& instance, Evaluation& evaluation) const override {
        const auto items = instance.elements();
        const bool everyRest = rest_ == nullptr || (rest_->accepts == everyKind && rest_->entries.empty());
        const std::size_t end = !everyRest ? items.size() : std::min(items.size(), prefix_.size());
        bool valid = true;
        for (std::size_t i = 0; i < end; ++i) {
            const Node& node = i < prefix_.size() ? *prefix_[i] : *rest_;
            if (!evaluation.applyTo(node, *items[i], i)) {
                valid = false;
                if (!evaluation.explains())
                    return false;
            }
            if (rest_ == nullptr)
                evaluation.mark(*items[i]);
        }
        if (rest_ != nullptr)
            evaluation.mark(instance);
        return valid;
    }

  private:
    std::vector<const Node*> prefix_;
    const Node* rest_ = nullptr;
};

} // namespace

std::unique_ptr<Keyword> makeItems(const Site& site) {
    if (site.dialect().draft() == Draft::D2020) {
        const JV* prefix = site.sibling("prefixItems");
        if (site.keyword == "items" && prefix != nullptr)
            return nullptr;
        return std::make_unique<Items>(site, prefix, site.sibling("items"));
    }
    if (site.keyword == "additionalItems")
        return nullptr; // it has a meaning beside an array of `items` only
    if (site.value.isArray())
        return std::make_unique<Items>(site, &site.value, site.sibling("additionalItems"));
    return std::make_unique<Items>(site, nullptr, &site.value);
}

} // namespace specloom::jv::schema
