#include "jv_schema/keywords/references.h"

#include "jv_schema/compiler.h"
#include "jv_schema/evaluation.h"
#include "jv_schema/uri.h"

namespace specloom::jv::schema {

namespace {

class Ref : public Keyword {
  public:
    Ref(const Site& site, const Node& target) : Keyword(site.place, site.keyword), target_(target) {}

    [[nodiscard]] bool evaluate(const JV& instance, Evaluation& evaluation) const override {
        return evaluation.apply(target_, instance);
    }

    [[nodiscard]] const Node& target() const noexcept { return target_; }

  private:
    const Node& target_;
};

class DynamicRef : public Keyword {
  public:
    DynamicRef(const Site& site, const Node& target, std::size_t name)
        : Keyword(site.place, site.keyword), target_(target), name_(name) {}

    [[nodiscard]] bool evaluate(const JV& instance, Evaluation& evaluation) const override {
        const Node* outermost = evaluation.dynamicTarget(name_);
        return evaluation.apply(outermost == nullptr ? target_ : *outermost, instance);
    }

  private:
    const Node& target_; ///< where the reference leads by itself
    std::size_t name_;
};

} // namespace

std::unique_ptr<Keyword> makeRef(const Site& site) {
    site.require(Kind::String);
    return std::make_unique<Ref>(
        site, site.compiler.referredNodeOf(site.compiler.resolve(site, site.value.text())));
}

std::unique_ptr<Keyword> makeDynamicRef(const Site& site) {
    site.require(Kind::String);
    Place& target = site.compiler.resolve(site, site.value.text());
    const Node& node = site.compiler.referredNodeOf(target);
    // It depends on the way only if what it leads to by itself has the name as a dynamic one.
    const std::string_view fragment = splitFragment(site.value.text()).fragment.value_or("");
    const std::string_view name = site.keyword == "$recursiveRef" ? recursiveAnchor : fragment;
    const auto& dynamic = target.resource->dynamicAnchors;
    if (const auto found = dynamic.find(name); found != dynamic.end() && found->second == &target)
        return std::make_unique<DynamicRef>(site, node, site.compiler.dynamicName(name));
    return std::make_unique<Ref>(site, node);
}

const Node* plainReference(const Keyword& keyword) {
    const auto* ref = dynamic_cast<const Ref*>(&keyword);
    if (ref == nullptr || ref->target().place->resource != keyword.owner().resource)
        return nullptr;
    return &ref->target();
}

} // namespace specloom::jv::schema
