#include "openapi_format/formatter.h"

#include <algorithm> // std::ranges::all_of, std::ranges::is_sorted, std::ranges::sort
#include <cstdint>   // std::uint8_t, std::uint32_t
#include <tuple>     // std::tie
#include <utility>   // std::move

namespace specloom::openapi_format {

namespace {

using Mode = PropertyOrder::Mode;
using openapi::Arrangement;
using openapi::References;

/// One run over a document. Its depth is the input's, so the objects still to visit stand in a list.
class Walk {
  public:
    Walk(jv::JVDocument& document, const std::vector<KindPlan>& plans, Mode mapMode)
        : document_(document), plans_(plans), mapMode_(mapMode) {}

    void run() {
        open_.push_back({document_.root(), indexOfKind(openapi::ObjectKind::OpenAPI), false});
        while (!open_.empty()) {
            const Visit visit = open_.back();
            open_.pop_back();
            collectMembers(*visit.object);
            if (visit.isMap)
                visitMap(visit);
            else
                visitObject(visit);
        }
    }

  private:
    struct Visit {
        const jv::JV* object;
        std::uint8_t kind;
        bool isMap; ///< the object is a map whose values are of that kind
    };

    /// A key of the object at hand with its place in a fixed order.
    struct RankedKey {
        std::uint32_t rank;
        std::uint32_t sourcePlace;
        std::string_view key;
    };

    void collectMembers(const jv::JV& object) {
        members_.clear();
        document_.forEachOrdered(&object, [&](const jv::Member& member) { members_.push_back(member); });
    }

    void visitMap(const Visit& map) {
        for (const jv::Member& member : members_)
            visitLater(*member.value, {Arrangement::One, map.kind});
        if (mapMode_ == Mode::Sorted)
            sortKeys(*map.object);
    }

    void visitObject(const Visit& visit) {
        const KindPlan& structure = plans_[visit.kind];
        const KindPlan& order = isReference(structure.references) ? plans_[reference_] : structure;
        ranked_.clear();
        for (const jv::Member& member : members_) {
            const KeyPlan plan = structure.find(member.key);
            if (plan.child)
                visitLater(*member.value, *plan.child);
            const std::uint32_t rank = &order == &structure ? plan.rank : order.find(member.key).rank;
            ranked_.push_back({rank, static_cast<std::uint32_t>(ranked_.size()), member.key});
        }
        if (order.mode == Mode::Sorted)
            sortKeys(*visit.object);
        else if (order.mode == Mode::Fixed)
            rankKeys(*visit.object);
    }

    void visitLater(const jv::JV& value, ChildPlan child) {
        if (value.isObject()) {
            if (child.arrangement != Arrangement::List)
                open_.push_back({&value, child.kind, child.arrangement == Arrangement::Map});
        } else if (value.isArray() &&
                   (child.arrangement == Arrangement::List || child.arrangement == Arrangement::OneOrList)) {
            for (const jv::JV* element : value.elements()) {
                if (element->isObject())
                    open_.push_back({element, child.kind, false});
            }
        }
    }

    /// Whether the object at hand is a reference, by what is in it.
    [[nodiscard]] bool isReference(References references) const {
        if (references == References::None)
            return false;
        const auto ref = std::ranges::find(members_, "$ref", &jv::Member::key);
        if (ref == members_.end() || !ref->value->isString())
            return false;
        return references == References::All || std::ranges::all_of(members_, [](const jv::Member& member) {
                   return member.key == "$ref" || member.key == "summary" || member.key == "description" ||
                          member.key.starts_with("x-");
               });
    }

    void sortKeys(const jv::JV& object) {
        if (std::ranges::is_sorted(members_, {}, &jv::Member::key))
            return;
        std::ranges::sort(members_, {}, &jv::Member::key);
        setKeys(object, members_);
    }

    void rankKeys(const jv::JV& object) {
        const auto byRank = [](const RankedKey& a, const RankedKey& b) {
            return std::tie(a.rank, a.sourcePlace) < std::tie(b.rank, b.sourcePlace);
        };
        if (std::ranges::is_sorted(ranked_, byRank))
            return;
        std::ranges::sort(ranked_, byRank);
        setKeys(object, ranked_);
    }

    void setKeys(const jv::JV& object, const auto& ordered) {
        keys_.clear();
        for (const auto& entry : ordered)
            keys_.push_back(entry.key);
        // The document is ours to change; only the members of its objects are handed out as constants.
        document_.setKeys(const_cast<jv::JV*>(&object), keys_);
    }

    jv::JVDocument& document_;
    const std::vector<KindPlan>& plans_;
    const Mode mapMode_;
    const std::uint8_t reference_ = indexOfKind(openapi::ObjectKind::Reference);
    std::vector<Visit> open_;
    // Of the object at hand; kept from one to the next for their memory.
    std::vector<jv::Member> members_;
    std::vector<RankedKey> ranked_;
    std::vector<std::string_view> keys_;
};

} // namespace

Formatter::Formatter(Configuration configuration)
    : configuration_(std::move(configuration)), plans_(planKinds(configuration_)) {}

const jv::JV* Formatter::run(jv::JVDocument& document) const {
    const jv::JV* root = document.root();
    if (root != nullptr && root->isObject())
        Walk(document, plans_, configuration_.defaultOrder().mode()).run();
    return root;
}

std::string Formatter::text(jv::JVDocument& document, jv::DocumentFormat format) const {
    run(document);
    return jv::documentToText(document, {.format = format, .indent = configuration_.indent(), .sorter = {}});
}

} // namespace specloom::openapi_format
