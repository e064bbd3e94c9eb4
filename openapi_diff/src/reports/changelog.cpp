#include "openapi_diff/reports/changelog.h"

#include "foundation/unreachable.h"
#include "openapi/parameter.h"

#include <algorithm> // std::max

namespace specloom::openapi_diff {
namespace {

constexpr const char* notImplemented = "Not implemented yet";

bool isOfKey(ChangeKind kind) noexcept {
    return kind == ChangeKind::KeyAdded || kind == ChangeKind::KeyRemoved || kind == ChangeKind::KeyModified;
}

bool isOfElement(ChangeKind kind) noexcept {
    return kind == ChangeKind::ElementAdded || kind == ChangeKind::ElementRemoved ||
           kind == ChangeKind::ElementModified;
}

bool isOfProperty(ChangeKind kind) noexcept {
    return kind == ChangeKind::PropertyAdded || kind == ChangeKind::PropertyRemoved ||
           kind == ChangeKind::PropertyModified;
}

ChangelogEntry entryOf(const Change& change) noexcept {
    return {.kind = change.kind, .level = change.weight, .file = change.file, .pos = change.pos};
}

/// One entry for several changes: where the first one is, as bad as the worst.
void merge(ChangelogEntry& entry, const Change& change, bool isFirst) noexcept {
    const ChangeLevel level = entry.level;
    if (isFirst)
        entry = entryOf(change);
    entry.level = std::max(level, change.weight);
}

/// The list for a kind of keys, elements or properties.
template <typename T>
std::vector<T>& listOf(ByAction<T>& lists, ChangeKind kind) noexcept {
    switch (kind) {
    case ChangeKind::KeyAdded:
    case ChangeKind::ElementAdded:
    case ChangeKind::PropertyAdded:
        return lists.added;
    case ChangeKind::KeyRemoved:
    case ChangeKind::ElementRemoved:
    case ChangeKind::PropertyRemoved:
        return lists.removed;
    default:
        return lists.modified;
    }
}

NamedChange namedChange(const Change& change) {
    return {entryOf(change), change.name};
}

/// Whether the operations of a path item are told. Those of callbacks belong to what the operation that calls
/// back does. A path item under `components` is reported with the operations that changed in it; one that
/// came or went means nothing to users of the API until a path refers to it, and is reported there.
bool tellsOperations(const EnclosingEntry& pathItem) noexcept {
    return pathItem.key == ConfigKey::ComponentsPathItems ? pathItem.isOnBothSides()
                                                          : pathItem.key != ConfigKey::Callback;
}

std::string pathText(const EnclosingEntry& pathItem) {
    return (pathItem.key == ConfigKey::ComponentsPathItems ? "#/components/pathItems/" : "") +
           std::string(pathItem.name);
}

unsigned shiftOf(ChangeKind kind) noexcept {
    return kind == ChangeKind::ElementAdded ? 0 : kind == ChangeKind::ElementRemoved ? 8 : 16;
}

} // namespace

void SecurityCounters::count(ChangeKind kind) noexcept {
    const unsigned shift = shiftOf(kind);
    const std::uint32_t next =
        (std::uint32_t{get(kind)} + 1) & 0xFFU; // wraps, which reports have always shown
    counters_ = (counters_ & ~(0xFFU << shift)) | (next << shift);
}

std::uint8_t SecurityCounters::get(ChangeKind kind) const noexcept {
    return static_cast<std::uint8_t>(counters_ >> shiftOf(kind));
}

/// What counts has a row in take(); any other change has no effect on the level and the counts.
void ChangelogReport::add(const Change& change) {
    // An extension has the key of the field that holds its node, but is no change of that field: the change
    // of the node, which came before, has told of it.
    if (isOfExtension(change.kind))
        return;
    if (take(change))
        record(change.weight);
}

bool ChangelogReport::take(const Change& change) {
    switch (change.key) {
    case ConfigKey::OpenAPIInfo:
        return takeMetadata(change, 0);
    case ConfigKey::InfoTitle:
    case ConfigKey::InfoSummary:
    case ConfigKey::InfoDescription:
    case ConfigKey::InfoTermsOfService:
    case ConfigKey::InfoContact:
    case ConfigKey::InfoLicense: // their bits stand in the order of the keys
        return takeMetadata(
            change, 1U << (static_cast<unsigned>(change.key) - static_cast<unsigned>(ConfigKey::InfoTitle)));
    case ConfigKey::OpenAPIServers:
        return takeServer(change);
    case ConfigKey::Paths:
        return takePath(change);
    case ConfigKey::OpenAPIWebhooks: // which has no row, but brings operations
        (void)takePath(change);
        return false;
    case ConfigKey::PathItemOperations:
        return takeOperation(change);
    case ConfigKey::OperationSummary:
        return takeOperationMetadata(change, &ModifiedOperation::summaryChanged);
    case ConfigKey::OperationOperationId:
        return takeOperationMetadata(change, &ModifiedOperation::operationIdChanged);
    case ConfigKey::OperationDescription:
        return takeOperationMetadata(change, &ModifiedOperation::descriptionChanged);
    case ConfigKey::OperationDeprecated:
        return takeDeprecation(change);
    case ConfigKey::OperationParameters:
        return takeParameter(change);
    case ConfigKey::OperationRequestBody:
        return takeRequestBody(change);
    case ConfigKey::Responses:
        return takeResponse(change);
    case ConfigKey::SecurityRequirement:
        return takeSecurity(change);
    default:
        return false;
    }
}

bool ChangelogReport::takeMetadata(const Change& change, unsigned field) {
    merge(metadata_, change, metadata_.level == ChangeLevel::None);
    metadataFields_ |= field;
    return true;
}

bool ChangelogReport::takeServer(const Change& change) {
    if (!isOfElement(change.kind))
        SPECLOOM_UNREACHABLE(notImplemented);
    const auto& server = static_cast<const openapi::Server&>(*change.node);
    listOf(servers_, change.kind).emplace_back(server.url());
    return true;
}

// ---- paths and their operations

bool ChangelogReport::takePath(const Change& change) {
    if (!isOfKey(change.kind))
        SPECLOOM_UNREACHABLE(notImplemented);
    if (change.kind != ChangeKind::KeyModified)
        takeReferencedOperations(change);
    return true;
}

/// Behind a path that came or went and is a reference to a shared path item nothing of that item follows,
/// but its operations came or went with the path.
void ChangelogReport::takeReferencedOperations(const Change& change) {
    if (change.node == nullptr || change.node->type() != openapi::NodeType::Reference)
        return;
    const auto* item = static_cast<const openapi::PathItem*>(change.node->resolve());
    for (std::size_t method = 0; item != nullptr && method < openapi::operationKeys.size(); ++method) {
        if (item->operations()[method] == nullptr)
            continue;
        std::vector<OperationChange>& list = change.kind == ChangeKind::KeyAdded ? added_ : removed_;
        list.push_back(operationChange(change, openapi::operationKeys[method]));
        record(change.weight);
    }
}

bool ChangelogReport::takeOperation(const Change& change) {
    if (!isOfKey(change.kind))
        SPECLOOM_UNREACHABLE(notImplemented);
    if (change.pathItem == nullptr)
        SPECLOOM_UNREACHABLE(nullptr);
    if (!tellsOperations(*change.pathItem))
        return false;
    if (change.kind == ChangeKind::KeyModified) {
        modifiedOperations_.emplace(change.operation, modified_.size());
        static_cast<OperationChange&>(modified_.emplace_back()) = operationChange(change, change.name);
        return true;
    }
    const bool isAdded = change.kind == ChangeKind::KeyAdded;
    if ((isAdded ? change.pathItem->destination : change.pathItem->source) == nullptr)
        SPECLOOM_UNREACHABLE(nullptr);
    (isAdded ? added_ : removed_).push_back(operationChange(change, change.name));
    return true;
}

OperationChange ChangelogReport::operationChange(const Change& change, std::string_view method) {
    return {entryOf(change), pathText(*change.pathItem), method};
}

// ---- what changed in an operation. It counts only where an operation was modified: below one that was added
// or removed it is part of that, and weighs no more than that.

/// Null for changes that belong to no modified operation, or to one of a callback, and for the security
/// requirements of the document.
ModifiedOperation* ChangelogReport::operationOf(const Change& change) {
    const auto found = modifiedOperations_.find(change.operation);
    return found == modifiedOperations_.end() ? nullptr : &modified_[found->second];
}

bool ChangelogReport::takeOperationMetadata(const Change& change, bool ModifiedOperation::*flag) {
    ModifiedOperation* operation = operationOf(change);
    if (operation == nullptr)
        return false;
    const bool isFirst =
        !operation->summaryChanged && !operation->descriptionChanged && !operation->operationIdChanged;
    merge(operation->metadata, change, isFirst);
    operation->*flag = true;
    return true;
}

/// Either way: the level tells whether the operation became deprecated or is so no longer.
bool ChangelogReport::takeDeprecation(const Change& change) {
    const ModifiedOperation* operation = operationOf(change);
    if (operation == nullptr)
        return false;
    deprecated_.push_back(operationChange(change, operation->method));
    return true;
}

/// A parameter's name and location are what it is known by, so they never change, and the changes of these
/// fields that follow an addition or removal tell nothing more than the parameter does.
bool ChangelogReport::takeParameter(const Change& change) {
    ModifiedOperation* operation = operationOf(change);
    if (operation == nullptr || !isOfElement(change.kind))
        return false;
    const auto* parameter = openapi::resolveTo<openapi::Parameter>(change.node);
    if (parameter == nullptr)
        return false;
    listOf(operation->parameters, change.kind)
        .push_back({entryOf(change), parameter->name(), openapi::parameterLocationName(parameter->location()),
                    parameter->isRequired()});
    return true;
}

bool ChangelogReport::takeRequestBody(const Change& change) {
    ModifiedOperation* operation = operationOf(change);
    if (operation == nullptr || !isOfProperty(change.kind))
        return false;
    listOf(operation->requestBody, change.kind).push_back(namedChange(change));
    return true;
}

bool ChangelogReport::takeResponse(const Change& change) {
    ModifiedOperation* operation = operationOf(change);
    if (operation == nullptr || !isOfKey(change.kind))
        return false;
    listOf(operation->responses, change.kind).push_back(namedChange(change));
    return true;
}

bool ChangelogReport::takeSecurity(const Change& change) {
    ModifiedOperation* operation = operationOf(change);
    if (operation == nullptr || !isOfElement(change.kind))
        return false;
    operation->security.count(change.kind);
    merge(operation->securityChange, change, !operation->securityChanged);
    operation->securityChanged = true;
    return true;
}

} // namespace specloom::openapi_diff
