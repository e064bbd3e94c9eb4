#include "openapi_generator_doc_html/document/usages.h"

#include "openapi/discriminator.h"
#include "openapi/node_visitor.h"
#include "openapi/openapi.h"
#include "openapi_generator_doc_html/document/component_name.h"

#include <algorithm>     // std::ranges::sort, std::unique
#include <cstddef>       // std::size_t
#include <cstdint>       // std::uint32_t, UINT32_MAX
#include <optional>      // std::optional
#include <unordered_map> // std::unordered_map
#include <utility>       // std::move, std::pair

namespace specloom::openapi_generator::doc_html {

namespace {

using openapi::Node;
using openapi::NodeType;

using UserId = std::uint32_t;
constexpr UserId noUser = UINT32_MAX;

/// The names of schemas that discriminators map to.
class MappedNames final : public openapi::NodeVisitHandler {
  public:
    using NodeVisitHandler::visit;
    void visit(const openapi::Discriminator& discriminator) override {
        constexpr std::string_view frame = "#/components/schemas/";
        for (const auto& entry : discriminator.mapping()) {
            const std::string_view text = entry.value.view();
            names.emplace_back(&discriminator, text.starts_with(frame) ? text.substr(frame.size()) : text);
        }
    }

    std::vector<std::pair<const openapi::Discriminator*, std::string_view>> names;
};

/// What uses components, as a graph. Its nodes are the components, those of schemas first, and what stands in
/// path items; references lead from the one around them to the component that they name, and what stands
/// around another leads to it.
class UsageGraph {
  public:
    explicit UsageGraph(const openapi::OpenAPI& document)
        : components_(document.components()), users_(document.indexLimit(), noUser) {
        for (std::size_t section = 0; section < openapi::componentSectionCount; ++section) {
            for (const auto& entry : components_.section(static_cast<openapi::ComponentSection>(section)))
                add(*entry.value);
            schemaCount_ = section == 0 ? uses_.size() : schemaCount_;
        }
        addReferences();
        addMappings(document);
        for (std::vector<UserId>& uses : uses_) {
            std::ranges::sort(uses);
            uses.erase(std::unique(uses.begin(), uses.end()), uses.end());
        }
        reached_.resize(uses_.size(), 0);
    }

    /// Numbers of schemas in ascending order, counted from 0.
    [[nodiscard]] std::vector<std::uint32_t> schemasOf(const openapi::OperationRef& ref) {
        ++search_;
        std::vector<std::uint32_t> schemas;
        std::vector<UserId> waiting;
        const auto reach = [&](UserId user) {
            if (user == noUser || reached_[user] == search_)
                return;
            reached_[user] = search_;
            waiting.push_back(user);
            if (user < schemaCount_)
                schemas.push_back(user);
        };
        reach(users_[ref.operation->index()]);
        for (const openapi::NodePointer& parameter : ref.pathItem->parameters().nodes()) {
            if (!isHidden(*parameter, *ref.operation))
                reach(users_[parameter->index()]);
        }
        while (!waiting.empty()) {
            const UserId user = waiting.back();
            waiting.pop_back();
            for (const UserId used : uses_[user])
                reach(used);
        }
        std::ranges::sort(schemas);
        return schemas;
    }

  private:
    UserId add(const Node& node) {
        const auto user = static_cast<UserId>(uses_.size());
        uses_.emplace_back();
        users_[node.index()] = user;
        return user;
    }

    /// Whether a parameter of the path item gives way to one of the operation.
    [[nodiscard]] static bool isHidden(const Node& node, const openapi::Operation& operation) {
        const auto* parameter = openapi::resolveTo<openapi::Parameter>(&node);
        return parameter != nullptr &&
               operation.findParameter(parameter->name(), parameter->location()) != nullptr;
    }

    [[nodiscard]] static bool isUser(const Node& node) {
        return node.type() == NodeType::PathItem ||
               (node.parent() != nullptr && node.parent()->type() == NodeType::PathItem);
    }

    /// The innermost one around a node, or the node itself; noUser where there is none, as at the root.
    [[nodiscard]] UserId userAround(const Node& node) {
        std::vector<const Node*> path;
        const Node* at = &node;
        for (; at != nullptr && users_[at->index()] == noUser; at = at->parent())
            path.push_back(at);
        UserId user = at == nullptr ? noUser : users_[at->index()];
        for (auto step = path.rbegin(); step != path.rend(); ++step) {
            if (isUser(**step)) {
                const UserId inner = add(**step);
                if (user != noUser)
                    uses_[user].push_back(inner);
                user = inner;
            } else {
                users_[(*step)->index()] = user;
            }
        }
        return user;
    }

    void addReferences() {
        for (std::size_t i = 0; i < openapi::componentSectionCount; ++i) {
            for (const auto& entry : components_.section(static_cast<openapi::ComponentSection>(i))) {
                for (const openapi::Reference* reference = entry.value->firstReference();
                     reference != nullptr; reference = reference->nextReference())
                    addReference(*reference);
            }
        }
    }

    void addReference(const openapi::Reference& reference) {
        const std::optional<ComponentName> name = componentNameOf(reference);
        const UserId user = userAround(reference);
        if (name && user != noUser)
            uses_[user].push_back(users_[components_.section(name->section).find(name->name)->index()]);
    }

    void addMappings(const openapi::OpenAPI& document) {
        MappedNames mapped;
        openapi::NodeVisitor(mapped).visit(document);
        for (const auto& [discriminator, name] : mapped.names) {
            const Node* schema = components_.schemas().find(name);
            const UserId user = userAround(*discriminator);
            if (schema != nullptr && user != noUser)
                uses_[user].push_back(users_[schema->index()]);
        }
    }

    const openapi::Components& components_;
    std::vector<UserId> users_; ///< the one around each node, by Node::index(), where it is known
    std::vector<std::vector<UserId>> uses_;
    std::size_t schemaCount_ = 0;
    std::vector<std::uint32_t> reached_; ///< the last search that reached each
    std::uint32_t search_ = 0;
};

} // namespace

struct Usages::Tables {
    std::vector<std::string_view> names; ///< of schemas, which everything else tells by their numbers
    std::unordered_map<const openapi::Operation*, std::vector<std::uint32_t>> schemas;
    std::unordered_map<std::string_view, std::vector<openapi::OperationRef>> operations;
};

Usages::Usages(const openapi::OpenAPI& document) {
    auto tables = std::make_unique<Tables>();
    for (const auto& entry : document.components().schemas())
        tables->names.push_back(entry.name());
    UsageGraph graph(document);
    for (const openapi::OperationRef& ref : openapi::operationsOf(document)) {
        const auto [known, isNew] = tables->schemas.try_emplace(ref.operation);
        if (isNew) // else its path item stands under several paths
            known->second = graph.schemasOf(ref);
        for (const std::uint32_t schema : known->second)
            tables->operations[tables->names[schema]].push_back(ref);
    }
    tables_ = std::move(tables);
}

Usages::~Usages() = default;

std::vector<std::string> Usages::schemasOf(const openapi::OperationRef& ref) const {
    std::vector<std::string> names;
    if (const auto known = tables_->schemas.find(ref.operation); known != tables_->schemas.end()) {
        for (const std::uint32_t schema : known->second)
            names.emplace_back(tables_->names[schema]);
    }
    return names;
}

std::vector<openapi::OperationRef> Usages::operationsOf(std::string_view schema) const {
    const auto known = tables_->operations.find(schema);
    return known == tables_->operations.end() ? std::vector<openapi::OperationRef>() : known->second;
}

} // namespace specloom::openapi_generator::doc_html
