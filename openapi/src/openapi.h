#pragma once

#include "foundation/text_tables.h"
#include "openapi/components.h"
#include "openapi/external_documentation.h"
#include "openapi/info.h"
#include "openapi/paths.h"
#include "openapi/security_requirement.h"
#include "openapi/server.h"
#include "openapi/tag.h"

#include <functional> // std::function
#include <map>        // std::map
#include <vector>     // std::vector

namespace specloom::openapi {

/// OpenAPI Object (OpenAPI 3.1.0, section 4.8.1): the root, and the only node without a parent. Valid from
/// its construction on.
class OpenAPI final : public Node {
  public:
    OpenAPI();
    ~OpenAPI() override;

    /// Keeps the index of operations by id. Ids are unique in it: an insertion never replaces, and renaming
    /// or destroying either of two operations of one id erases the key.
    void onChange(const NodeChange& change) override;

    /// The text of the member "openapi"; "3.1.0" until it is set.
    [[nodiscard]] std::string_view version() const { return openapi_.view(); }
    void setVersion(Text version) { openapi_ = std::move(version); }
    /// Whether the version starts with "3.0".
    [[nodiscard]] bool isVersion30() const { return version().starts_with("3.0"); }
    /// Whether the version starts with "3.1".
    [[nodiscard]] bool isVersion31() const { return version().starts_with("3.1"); }

    [[nodiscard]] const Info& info() const { return *info_; }
    [[nodiscard]] Info& info() { return *info_; }
    [[nodiscard]] const Components& components() const { return *components_; }
    [[nodiscard]] Components& components() { return *components_; }
    [[nodiscard]] const Paths& paths() const { return *paths_; }
    [[nodiscard]] Paths& paths() { return *paths_; }

    [[nodiscard]] std::optional<std::string_view> jsonSchemaDialect() const {
        return jsonSchemaDialect_.get();
    }
    void setJsonSchemaDialect(Text jsonSchemaDialect) { jsonSchemaDialect_ = std::move(jsonSchemaDialect); }

    [[nodiscard]] const std::vector<std::unique_ptr<Server>>& servers() const { return servers_; }
    Server* createServer(Text url);

    [[nodiscard]] const std::vector<std::unique_ptr<SecurityRequirement>>& security() const {
        return security_;
    }
    SecurityRequirement* createSecurityRequirement();

    /// In source order. Names may repeat.
    [[nodiscard]] const std::vector<std::unique_ptr<Tag>>& tags() const { return tags_; }
    Tag* createTag(Text name);
    /// The first one of exactly that name, or null.
    [[nodiscard]] const Tag* findTag(std::string_view name) const;
    [[nodiscard]] Tag* findTag(std::string_view name);
    /// Puts the tags into the order of `less`; those that it takes for equal keep theirs.
    void sortTags(const std::function<bool(const Tag&, const Tag&)>& less);

    /// Null when there is none.
    [[nodiscard]] const ExternalDocumentation* externalDocs() const { return externalDocs_.get(); }
    /// Throws std::runtime_error "ExternalDocs already exists".
    ExternalDocumentation* createExternalDocs(Text url);

    /// Path items or references to one.
    [[nodiscard]] const NodeMap& webhooks() const { return webhooks_; }
    /// The resolved path item, or null.
    [[nodiscard]] const PathItem* findWebhook(std::string_view name) const;
    /// Throws std::runtime_error "Webhook already exists".
    PathItem* createWebhook(Text name);
    /// Throws std::runtime_error "Path already exists".
    Reference* addWebhookReference(Text name, Node& target);

    [[nodiscard]] const std::map<std::string, Operation*, std::less<>>& operationsById() const {
        return operationsById_;
    }
    /// Null when no operation is indexed under that id.
    [[nodiscard]] const Operation* findOperation(std::string_view operationId) const;

  private:
    std::map<std::string, Operation*, std::less<>>
        operationsById_; ///< first, so that it outlives all operations
    std::unique_ptr<Components> components_;
    Text openapi_ = Text::borrow("3.1.0");
    std::unique_ptr<Info> info_;
    Text jsonSchemaDialect_;
    std::vector<std::unique_ptr<Server>> servers_;
    std::unique_ptr<Paths> paths_;
    NodeMap webhooks_;
    std::vector<std::unique_ptr<SecurityRequirement>> security_;
    std::vector<std::unique_ptr<Tag>> tags_;
    TextViewMap<Tag*> tagsByName_; ///< the first tag of each name
    std::unique_ptr<ExternalDocumentation> externalDocs_;
};

/// The root of the tree that holds `node`.
[[nodiscard]] inline const OpenAPI& documentOf(const Node& node) {
    return static_cast<const OpenAPI&>(*node.root());
}
[[nodiscard]] inline OpenAPI& documentOf(Node& node) {
    return static_cast<OpenAPI&>(*node.root());
}

} // namespace specloom::openapi
