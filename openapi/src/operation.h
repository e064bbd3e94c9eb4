#pragma once

#include "openapi/external_documentation.h"
#include "openapi/parameter_list.h"
#include "openapi/request_body.h"
#include "openapi/responses.h"
#include "openapi/security_requirement.h"
#include "openapi/server.h"

#include <vector> // std::vector

namespace specloom::openapi {

class Callback;
class OpenAPI;
class Tag;

/// Operation Object (OpenAPI 3.1.0, section 4.8.10).
///
/// Tells the root of its creation, of each change of its id and of its destruction; the root keeps an index.
class Operation final : public Node {
  public:
    explicit Operation(Node* parent);
    ~Operation() override;

    /// Tags that the document declares, in source order.
    [[nodiscard]] const std::vector<Tag*>& tags() const { return tags_; }
    /// The declared tag of that name, which is now one of tags(). Null, and nothing is stored, when the
    /// document declares no such tag.
    Tag* addTag(std::string_view name);

    [[nodiscard]] std::optional<std::string_view> summary() const { return summary_.get(); }
    void setSummary(Text summary) { summary_ = std::move(summary); }
    [[nodiscard]] std::optional<std::string_view> description() const { return description_.get(); }
    void setDescription(Text description) { description_ = std::move(description); }

    /// Null when there is none.
    [[nodiscard]] const ExternalDocumentation* externalDocs() const { return externalDocs_.get(); }
    /// Returns the one that is there, ignoring `url`, when there is one.
    ExternalDocumentation* createExternalDocs(Text url);

    [[nodiscard]] std::optional<std::string_view> operationId() const { return operationId_.get(); }
    /// Throws std::runtime_error "OperationId cannot be empty".
    void setOperationId(Text id);

    /// The own parameters, as written.
    [[nodiscard]] const ParameterList& parameters() const { return parameters_; }
    /// The first own parameter whose resolved object has exactly that name and location, or null.
    [[nodiscard]] const Parameter* findParameter(std::string_view name, ParameterLocation location) const {
        return parameters_.find(name, location);
    }
    /// The resolved own parameter. Throws std::out_of_range past the end.
    [[nodiscard]] const Parameter* parameterAt(std::size_t index) const { return parameters_.at(index); }
    /// The own parameters, resolved, and behind them those of the path item that none of the former hides by
    /// its name and location.
    [[nodiscard]] std::vector<const Parameter*> effectiveParameters() const;
    /// All throw std::runtime_error "Parameter already exists" when there is an own one of that name and
    /// location.
    PathParameter* createPathParameter(Text name);
    QueryParameter* createQueryParameter(Text name);
    HeaderParameter* createHeaderParameter(Text name);
    CookieParameter* createCookieParameter(Text name);
    Reference* addParameterReference(Node& target);
    /// ParameterList::rename().
    void renameParameter(std::size_t index, Text name) { parameters_.rename(index, std::move(name)); }

    /// The resolved request body, or null.
    [[nodiscard]] const RequestBody* requestBody() const;
    [[nodiscard]] const Node* requestBodyNode() const { return requestBody_.get(); }
    /// Both throw std::runtime_error "Request body already exists".
    RequestBody* createRequestBody();
    Reference* addRequestBodyReference(Node& target);

    [[nodiscard]] const Responses& responses() const { return *responses_; }
    [[nodiscard]] Responses& responses() { return *responses_; }

    /// Callbacks or references to one.
    [[nodiscard]] const NodeMap& callbacks() const { return callbacks_; }
    /// Both throw std::runtime_error "Callback already exists".
    Callback* createCallback(Text key);
    Reference* addCallbackReference(Text key, Node& target);

    [[nodiscard]] bool deprecated() const { return deprecated_; }
    void setDeprecated(bool deprecated) { deprecated_ = deprecated; }

    /// False when the operation has a `security` member, be it empty.
    [[nodiscard]] bool inheritsSecurity() const { return inheritsSecurity_; }
    /// True also empties security().
    void setInheritsSecurity(bool inherits);
    [[nodiscard]] const std::vector<std::unique_ptr<SecurityRequirement>>& security() const {
        return security_;
    }
    /// Also sets inheritsSecurity() to false.
    SecurityRequirement* createSecurityRequirement();

    [[nodiscard]] const std::vector<std::unique_ptr<Server>>& servers() const { return servers_; }
    Server* createServer(Text url);

  private:
    void requireNewParameter(std::string_view name, ParameterLocation location) const;

    std::vector<Tag*> tags_;
    Text summary_;
    Text description_;
    std::unique_ptr<ExternalDocumentation> externalDocs_;
    Text operationId_;
    ParameterList parameters_;
    NodePointer requestBody_;
    std::unique_ptr<Responses> responses_;
    NodeMap callbacks_;
    bool deprecated_ = false;
    bool inheritsSecurity_ = true;
    std::vector<std::unique_ptr<SecurityRequirement>> security_;
    std::vector<std::unique_ptr<Server>> servers_;
};

} // namespace specloom::openapi
