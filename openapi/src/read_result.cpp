#include "openapi/read_result.h"

#include "jv/jv_pointer.h"
#include "openapi/node_visitor.h"
#include "openapi/reference.h"

#include <utility> // std::move

namespace specloom::openapi {

namespace {

/// Enters every object and every reference under the value that it was read from. A walk meets no references,
/// but each is known to its target.
class SourceIndexer final : public NodeVisitHandler {
  public:
    using NodeVisitHandler::visit;

    explicit SourceIndexer(std::unordered_map<const jv::JV*, const Node*>& nodes) : nodes_(nodes) {}

    void visit(const Node& node) override {
        enter(node);
        for (const Reference* reference = node.firstReference(); reference != nullptr;
             reference = reference->nextReference())
            enter(*reference);
    }

  private:
    void enter(const Node& node) {
        if (node.source() != nullptr)
            nodes_.emplace(node.source(), &node);
    }

    std::unordered_map<const jv::JV*, const Node*>& nodes_;
};

/// Puts the new URL of each path item that was renamed in the place of the one that it was read under.
void followRenamedPaths(const Paths& paths, std::vector<std::string_view>& keys) {
    std::unordered_map<const jv::JV*, std::string_view> renamed;
    for (const auto& entry : paths)
        if (const jv::JV* source = entry.value->source();
            source != nullptr && source != paths.source()->get(entry.name()))
            renamed.emplace(source, entry.name());
    if (renamed.empty())
        return;
    for (std::string_view& key : keys)
        if (const auto found = renamed.find(paths.source()->get(key)); found != renamed.end())
            key = found->second;
}

} // namespace

ReadResult::ReadResult(std::unique_ptr<jv::JVDocument> source,
                       std::shared_ptr<const SchemaFormatRegistry> formats)
    : source_(std::move(source)), formats_(std::move(formats)), root_(std::make_unique<OpenAPI>()) {}

ReadResult::~ReadResult() = default;

jv::Location ReadResult::nearestLocationOf(const Node& node) const {
    for (const Node* around = &node; around != nullptr; around = around->parent())
        if (const jv::Location location = locationOf(*around); location.pos.isKnown())
            return location;
    return locationOf(node);
}

std::optional<std::string> ReadResult::pointerOf(const Node& node, std::string_view key) const {
    const jv::Location location = locationOf(node);
    if (location.value == nullptr)
        return std::nullopt;
    std::string pointer;
    jv::childPointer(pointer, location.pointer(), key);
    return pointer;
}

std::vector<std::string_view> ReadResult::keyOrderOf(const Node& node) const {
    if (node.source() == nullptr)
        return {};
    std::vector<std::string_view> keys = source_->keysOf(node.source());
    if (node.type() == NodeType::Paths)
        followRenamedPaths(static_cast<const Paths&>(node), keys);
    return keys;
}

std::vector<std::string_view> ReadResult::keyOrderOf(const Node& node, std::string_view key) const {
    if (node.source() == nullptr || !node.source()->isObject())
        return {};
    const jv::JV* field = nullptr;
    if (node.type() == NodeType::Schema && key == "definitions")
        field = node.source()->get("$defs");
    if (field == nullptr)
        field = node.source()->get(key);
    return field == nullptr ? std::vector<std::string_view>() : source_->keysOf(field);
}

const Node* ReadResult::nodeAtPointer(std::string_view pointer) const {
    if (nodesByValue_.empty()) {
        SourceIndexer indexer(nodesByValue_);
        NodeVisitor(indexer).visit(*root_);
    }
    const auto found = nodesByValue_.find(source_->lookup(pointer));
    return found == nodesByValue_.end() ? nullptr : found->second;
}

} // namespace specloom::openapi
