// How the texts of references find their targets.

#include "foundation/message.h"
#include "openapi/reader/reader_context.h"
#include "openapi/reference.h"

#include <algorithm>     // std::stable_sort
#include <functional>    // std::function
#include <unordered_map> // std::unordered_map

#include <fmt/format.h> // fmt::format

namespace specloom::openapi {

namespace {

/// The key in a reference to a component of `section`; empty when the text is too short to have one.
[[nodiscard]] std::optional<std::string_view> keyIn(std::string_view text, ComponentSection section) {
    constexpr std::size_t frame = std::string_view("#/components//").size();
    const std::size_t head = frame + componentSectionKey(section).size();
    return text.size() < head ? std::nullopt : std::optional(text.substr(head));
}

/// Follows waiting references from one to the next until they reach a schema. Each is followed once, so a
/// chain costs what it is long.
class PendingResolver {
  public:
    using Find = std::function<Node*(std::string_view text)>;

    PendingResolver(const Node& placeholder, Find find) : placeholder_(placeholder), find_(std::move(find)) {}

    /// The texts of references that are components themselves, by the reference.
    void addAlias(const Node& alias, std::string_view text) {
        aliases_.emplace(&alias, Alias{text, nullptr, false});
    }

    /// The schema behind `text`, or null when there is none: no such component, or a circle of references.
    [[nodiscard]] Node* resolve(std::string_view text) {
        std::vector<Alias*> chain;
        Node* target = nullptr;
        for (Node* entry = find_(text); entry != nullptr;) {
            const auto alias = aliases_.find(entry);
            if (alias == aliases_.end() || alias->second.done) {
                target = alias == aliases_.end() ? entry->resolve() : alias->second.target;
                break;
            }
            alias->second.done = true; // meeting it again in this chain finds no target: a circle
            chain.push_back(&alias->second);
            entry = find_(alias->second.text);
        }
        if (target == &placeholder_)
            target = nullptr;
        for (Alias* alias : chain)
            alias->target = target;
        return target;
    }

  private:
    struct Alias {
        std::string_view text;
        Node* target;
        bool done;
    };

    const Node& placeholder_;
    Find find_;
    std::unordered_map<const Node*, Alias> aliases_;
};

} // namespace

const jv::JV* ReaderContext::referenceIn(const jv::JV& value) {
    return value.isObject() ? value.get("$ref") : nullptr;
}

Node* ReaderContext::resolveNow(ComponentSection section, const jv::JV& object, const jv::JV& ref) {
    if (ref.isString()) {
        if (const auto key = keyIn(ref.text(), section); key) {
            if (Node* component = root().components().find(section, *key); component != nullptr)
                return component;
        }
    }
    noteUnresolved(object, ref);
    return nullptr;
}

Node* ReaderContext::findSchema(std::string_view text) {
    const auto key = keyIn(text, ComponentSection::Schemas);
    return key ? root().components().find(ComponentSection::Schemas, *key) : nullptr;
}

Node* ReaderContext::resolveSchema(const jv::JV& object, const jv::JV& ref) {
    if (!ref.isString()) {
        noteUnresolved(object, ref);
        return nullptr;
    }
    Node* component = findSchema(ref.text());
    return component == nullptr ? &placeholder_ : component->resolve();
}

void ReaderContext::noteSchemaReference(Reference& reference, const jv::JV& object, const jv::JV& ref) {
    reference.setSource(&object);
    if (reference.target() == &placeholder_)
        pending_.push_back({ref.text(), &reference, &object});
}

void ReaderContext::noteUnresolved(const jv::JV& object, const jv::JV& ref) {
    unresolved_.push_back(
        {ref.isString() ? std::string(ref.text()) : fmt::format("({})", typeName(ref.kind())), &object});
}

void ReaderContext::resolvePending() {
    PendingResolver resolver(placeholder_, [this](std::string_view text) { return findSchema(text); });
    for (const Pending& pending : pending_) {
        if (pending.reference->parent() == &root().components())
            resolver.addAlias(*pending.reference, pending.text);
    }
    for (const Pending& pending : pending_) {
        if (Node* target = resolver.resolve(pending.text); target != nullptr)
            pending.reference->setTarget(target);
        else
            unresolved_.push_back({std::string(pending.text), pending.object});
    }
    reportUnresolved();
}

void ReaderContext::reportUnresolved() {
    if (unresolved_.empty())
        return;
    std::stable_sort(
        unresolved_.begin(), unresolved_.end(),
        [](const Unresolved& first, const Unresolved& second) { return first.text < second.text; });
    report(placeholder_, nullptr, "Unresolved references found");
    for (const Unresolved& unresolved : unresolved_)
        report(root(), unresolved.object, formatMessage("Unresolved reference: {}", unresolved.text));
}

} // namespace specloom::openapi
