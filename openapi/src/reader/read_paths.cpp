// Paths, path items, operations, callbacks and responses.

#include "openapi/reader/readers.h"
#include "openapi/reference.h"

namespace specloom::openapi {

namespace {

/// Takes the "x-" members of an object whose other keys are names, and calls `read` for those.
template <typename T, typename Read>
void readNamed(T& node, const jv::JV& value, Read read) {
    node.setSource(&value);
    for (const jv::Member& entry : value.members()) {
        if (entry.key.starts_with("x-"))
            node.replaceExtension(Text::borrow(entry.key), Value::borrow(*entry.value));
        else
            read(entry);
    }
}

// ---- operations

void readOperationTags(ReaderContext& context, Operation& operation, const Member& member) {
    for (const Text& name : readTexts(context, operation, member.asArray()))
        operation.addTag(name.view()); // a tag that the document does not declare is lost
}

void readRequestBodyMember(ReaderContext& context, Operation& operation, const Member& member) {
    readPlace(
        context, operation, ComponentSection::RequestBodies, member.asObject(),
        [&] { return operation.createRequestBody(); },
        [&](Node& target) { return operation.addRequestBodyReference(target); }, readRequestBody);
}

void readResponses(ReaderContext& context, Operation& operation, const Member& member) {
    Responses& responses = operation.responses();
    readNamed(responses, member.asObject(), [&](const jv::Member& entry) {
        readPlace(
            context, responses, ComponentSection::Responses, *entry.value,
            [&] { return responses.createResponse(Text::borrow(entry.key)); },
            [&](Node& target) { return responses.addResponseReference(Text::borrow(entry.key), target); },
            readResponse);
    });
}

void readCallbacks(ReaderContext& context, Operation& operation, const Member& member) {
    for (const jv::Member& entry : member.asObject().members()) {
        readPlace(
            context, operation, ComponentSection::Callbacks, *entry.value,
            [&] { return operation.createCallback(Text::borrow(entry.key)); },
            [&](Node& target) { return operation.addCallbackReference(Text::borrow(entry.key), target); },
            readCallback);
    }
}

void readOperationSecurity(ReaderContext& context, Operation& operation, const Member& member) {
    operation.setInheritsSecurity(false);
    readSecurity(context, operation, member);
}

constexpr ObjectReader<Operation, 12, NodeType::Operation> operationReader({
    {"tags", readOperationTags},
    {"summary", readText<Operation, &Operation::setSummary>},
    {"description", readText<Operation, &Operation::setDescription>},
    {"externalDocs", readExternalDocs<Operation>},
    {"operationId", readText<Operation, &Operation::setOperationId>},
    {"deprecated", readBoolean<Operation, &Operation::setDeprecated>},
    {"parameters", readParameters<Operation>},
    {"requestBody", readRequestBodyMember},
    {"responses", readResponses},
    {"callbacks", readCallbacks},
    {"security", readOperationSecurity},
    {"servers", readServers<Operation>},
});

// ---- path items

template <OperationType type>
void readOperation(ReaderContext& context, PathItem& item, const Member& member) {
    const jv::JV& value = member.asObject();
    operationReader.read(context, *item.createOperation(type), value);
}

constexpr ObjectReader<PathItem, 12, NodeType::PathItem> pathItemReader({
    {"summary", readText<PathItem, &PathItem::setSummary>},
    {"description", readText<PathItem, &PathItem::setDescription>},
    {"get", readOperation<OperationType::Get>},
    {"put", readOperation<OperationType::Put>},
    {"post", readOperation<OperationType::Post>},
    {"delete", readOperation<OperationType::Delete>},
    {"options", readOperation<OperationType::Options>},
    {"head", readOperation<OperationType::Head>},
    {"patch", readOperation<OperationType::Patch>},
    {"trace", readOperation<OperationType::Trace>},
    {"servers", readServers<PathItem>},
    {"parameters", readParameters<PathItem>},
});

} // namespace

void readPathItem(ReaderContext& context, PathItem& item, const jv::JV& value) {
    pathItemReader.read(context, item, value);
}

void readPaths(ReaderContext& context, Paths& paths, const jv::JV& value) {
    paths.reserve(value.size());
    readNamed(paths, value, [&](const jv::Member& entry) {
        readPlace(
            context, paths, ComponentSection::PathItems, *entry.value,
            [&] { return paths.createPathItem(Text::borrow(entry.key)); },
            [&](Node& target) { return paths.addPathItemReference(Text::borrow(entry.key), target); },
            readPathItem);
    });
}

void readCallback(ReaderContext& context, Callback& callback, const jv::JV& value) {
    readNamed(callback, value, [&](const jv::Member& entry) {
        readPlace(
            context, callback, ComponentSection::PathItems, *entry.value,
            [&] { return callback.createPathItem(Text::borrow(entry.key)); },
            [&](Node& target) { return callback.addPathItemReference(Text::borrow(entry.key), target); },
            readPathItem);
    });
}

} // namespace specloom::openapi
