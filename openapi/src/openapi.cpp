#include "openapi/openapi.h"

#include "openapi/node_children.h"

#include <algorithm> // std::stable_sort

namespace specloom::openapi {

OpenAPI::OpenAPI()
    : Node(nullptr, NodeType::OpenAPI), components_(std::make_unique<Components>(this)),
      info_(std::make_unique<Info>(this)), paths_(std::make_unique<Paths>(this)) {}

OpenAPI::~OpenAPI() = default;

void OpenAPI::onChange(const NodeChange& change) {
    if (const auto* renamed = std::get_if<NodeChange::Renamed>(&change.what)) {
        if (renamed->oldId && !renamed->oldId->empty())
            operationsById_.erase(*renamed->oldId);
        if (renamed->newId && !renamed->newId->empty())
            operationsById_.emplace(*renamed->newId, change.operation);
    } else if (const auto* destroyed = std::get_if<NodeChange::Destroyed>(&change.what)) {
        if (destroyed->id)
            operationsById_.erase(*destroyed->id);
    }
    // An operation that was just created has no id yet.
}

Server* OpenAPI::createServer(Text url) {
    return servers_.emplace_back(std::make_unique<Server>(this, std::move(url))).get();
}

SecurityRequirement* OpenAPI::createSecurityRequirement() {
    return security_.emplace_back(std::make_unique<SecurityRequirement>(this)).get();
}

Tag* OpenAPI::createTag(Text name) {
    Tag* tag = tags_.emplace_back(std::make_unique<Tag>(this, std::move(name))).get();
    tagsByName_.emplace(tag->name(), tag);
    return tag;
}

const Tag* OpenAPI::findTag(std::string_view name) const {
    const auto found = tagsByName_.find(name);
    return found == tagsByName_.end() ? nullptr : found->second;
}

Tag* OpenAPI::findTag(std::string_view name) {
    return const_cast<Tag*>(static_cast<const OpenAPI*>(this)->findTag(name));
}

void OpenAPI::sortTags(const std::function<bool(const Tag&, const Tag&)>& less) {
    std::stable_sort(tags_.begin(), tags_.end(),
                     [&](const auto& first, const auto& second) { return less(*first, *second); });
    tagsByName_.clear();
    for (const auto& tag : tags_)
        tagsByName_.emplace(tag->name(), tag.get());
}

ExternalDocumentation* OpenAPI::createExternalDocs(Text url) {
    if (externalDocs_ != nullptr)
        throw std::runtime_error("ExternalDocs already exists");
    externalDocs_ = std::make_unique<ExternalDocumentation>(this, std::move(url));
    return externalDocs_.get();
}

const PathItem* OpenAPI::findWebhook(std::string_view name) const {
    return resolveTo<PathItem>(webhooks_.find(name));
}

PathItem* OpenAPI::createWebhook(Text name) {
    return createChild<PathItem>(webhooks_, this, std::move(name), "Webhook already exists");
}

Reference* OpenAPI::addWebhookReference(Text name, Node& target) {
    return addReference(webhooks_, this, std::move(name), target, "Path already exists");
}

const Operation* OpenAPI::findOperation(std::string_view operationId) const {
    const auto found = operationsById_.find(operationId);
    return found == operationsById_.end() ? nullptr : found->second;
}

} // namespace specloom::openapi
