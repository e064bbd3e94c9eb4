#include "source_edit/edits.h"

#include <algorithm> // std::any_of, std::find_if, std::min, std::stable_sort

namespace specloom::source_edit {

bool EditedContainer::isChanged() const {
    if (!keepsPlaces())
        return true;
    return std::any_of(children.begin(), children.end(), [&](const EditedChild& child) {
        const jv::Member& old = before[child.from];
        return child.key != old.key || (child.value != old.value && !child.value->equals(*old.value));
    });
}

bool EditedContainer::keepsPlaces() const {
    if (children.size() != before.size())
        return false;
    for (std::size_t place = 0; place < children.size(); ++place)
        if (children[place].from != place)
            return false;
    return true;
}

void Edits::setMember(const jv::JV& object, std::string_view key, std::unique_ptr<jv::JV> value) {
    std::vector<EditedChild>& children = edited(object).children;
    auto child = std::find_if(children.begin(), children.end(),
                              [&](const EditedChild& known) { return known.key == key; });
    if (child == children.end()) {
        children.emplace_back().key = key;
        child = children.end() - 1;
    }
    child->owned = std::move(value);
    child->value = child->owned.get();
}

void Edits::removeMember(const jv::JV& object, std::string_view key) {
    std::erase_if(edited(object).children, [&](const EditedChild& child) { return child.key == key; });
}

void Edits::renameMembers(const jv::JV& object, std::span<const Renaming> renamings) {
    std::unordered_map<std::string_view, std::string_view> newKeys;
    for (const auto& [before, after] : renamings)
        newKeys.emplace(before, after);
    for (EditedChild& child : edited(object).children)
        if (const auto found = newKeys.find(child.key); found != newKeys.end())
            child.key = found->second;
}

void Edits::orderMembers(const jv::JV& object, std::span<const std::string_view> keys) {
    std::unordered_map<std::string_view, std::size_t> ranks;
    for (const std::string_view key : keys)
        ranks.emplace(key, ranks.size());
    const auto rankOf = [&](const EditedChild& child) {
        const auto found = ranks.find(child.key);
        return found == ranks.end() ? ranks.size() : found->second;
    };
    std::vector<EditedChild>& children = edited(object).children;
    std::stable_sort(children.begin(), children.end(),
                     [&](const EditedChild& a, const EditedChild& b) { return rankOf(a) < rankOf(b); });
}

void Edits::arrangeElements(const jv::JV& array, std::span<const jv::JV* const> elements) {
    std::vector<EditedChild>& children = edited(array).children;
    std::unordered_map<const jv::JV*, std::size_t> places;
    for (std::size_t place = 0; place < children.size(); ++place)
        places.emplace(children[place].value, place);
    std::vector<EditedChild> arranged;
    arranged.reserve(elements.size());
    for (const jv::JV* element : elements)
        if (const auto found = places.find(element); found != places.end())
            arranged.push_back(children[found->second]);
    children = std::move(arranged);
}

void Edits::insertElement(const jv::JV& array, std::size_t place, std::unique_ptr<jv::JV> value) {
    std::vector<EditedChild>& children = edited(array).children;
    EditedChild child;
    child.owned = std::move(value);
    child.value = child.owned.get();
    children.insert(children.begin() + static_cast<std::ptrdiff_t>(std::min(place, children.size())),
                    std::move(child));
}

bool Edits::empty() const {
    return std::none_of(containers_.begin(), containers_.end(),
                        [](const auto& entry) { return entry.second.isChanged(); });
}

std::vector<const EditedContainer*> Edits::changed() const {
    std::vector<const EditedContainer*> result;
    for (const auto& [value, container] : containers_)
        if (container.isChanged())
            result.push_back(&container);
    return result;
}

const EditedContainer* Edits::find(const jv::JV& container) const {
    const auto found = containers_.find(&container);
    return found == containers_.end() ? nullptr : &found->second;
}

/// The state of a container, at first as it was read.
EditedContainer& Edits::edited(const jv::JV& container) {
    EditedContainer& result = containers_[&container];
    if (result.container != nullptr)
        return result;
    result.container = &container;
    if (container.isObject())
        source_->forEachOrdered(&container,
                                [&](const jv::Member& member) { result.before.push_back(member); });
    else
        for (const jv::JV* element : container.elements())
            result.before.push_back({{}, element});
    for (std::uint32_t place = 0; place < result.before.size(); ++place)
        result.children.push_back(
            {place, std::string(result.before[place].key), result.before[place].value, nullptr});
    return result;
}

} // namespace specloom::source_edit
