#include "openapi/node_visitor.h"

#include "openapi/node_dispatch.h"

#include <algorithm> // std::reverse

namespace specloom::openapi {

namespace {

/// Appends the children of a node to a list, in the order in which they are walked and as what they resolve
/// to. Absent children are left out.
class ChildCollector {
  public:
    explicit ChildCollector(std::vector<const Node*>& out) : out_(out) {}

    void add(const Node* node) {
        if (node == nullptr)
            return;
        if (const Node* object = node->resolve(); object != nullptr)
            out_.push_back(object);
    }
    void add(const NodePointer& node) { add(node.get()); }
    template <typename T>
    void addAll(const std::vector<T>& nodes) {
        for (const auto& node : nodes)
            add(&*node);
    }
    template <typename Map>
    void addMap(const Map& map) {
        for (const auto& entry : map)
            add(entry.value);
    }

    void of(const OpenAPI& node) {
        add(&node.info());
        addAll(node.servers());
        add(&node.paths());
        addMap(node.webhooks());
        add(&node.components());
        addAll(node.security());
        addAll(node.tags());
        add(node.externalDocs());
    }
    void of(const Info& node) {
        add(node.contact());
        add(node.license());
    }
    void of(const Server& node) { addMap(node.variables()); }
    void of(const Paths& node) { addMap(node.items()); }
    void of(const PathItem& node) {
        for (const auto& operation : node.operations())
            add(operation.get());
        addAll(node.servers());
        addAll(node.parameters().nodes());
    }
    void of(const Operation& node) {
        addAll(node.tags());
        add(node.externalDocs());
        addAll(node.effectiveParameters());
        add(node.requestBodyNode());
        add(&node.responses());
        addMap(node.callbacks());
        addAll(node.security());
        addAll(node.servers());
    }
    void of(const Components& node) {
        for (std::size_t section = 0; section < componentSectionCount; ++section)
            addMap(node.section(static_cast<ComponentSection>(section)));
    }
    void of(const Responses& node) { addMap(node.items()); }
    void of(const Response& node) {
        addMap(node.headers());
        addMap(node.content());
        addMap(node.links());
    }
    void of(const RequestBody& node) { addMap(node.content()); }
    void of(const MediaType& node) {
        add(node.schemaNode());
        addMap(node.examples().map());
        addMap(node.encodings());
    }
    void of(const Encoding& node) { addMap(node.headers()); }
    template <typename ParameterOrHeader>
    void described(const ParameterOrHeader& node) {
        addMap(node.examples().map());
        add(node.value().schemaNode());
        add(node.value().mediaType());
    }
    void of(const Parameter& node) { described(node); }
    void of(const Header& node) { described(node); }
    void of(const Link& node) { add(node.server()); }
    void of(const Callback& node) { addMap(node.items()); }
    void of(const Tag& node) { add(node.externalDocs()); }
    void of(const SecurityScheme& node) {
        if (node.type() == NodeType::OAuth2SecurityScheme)
            add(&static_cast<const OAuth2SecurityScheme&>(node).flows());
    }
    void of(const OAuthFlows& node) {
        add(node.implicit());
        add(node.password());
        add(node.clientCredentials());
        add(node.authorizationCode());
    }
    void of(const Schema& node);
    void of(const Node&) {}

  private:
    std::vector<const Node*>& out_;
};

void ChildCollector::of(const Schema& node) {
    using enum SchemaKeyword;
    add(node.node(ContentSchema));
    addAll(node.prefixItems());
    for (const SchemaKeyword field : {Items, AdditionalItems, Contains, UnevaluatedItems})
        add(node.node(field));
    addMap(node.properties());
    addMap(node.patternProperties());
    add(node.node(AdditionalProperties));
    add(node.node(PropertyNames));
    addMap(node.dependentSchemas());
    add(node.node(UnevaluatedProperties));
    addAll(node.allOf());
    addAll(node.oneOf());
    addAll(node.anyOf());
    for (const SchemaKeyword field : {Not, If, Then, Else})
        add(node.node(field));
    addMap(node.definitions());
    add(node.xml());
    add(node.discriminator());
    add(node.externalDocs());
}

} // namespace

void NodeVisitor::visit(const Node& start) {
    const Node* object = start.resolve();
    if (object == nullptr)
        return;
    if (visited_.size() < object->indexLimit())
        visited_.resize(object->indexLimit());
    std::vector<const Node*> pending{object}; // the next one at the end
    while (!pending.empty()) {
        const Node& node = *pending.back();
        pending.pop_back();
        if (!markVisited(node))
            continue;
        dispatchNode(node, [&](const auto& typed) {
            handler_.visit(typed);
            handler_.visit(node);
            const auto first = static_cast<std::ptrdiff_t>(pending.size());
            ChildCollector(pending).of(typed);
            std::reverse(pending.begin() + first, pending.end());
        });
    }
}

bool NodeVisitor::markVisited(const Node& node) {
    if (visited_[node.index()])
        return false;
    visited_[node.index()] = true;
    return true;
}

} // namespace specloom::openapi
