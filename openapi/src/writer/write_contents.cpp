// What requests and responses consist of: parameters, headers, bodies, media types, examples, links.

#include "foundation/unreachable.h"
#include "openapi/openapi.h"
#include "openapi/writer/node_writers.h"

namespace specloom::openapi {

namespace {

void writeExamples(ObjectWriter& out, const Examples& examples) {
    switch (examples.mode()) {
    case Examples::Mode::None:
        return;
    case Examples::Mode::Single:
        return out.value("example", examples.single());
    case Examples::Mode::Map:
        return out.map("examples", examples.map());
    }
    SPECLOOM_UNREACHABLE("Unsupported example mode");
}

void writeSchemaOrContent(ObjectWriter& out, const SchemaOrContent& value) {
    out.node("schema", value.schemaNode());
    if (const MediaType* mediaType = value.mediaType(); mediaType != nullptr) {
        KeyedObject content;
        content.add(value.mediaTypeName(), writeNode(out.context(), *mediaType));
        out.add("content", content.finish(out.context().output, {}));
    }
}

[[nodiscard]] std::optional<std::string_view> nameOf(std::optional<ParameterStyle> style) {
    return style ? std::optional(parameterStyleName(*style)) : std::nullopt;
}

} // namespace

void writeMembers(ObjectWriter& out, const Parameter& parameter) {
    const auto* query = parameter.location() == ParameterLocation::Query
                            ? static_cast<const QueryParameter*>(&parameter)
                            : nullptr;
    out.text("name", parameter.name());
    out.text("in", parameterLocationName(parameter.location()));
    out.text("description", parameter.description());
    out.flag("deprecated", parameter.deprecated());
    out.flag("required", parameter.required()); // a path parameter always has it
    if (query != nullptr)
        out.flag("allowEmptyValue", query->allowEmptyValue());
    out.text("style", nameOf(parameter.style()));
    out.flag("explode", parameter.explode());
    if (query != nullptr)
        out.flag("allowReserved", query->allowReserved());
    writeExamples(out, parameter.examples());
    writeSchemaOrContent(out, parameter.value());
}

void writeMembers(ObjectWriter& out, const Header& header) {
    out.text("description", header.description());
    out.flag("deprecated", header.deprecated());
    out.flag("required", header.required());
    out.flag("allowEmptyValue", header.allowEmptyValue());
    out.text("style", nameOf(header.style()));
    out.flag("explode", header.explode());
    out.flag("allowReserved", header.allowReserved());
    writeExamples(out, header.examples());
    writeSchemaOrContent(out, header.value());
}

void writeMembers(ObjectWriter& out, const RequestBody& body) {
    out.text("description", body.description());
    if (body.content().empty() && out.keepsEmpty("content"))
        out.add("content", jv::JV::newObject());
    out.map("content", body.content());
    out.flag("required", body.required());
}

void writeMembers(ObjectWriter& out, const MediaType& mediaType) {
    out.node("schema", mediaType.schemaNode());
    writeExamples(out, mediaType.examples());
    out.map("encoding", mediaType.encodings());
}

void writeMembers(ObjectWriter& out, const Encoding& encoding) {
    out.text("contentType", encoding.contentType());
    out.map("headers", encoding.headers());
    out.text("style", nameOf(encoding.style()));
    out.flag("explode", encoding.explode());
    out.flag("allowReserved", encoding.allowReserved());
}

void writeMembers(ObjectWriter& out, const Example& example) {
    out.text("summary", example.summary());
    out.text("description", example.description());
    out.value("value", example.value());
    out.text("externalValue", example.externalValue());
}

void writeMembers(ObjectWriter& out, const Link& link) {
    out.text("operationRef", link.operationRef());
    out.text("operationId", link.operationId());
    out.map("parameters", link.parameters());
    out.value("requestBody", link.requestBody());
    out.text("description", link.description());
    out.node("server", link.server());
}

} // namespace specloom::openapi
