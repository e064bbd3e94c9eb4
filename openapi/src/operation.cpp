#include "openapi/operation.h"

#include "foundation/unreachable.h"
#include "openapi/callback.h"
#include "openapi/node_children.h"
#include "openapi/openapi.h"

namespace specloom::openapi {

namespace {

[[nodiscard]] std::optional<std::string> copyOf(const Text& text) {
    return text.isSet() ? std::optional<std::string>(text.view()) : std::nullopt;
}

} // namespace

Operation::Operation(Node* parent)
    : Node(parent, NodeType::Operation), responses_(std::make_unique<Responses>(this)) {
    notifyChange({this, NodeChange::Created{}});
}

Operation::~Operation() {
    notifyChange({this, NodeChange::Destroyed{copyOf(operationId_)}});
}

Tag* Operation::addTag(std::string_view name) {
    Tag* tag = documentOf(*this).findTag(name);
    if (tag != nullptr)
        tags_.push_back(tag);
    return tag;
}

ExternalDocumentation* Operation::createExternalDocs(Text url) {
    if (externalDocs_ == nullptr)
        externalDocs_ = std::make_unique<ExternalDocumentation>(this, std::move(url));
    return externalDocs_.get();
}

void Operation::setOperationId(Text id) {
    if (operationId_.isSet() && operationId_.view() == id.view())
        return;
    if (id.view().empty())
        throw std::runtime_error("OperationId cannot be empty");
    notifyChange({this, NodeChange::Renamed{copyOf(operationId_), std::string(id.view())}});
    operationId_ = std::move(id);
}

std::vector<const Parameter*> Operation::effectiveParameters() const {
    static const ParameterList none;
    const bool onItem = parent()->type() == NodeType::PathItem;
    const ParameterList& shared = onItem ? static_cast<const PathItem*>(parent())->parameters() : none;

    std::vector<const Parameter*> effective;
    effective.reserve(parameters_.size() + shared.size());
    ParameterKeys taken;
    for (const NodePointer& node : parameters_.nodes()) {
        const auto* parameter = resolveTo<Parameter>(node.get());
        effective.push_back(parameter);
        if (!shared.empty())
            taken.insert({parameter->location(), parameter->name()});
    }
    for (const NodePointer& node : shared.nodes()) {
        const auto* parameter = resolveTo<Parameter>(node.get());
        if (taken.insert({parameter->location(), parameter->name()}))
            effective.push_back(parameter);
    }
    return effective;
}

void Operation::requireNewParameter(std::string_view name, ParameterLocation location) const {
    if (findParameter(name, location) != nullptr)
        throw std::runtime_error("Parameter already exists");
}

PathParameter* Operation::createPathParameter(Text name) {
    requireNewParameter(name.view(), ParameterLocation::Path);
    return static_cast<PathParameter*>(
        &parameters_.add(std::make_unique<PathParameter>(this, std::move(name))));
}

QueryParameter* Operation::createQueryParameter(Text name) {
    requireNewParameter(name.view(), ParameterLocation::Query);
    return static_cast<QueryParameter*>(
        &parameters_.add(std::make_unique<QueryParameter>(this, std::move(name))));
}

HeaderParameter* Operation::createHeaderParameter(Text name) {
    requireNewParameter(name.view(), ParameterLocation::Header);
    return static_cast<HeaderParameter*>(
        &parameters_.add(std::make_unique<HeaderParameter>(this, std::move(name))));
}

CookieParameter* Operation::createCookieParameter(Text name) {
    requireNewParameter(name.view(), ParameterLocation::Cookie);
    return static_cast<CookieParameter*>(
        &parameters_.add(std::make_unique<CookieParameter>(this, std::move(name))));
}

Reference* Operation::addParameterReference(Node& target) {
    const auto* parameter = resolveTo<Parameter>(&target);
    requireNewParameter(parameter->name(), parameter->location());
    return static_cast<Reference*>(&parameters_.add(target.createReference(this)));
}

const RequestBody* Operation::requestBody() const {
    if (requestBody_ == nullptr)
        return nullptr;
    if (requestBody_->type() != NodeType::RequestBody && requestBody_->type() != NodeType::Reference)
        SPECLOOM_UNREACHABLE("Request body of another type");
    return resolveTo<RequestBody>(requestBody_.get());
}

RequestBody* Operation::createRequestBody() {
    if (requestBody_ != nullptr)
        throw std::runtime_error("Request body already exists");
    requestBody_ = std::make_unique<RequestBody>(this);
    return static_cast<RequestBody*>(requestBody_.get());
}

Reference* Operation::addRequestBodyReference(Node& target) {
    if (requestBody_ != nullptr)
        throw std::runtime_error("Request body already exists");
    requestBody_ = target.createReference(this);
    return static_cast<Reference*>(requestBody_.get());
}

Callback* Operation::createCallback(Text key) {
    return createChild<Callback>(callbacks_, this, std::move(key), "Callback already exists");
}

Reference* Operation::addCallbackReference(Text key, Node& target) {
    return addReference(callbacks_, this, std::move(key), target, "Callback already exists");
}

void Operation::setInheritsSecurity(bool inherits) {
    inheritsSecurity_ = inherits;
    if (inherits)
        security_.clear();
}

SecurityRequirement* Operation::createSecurityRequirement() {
    inheritsSecurity_ = false;
    return security_.emplace_back(std::make_unique<SecurityRequirement>(this)).get();
}

Server* Operation::createServer(Text url) {
    return servers_.emplace_back(std::make_unique<Server>(this, std::move(url))).get();
}

} // namespace specloom::openapi
