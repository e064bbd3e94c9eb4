#include "jv/jv_document.h"

#include "foundation/unreachable.h"
#include "jv/jv_object.h"
#include "jv/jv_pointer.h"
#include "jv/sorted_properties.h"
#include "jv/tree_cloner.h"

#include <charconv>  // std::from_chars
#include <stdexcept> // std::out_of_range
#include <utility>   // std::as_const, std::move

namespace specloom::jv {

std::string Location::pointer() const {
    if (value == nullptr)
        throw std::out_of_range("Node was not read from the document");
    return value->pointer();
}

JVDocument::JVDocument() {
    KeyPool::instance().acquire();
}

JVDocument::~JVDocument() {
    replaceRoot(nullptr);
    dropSlabValues();
    KeyPool::instance().release();
}

/// One sweep instead of a walk: what values in slabs own is freed wherever they stand in the tree.
void JVDocument::dropSlabValues() noexcept {
    if (usedSlabs_ > 0)
        slabs_[usedSlabs_ - 1].end = nextInSlab_;
    for (std::size_t i = 0; i < usedSlabs_; ++i) {
        for (JV* value = reinterpret_cast<JV*>(slabs_[i].memory.get()); value != slabs_[i].end; ++value)
            value->dropContent();
    }
    usedSlabs_ = 0;
    nextInSlab_ = endOfSlab_ = nullptr;
}

void JVDocument::restart() noexcept {
    replaceRoot(nullptr);
    dropSlabValues();
    arena_.restart();
    orders_.clear();
}

void JVDocument::addSlab() {
    if (usedSlabs_ > 0)
        slabs_[usedSlabs_ - 1].end = nextInSlab_;
    if (usedSlabs_ == slabs_.size()) {
        const std::size_t bytes = slabSizes_.next();
        slabs_.push_back({allocateChunk(bytes), bytes, nullptr});
    }
    const Slab& slab = slabs_[usedSlabs_++];
    nextInSlab_ = reinterpret_cast<JV*>(slab.memory.get());
    endOfSlab_ = nextInSlab_ + slab.bytes / sizeof(JV);
}

Location JVDocument::nearestLocationOf(const JV* value) const noexcept {
    const Location location = locationOf(value);
    const JV* around = value == nullptr || location.pos.isKnown() ? nullptr : value->enclosingObject();
    return around == nullptr ? location : locationOf(around);
}

// ---- root and index

void JVDocument::replaceRoot(JV* root) noexcept {
    if (root != root_)
        JV::destroy(root_);
    root_ = root;
}

void JVDocument::setRoot(std::unique_ptr<JV> root, bool reindex) {
    replaceRoot(root.release());
    if (reindex)
        this->reindex();
}

JV* JVDocument::makeRoot(Kind kind) {
    auto root = std::make_unique<JV>();
    switch (kind) {
    case Kind::Null:
        break;
    case Kind::Boolean:
        root->setBoolean(false);
        break;
    case Kind::Number:
        root->setInteger(0);
        break;
    case Kind::String:
        root->setString("");
        break;
    case Kind::Array:
        root->makeArray();
        break;
    case Kind::Object:
        root->makeObject();
        break;
    default:
        SPECLOOM_UNREACHABLE("kind of value");
    }
    setRoot(std::move(root));
    return root_;
}

void JVDocument::reindex() {
    if (root_ == nullptr)
        return;
    root_->parent_ = nullptr;
    root_->slot_ = 0;
    std::vector<JV*> open{root_};
    const auto reach = [&](JV* child, JV* parent, std::uint32_t slot) {
        child->parent_ = parent;
        child->slot_ = slot;
        open.push_back(child);
    };
    while (!open.empty()) {
        JV* value = open.back();
        open.pop_back();
        value->raise(JV::indexed);
        if (value->isArray()) {
            const auto elements = value->elements();
            for (std::uint32_t i = 0; i < elements.size(); ++i)
                reach(elements[i], value, i);
        } else if (value->isObject()) {
            const auto& object = value->payload_.object;
            for (std::uint32_t slot = 0; slot < object.count; ++slot) {
                if (object.entries[slot].value != nullptr)
                    reach(object.entries[slot].value, value, slot);
            }
            if (value->is(JV::ownsBlock)) {
                for (auto* former = value->header().displaced; former != nullptr; former = former->next)
                    former->value->lower(JV::indexed);
            }
        }
    }
}

const JV* JVDocument::lookup(std::string_view pointer) const {
    const JV* value = root_;
    if (value == nullptr || !value->is(JV::indexed) || value->parent_ != nullptr)
        return nullptr;
    while (!pointer.empty()) {
        if (pointer.front() != '/')
            return nullptr;
        pointer.remove_prefix(1);
        const std::string_view token = pointer.substr(0, pointer.find('/'));
        pointer.remove_prefix(token.size());

        const std::uint32_t slot = slotOfToken(*value, token);
        value = slot == noSlot ? nullptr : childAt(*value, slot);
        if (value == nullptr)
            return nullptr;
    }
    return value;
}

JV* JVDocument::lookup(std::string_view pointer) {
    return const_cast<JV*>(std::as_const(*this).lookup(pointer));
}

/// The slot that a reference token names, taken strictly, so that exactly the texts of JV::pointer() are
/// found.
std::uint32_t JVDocument::slotOfToken(const JV& parent, std::string_view token) {
    if (parent.isArray()) {
        std::uint32_t slot = noSlot;
        const auto read = std::from_chars(token.data(), token.data() + token.size(), slot);
        const bool canonical = token == "0" || !token.starts_with('0');
        return read.ec == std::errc() && read.ptr == token.data() + token.size() && canonical ? slot : noSlot;
    }
    if (!parent.isObject())
        return noSlot;
    if (token.find('~') == std::string_view::npos)
        return parent.findSlot(token);
    try {
        return parent.findSlot(JVPointer::unescapeToken(token));
    } catch (const JVPointerError&) {
        return noSlot;
    }
}

const JV* JVDocument::childAt(const JV& parent, std::uint32_t slot) {
    if (parent.isObject())
        return parent.indexedChild(slot);
    if (slot >= parent.size())
        return nullptr;
    const JV* child = parent.payload_.array.items[slot];
    return child->is(JV::indexed) && child->parent_ == &parent && child->slot_ == slot ? child : nullptr;
}

// ---- key order

/// The side table's list for `object`, started from what its entries say.
JVDocument::KeyOrder& JVDocument::explicitOrderOf(JV* object) {
    KeyOrder& order = orders_[object];
    if (object->is(JV::explicitOrder))
        return order;
    order.clear(); // an earlier object may have stood at the same address
    for (std::uint32_t slot = 0; slot < object->listedCount(); ++slot)
        order.push_back(object->payload_.object.entries[slot].key);
    object->lower(JV::sourceOrdered);
    object->raise(JV::explicitOrder);
    return order;
}

void JVDocument::appendKey(JV* object, std::string_view key) {
    object->require(Kind::Object);
    explicitOrderOf(object).push_back(KeyPool::instance().intern(key));
}

void JVDocument::setKeys(JV* object, std::span<const std::string_view> keys) {
    object->require(Kind::Object);
    if (reorderInPlace(object, keys))
        return;
    KeyOrder order;
    order.reserve(keys.size());
    for (const std::string_view key : keys)
        order.push_back(KeyPool::instance().intern(key));
    explicitOrderOf(object) = std::move(order);
}

/// When `keys` are just the keys of the object, its entries themselves can take that order.
bool JVDocument::reorderInPlace(JV* object, std::span<const std::string_view> keys) {
    auto& entries = object->payload_.object;
    const bool edited = object->is(JV::ownsBlock);
    if (keys.size() != entries.count || object->size() != entries.count ||
        (edited && object->header().displaced != nullptr)) {
        return false;
    }
    std::vector<std::uint32_t> slots;
    std::vector<bool> taken(keys.size());
    slots.reserve(keys.size());
    for (const std::string_view key : keys) {
        const std::uint32_t slot = object->findSlot(key);
        if (slot == noSlot || taken[slot])
            return false;
        taken[slot] = true;
        slots.push_back(slot);
    }
    object->permuteEntries(slots);
    if (object->is(JV::explicitOrder))
        orders_.erase(object);
    object->lower(JV::explicitOrder);
    object->raise(JV::sourceOrdered);
    return true;
}

void JVDocument::forget(JV* object) {
    if (object->is(JV::explicitOrder))
        orders_.erase(object);
    object->lower(JV::explicitOrder | JV::sourceOrdered);
}

std::vector<std::string_view> JVDocument::keysOf(const JV* object) const {
    std::vector<std::string_view> keys;
    if (object->is(JV::explicitOrder)) {
        for (const Key* key : orders_.at(object))
            keys.push_back(key->text());
    } else if (object->isObject()) {
        for (std::uint32_t slot = 0; slot < object->listedCount(); ++slot)
            keys.push_back(object->payload_.object.entries[slot].key->text());
    }
    return keys;
}

std::vector<Member> JVDocument::orderedMembers(const JV* object) const {
    if (object->is(JV::explicitOrder)) {
        const SortedProperties sorted(object, keysOf(object));
        return {sorted.begin(), sorted.end()};
    }
    const std::uint32_t listed = object->listedCount();
    const auto& entries = object->payload_.object;
    std::vector<Member> members;
    members.reserve(object->size());
    for (std::uint32_t slot = 0; slot < listed; ++slot) {
        if (entries.entries[slot].value != nullptr)
            members.push_back({entries.entries[slot].key->text(), entries.entries[slot].value});
    }
    if (members.size() == object->size())
        return members;
    for (const Member member : object->members()) {
        // Keys are unique, so what is not among the listed entries stands behind them.
        if (object->findSlot(member.key) >= listed)
            members.push_back(member);
    }
    return members;
}

// ---- copies

std::unique_ptr<JV> JVDocument::clone(const JV& source) {
    return TreeCloner().clone(source);
}

void JVDocument::assign(const JV& source, JV& target) {
    // The copy is made first: the source may be a part of the target.
    TreeCloner::moveContent(*clone(source), target);
}

} // namespace specloom::jv
