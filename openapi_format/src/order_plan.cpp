#include "openapi_format/order_plan.h"

namespace specloom::openapi_format {

namespace {

void planOrder(const PropertyOrder& order, KindPlan& plan) {
    plan.mode = order.mode();
    if (plan.mode != PropertyOrder::Mode::Fixed)
        return;
    std::uint32_t rank = 0;
    for (const std::string& key : order.keys())
        plan.keys.try_emplace(key,
                              KeyPlan{.rank = rank++}); // of a key that is named twice the first place counts
}

void planStructure(const ObjectKind& kind, KindPlan& plan) {
    plan.references = kind.references;
    for (const Place& place : kind.places)
        plan.keys[std::string(place.member)].child = ChildPlan{place.shape, indexOfKind(place.kind)};
    if (kind.entries.kind.empty())
        return;
    plan.entries = ChildPlan{Shape::Object, indexOfKind(kind.entries.kind)};
    plan.evenExtensions = kind.entries.evenExtensions;
}

} // namespace

KeyPlan KindPlan::find(std::string_view key) const {
    const auto known = keys.find(key);
    KeyPlan plan = known == keys.end() ? KeyPlan{} : known->second;
    if (!plan.child && entries && (evenExtensions || !key.starts_with("x-")))
        plan.child = entries;
    return plan;
}

std::vector<KindPlan> planKinds(const Configuration& configuration) {
    std::vector<KindPlan> plans;
    for (const ObjectKind& kind : objectKinds()) {
        const PropertyOrder& own = configuration.orderOf(kind.name);
        KindPlan& plan = plans.emplace_back();
        planOrder(own.isSet() ? own : configuration.defaultOrder(), plan);
        planStructure(kind, plan);
    }
    return plans;
}

} // namespace specloom::openapi_format
