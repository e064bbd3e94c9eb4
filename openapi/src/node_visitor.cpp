#include "openapi/node_visitor.h"

#include "openapi/node_dispatch.h"
#include "openapi/shape.h"

#include <algorithm> // std::ranges::count_if, std::ranges::sort, std::ranges::transform, std::reverse
#include <array>     // std::array
#include <utility>   // std::move

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

struct ChildKeyword {
    SchemaKeyword keyword;
    Arrangement arrangement;
};

/// The members of schemas that hold objects, in the order in which they are walked.
constexpr auto childKeywords = [] {
    constexpr auto leadsOn = [](const MemberShape& row) {
        return row.content == Content::Object && row.written != Written::Never;
    };
    std::array<const MemberShape*, std::ranges::count_if(shape::schema, leadsOn)> rows{};
    std::size_t count = 0;
    for (const MemberShape& row : shape::schema)
        if (leadsOn(row))
            rows[count++] = &row;
    std::ranges::sort(rows, [](const MemberShape* a, const MemberShape* b) {
        return a->walking != b->walking ? a->walking < b->walking : a < b;
    });
    std::array<ChildKeyword, rows.size()> keywords{};
    std::ranges::transform(rows, keywords.begin(), [](const MemberShape* row) {
        return ChildKeyword{*row->keyword, row->arrangement};
    });
    return keywords;
}();

constexpr SchemaKeywords childKeywordSet = [] {
    SchemaKeywords set;
    for (const ChildKeyword& child : childKeywords)
        set.add(child.keyword);
    return set;
}();

void ChildCollector::of(const Schema& node) {
    if (!node.keywords().meets(childKeywordSet)) // most schemas are leaves
        return;
    for (const auto& [keyword, arrangement] : childKeywords) {
        if (!node.has(keyword))
            continue;
        switch (arrangement) {
        case Arrangement::One:
        case Arrangement::OneOrList: // a tree has no lists there
            add(node.node(keyword));
            break;
        case Arrangement::List:
            addAll(node.list(keyword));
            break;
        case Arrangement::Map:
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

std::vector<Node*> nodesOf(OpenAPI& root) {
    class Collector final : public NodeVisitHandler {
      public:
        using NodeVisitHandler::visit;
        // A visitor shows what is not to be changed; these belong to a tree that is.
        void visit(const Node& node) override { nodes.push_back(const_cast<Node*>(&node)); }

        std::vector<Node*> nodes;
    };
    Collector collector;
    NodeVisitor(collector).visit(root);
    return std::move(collector.nodes);
}

} // namespace specloom::openapi
