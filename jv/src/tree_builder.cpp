#include "jv/tree_builder.h"

#include "jv/jv_object.h"

#include <cstring>       // std::memcpy
#include <limits>        // std::numeric_limits
#include <stdexcept>     // std::length_error
#include <unordered_map> // std::unordered_map

namespace specloom::jv {

TreeBuilder::TreeBuilder(std::unique_ptr<JVDocument> document) : document_(std::move(document)) {}

// ---- values

void TreeBuilder::addBoolean(bool value, Pos pos) {
    JV* added = newValue(pos);
    added->kind_ = Kind::Boolean;
    added->payload_.boolean = value;
    add(added);
}

void TreeBuilder::addNumber(const number::Number& value, Pos pos) {
    JV* added = newValue(pos);
    added->setNumber(value);
    add(added);
}

void TreeBuilder::addString(std::string_view value, Pos pos) {
    add(newString(value, pos));
}

void TreeBuilder::addPlainString(std::string_view value, Pos pos) {
    JV* added = newString(value, pos);
    added->raise(JV::plainScalar);
    add(added);
}

JV* TreeBuilder::newString(std::string_view value, Pos pos) {
    JV* added = newValue(pos);
    if (value.size() <= sizeof added->payload_.shortText) {
        added->kind_ = Kind::String;
        added->detail_ = static_cast<std::uint8_t>(value.size());
        added->raise(JV::inlineText);
        if (!value.empty())
            std::memcpy(added->payload_.shortText, value.data(), value.size());
    } else if (value.size() > std::numeric_limits<std::uint32_t>::max()) {
        throw std::length_error("String is too long");
    } else {
        added->kind_ = Kind::String;
        added->payload_.text = {document_->arena_.copyText(value), static_cast<std::uint32_t>(value.size()),
                                0};
    }
    return added;
}

void TreeBuilder::add(JV* value) {
    if (frames_.empty()) {
        value->raise(JV::indexed);
        document_->replaceRoot(value);
        return;
    }
    Frame& frame = frames_.back();
    if (frame.container->kind_ == Kind::Array) {
        items_.push_back({nullptr, value});
    } else if (frame.keyPending) {
        items_.back().value = value;
        frame.keyPending = false;
    } else {
        addUnderEmptyKey(value);
        return;
    }
    value->parent_ = frame.container;
    value->slot_ = static_cast<std::uint32_t>(items_.size() - 1 - frame.base);
    value->raise(JV::indexed);
}

void TreeBuilder::addUnderEmptyKey(JV* value) {
    Frame& frame = frames_.back();
    frame.orderTold = false;
    unlisted_.push_back({frame.container, value});
}

void TreeBuilder::addCopy(const JV& value) {
    struct Copied {
        const JV* container;
        std::size_t next; ///< of its children
    };
    std::vector<Copied> copied;
    const auto begin = [&](const JV& source) {
        switch (source.kind()) {
        case Kind::Null:
            return addNull({});
        case Kind::Boolean:
            return addBoolean(source.boolean(), {});
        case Kind::Number:
            return addNumber(source.number(), {});
        case Kind::String:
            return source.isPlainScalar() ? addPlainString(source.text(), {}) : addString(source.text(), {});
        case Kind::Array:
        case Kind::Object:
            open(source.kind(), {});
            copied.push_back({&source, 0});
        }
    };
    begin(value);
    while (!copied.empty()) {
        const JV& container = *copied.back().container;
        const std::size_t next = copied.back().next++;
        if (next == container.size()) {
            end();
            copied.pop_back();
        } else if (container.isArray()) {
            begin(*container.elements()[next]);
        } else {
            const Member member = container.members()[next];
            addKey(member.key);
            begin(*member.value);
        }
    }
}

JV* TreeBuilder::last() noexcept {
    if (frames_.empty())
        return document_->root_;
    return items_.size() > frames_.back().base ? items_.back().value : nullptr;
}

void TreeBuilder::rollBack(const Checkpoint& place) {
    frames_.resize(place.containers);
    items_.resize(place.items);
    if (frames_.empty())
        return;
    frames_.back().keyPending = place.keyPending;
    if (place.keyPending)
        items_.back().value = nullptr;
}

// ---- containers

void TreeBuilder::open(Kind kind, Pos pos) {
    JV* container = newValue(pos);
    container->kind_ = kind;
    frames_.push_back({container, items_.size(), false, true});
}

void TreeBuilder::end() {
    const Frame frame = frames_.back();
    if (items_.size() - frame.base >= noSlot)
        throw std::length_error("Container has too many values");
    if (frame.container->kind_ == Kind::Array)
        closeArray(frame);
    else
        closeObject(frame);
    items_.resize(frame.base);
    frames_.pop_back();
    add(frame.container);
}

void TreeBuilder::closeArray(const Frame& frame) {
    const std::size_t count = items_.size() - frame.base;
    auto& array = frame.container->payload_.array;
    array.items = document_->arena_.allocateArray<JV*>(count);
    for (std::size_t i = 0; i < count; ++i)
        array.items[i] = items_[frame.base + i].value;
    array.count = array.capacity = static_cast<std::uint32_t>(count);
}

void TreeBuilder::closeObject(const Frame& frame) {
    if (!isPlainObject(frame)) {
        settleMembers(frame);
        return;
    }
    const std::size_t count = items_.size() - frame.base;
    auto& object = frame.container->payload_.object;
    frame.container->raise(JV::sourceOrdered);
    if (count == 0)
        return;
    const std::size_t bytes = count * sizeof(JV::Entry);
    object.entries = static_cast<JV::Entry*>(document_->arena_.allocate(bytes + JV::permutationBytes(count)));
    std::memcpy(object.entries, &items_[frame.base], bytes);
    object.count = object.capacity = static_cast<std::uint32_t>(count);
}

/// Whether each key of the object came once and has a value.
bool TreeBuilder::isPlainObject(const Frame& frame) {
    if (!frame.orderTold)
        return false;
    const std::uint32_t mark = keys_.nextMark();
    for (std::size_t i = frame.base; i < items_.size(); ++i) {
        // Keys are made by the pool and nobody else writes to them.
        auto* key = const_cast<Key*>(items_[i].key);
        if (key->mark == mark || items_[i].value == nullptr)
            return false;
        key->mark = mark;
    }
    return true;
}

/// The slow way, for keys that came twice or without a value: the last value of a key stands at the key's
/// first place, and the document records the order as it was.
void TreeBuilder::settleMembers(const Frame& frame) {
    JV* object = frame.container;
    JVDocument::KeyOrder order;
    std::unordered_map<const Key*, std::size_t> places;
    std::vector<JV::Entry> members;
    const auto store = [&](const Key* key, JV* value) {
        const auto [place, isNew] = places.emplace(key, members.size());
        if (isNew) {
            members.push_back({key, value});
            return;
        }
        members[place->second].value = value;
        document_->losses_.repeatedKeys = true;
    };
    for (std::size_t i = frame.base; i < items_.size(); ++i) {
        order.push_back(items_[i].key);
        if (items_[i].value != nullptr)
            store(items_[i].key, items_[i].value);
    }
    while (!unlisted_.empty() && unlisted_.back().container == object) {
        if (const Key* empty = keys_.intern(""); !places.contains(empty))
            store(empty, unlisted_.back().value); // from the last one back: the last one counts
        unlisted_.pop_back();
    }

    auto& block = object->payload_.object;
    const std::size_t bytes = members.size() * sizeof(JV::Entry);
    block.entries =
        static_cast<JV::Entry*>(document_->arena_.allocate(bytes + JV::permutationBytes(members.size())));
    block.count = block.capacity = static_cast<std::uint32_t>(members.size());
    for (std::uint32_t slot = 0; slot < members.size(); ++slot) {
        block.entries[slot] = members[slot];
        members[slot].value->parent_ = object;
        members[slot].value->slot_ = slot;
        members[slot].value->raise(JV::indexed);
    }
    object->raise(JV::explicitOrder);
    document_->orders_[object] = std::move(order);
}

} // namespace specloom::jv
