#include "openapi_format/order_plan.h"

namespace specloom::openapi_format {

namespace {

using openapi::Arrangement;

void planOrder(const PropertyOrder& order, KindPlan& plan) {
    plan.mode = order.mode();
    if (plan.mode != PropertyOrder::Mode::Fixed)
        return;
    std::uint32_t rank = 0;
    for (const std::string& key : order.keys())
        plan.keys.try_emplace(key,
                              KeyPlan{.rank = rank++}); // of a key that is named twice the first place counts
}

void planWebhooks(KindPlan& plan) {
    plan.entries = ChildPlan{Arrangement::One, indexOfKind(openapi::ObjectKind::PathItem)};
    plan.evenExtensions = true;
}

void planStructure(const openapi::ObjectShape& shape, KindPlan& plan) {
    plan.references = shape.references;
    for (const openapi::MemberShape& member : shape.members) {
        if (member.content != openapi::Content::Object)
            continue;
        const Arrangement arrangement = isObjectOfItsOwn(member) ? Arrangement::One : member.arrangement;
        plan.keys[std::string(member.name)].child = ChildPlan{arrangement, indexOfKind(member)};
    }
    if (shape.entries)
        plan.entries = ChildPlan{Arrangement::One, indexOfKind(*shape.entries)};
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
        if (kind.kind)
            planStructure(openapi::shapeOf(*kind.kind), plan);
        else
            planWebhooks(plan);
    }
    return plans;
}

} // namespace specloom::openapi_format
