#include "openapi/node_visitor.h"

#include "openapi/node_dispatch.h"

#include <algorithm> // std::reverse
#include <cstdint>   // std::uint8_t

namespace specloom::openapi {

namespace {

/// Appends the children of a node to a list, in the order in which they are walked and as what they resolve
/// to. Absent children are left out.
class ChildCollector {
  public:
    explicit ChildCollector(std::vector<const Node*>& out) : out_(out) {}

    void add(const Node* node) {
        // A type is at hand where a virtual call is not, and few children are references.
        if (node != nullptr && node->type() == NodeType::Reference)
            node = node->resolve();
        if (node == nullptr)
            return;
        // It is met soon, and is larger than the line of the cache that its type has brought.
        __builtin_prefetch(reinterpret_cast<const char*>(node) + 64);
        __builtin_prefetch(reinterpret_cast<const char*>(node) + 128);
        out_.push_back(node);
    }
    void add(const NodePointer& node) { add(node.get()); }
    template <typename T>
    void addAll(const T& nodes) {
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

enum class Shape : std::uint8_t { Single, List, Map };

struct ChildKeyword {
    SchemaKeyword keyword;
    Shape shape;
};

constexpr ChildKeyword childKeywords[] = {
    {SchemaKeyword::ContentSchema, Shape::Single},
    {SchemaKeyword::PrefixItems, Shape::List},
    {SchemaKeyword::Items, Shape::Single},
    {SchemaKeyword::AdditionalItems, Shape::Single},
    {SchemaKeyword::Contains, Shape::Single},
    {SchemaKeyword::UnevaluatedItems, Shape::Single},
    {SchemaKeyword::Properties, Shape::Map},
    {SchemaKeyword::PatternProperties, Shape::Map},
    {SchemaKeyword::AdditionalProperties, Shape::Single},
    {SchemaKeyword::PropertyNames, Shape::Single},
    {SchemaKeyword::DependentSchemas, Shape::Map},
    {SchemaKeyword::UnevaluatedProperties, Shape::Single},
    {SchemaKeyword::AllOf, Shape::List},
    {SchemaKeyword::OneOf, Shape::List},
    {SchemaKeyword::AnyOf, Shape::List},
    {SchemaKeyword::Not, Shape::Single},
    {SchemaKeyword::If, Shape::Single},
    {SchemaKeyword::Then, Shape::Single},
    {SchemaKeyword::Else, Shape::Single},
    {SchemaKeyword::Definitions, Shape::Map},
    {SchemaKeyword::XML, Shape::Single},
    {SchemaKeyword::Discriminator, Shape::Single},
    {SchemaKeyword::ExternalDocs, Shape::Single},
};

constexpr SchemaKeywords childKeywordSet = [] {
    SchemaKeywords set;
    for (const ChildKeyword& child : childKeywords)
        set.add(child.keyword);
    return set;
}();

void ChildCollector::of(const Schema& node) {
    if (!node.keywords().meets(childKeywordSet)) // most schemas are leaves
        return;
    for (const auto& [keyword, shape] : childKeywords) {
        if (!node.has(keyword))
            continue;
        switch (shape) {
        case Shape::Single:
            add(node.node(keyword));
            break;
        case Shape::List:
            addAll(node.list(keyword));
            break;
        case Shape::Map:
            addMap(node.map(keyword));
            break;
        }
    }
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
