// Paths, path items, operations, callbacks and responses.

#include "openapi/openapi.h"
#include "openapi/writer/node_writers.h"

namespace specloom::openapi {

void writeMembers(ObjectWriter& out, const Paths& paths) {
    out.entries(paths.items());
}

void writeMembers(ObjectWriter& out, const PathItem& item) {
    out.text("summary", item.summary());
    out.text("description", item.description());
    for (std::size_t index = 0; index < operationKeys.size(); ++index)
        out.node(operationKeys[index], item.operations()[index].get());
    out.list("parameters", item.parameters().nodes());
    out.list("servers", item.servers());
}

void writeMembers(ObjectWriter& out, const Operation& operation) {
    out.array("tags", operation.tags(), [](const Tag* tag) { return std::make_unique<jv::JV>(tag->name()); });
    out.text("summary", operation.summary());
    out.text("description", operation.description());
    out.node("externalDocs", operation.externalDocs());
    out.text("operationId", operation.operationId());
    out.list("parameters", operation.parameters().nodes());
    out.node("requestBody", operation.requestBodyNode());
    // OpenAPI 3.0 demands the member, so a document that has it keeps it although it is empty.
    const Responses& responses = operation.responses();
    if (responses.size() != 0 || !responses.extensions().empty() || responses.source() != nullptr)
        out.node("responses", &responses);
    out.map("callbacks", operation.callbacks());
    if (operation.deprecated())
        out.flag("deprecated", true);
    if (!operation.inheritsSecurity()) {
        // Without any entry it says that the operation is open to all.
        if (operation.security().empty())
            out.add("security", jv::JV::newArray());
        out.list("security", operation.security());
    }
    out.list("servers", operation.servers());
}

void writeMembers(ObjectWriter& out, const Callback& callback) {
    out.entries(callback.items());
}

void writeMembers(ObjectWriter& out, const Responses& responses) {
    out.entries(responses.items());
}

void writeMembers(ObjectWriter& out, const Response& response) {
    out.text("description", response.description());
    out.map("headers", response.headers());
    out.map("content", response.content());
    out.map("links", response.links());
}

} // namespace specloom::openapi
