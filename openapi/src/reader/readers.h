#pragma once

#include "openapi/reader/object_reader.h"

// The readers of the object classes. Each reads `value`, which it finds to be of a right kind, into a node
// that was just made; objects that may be references come through the readers of places below.
namespace specloom::openapi {

void readOpenAPI(ReaderContext& context, OpenAPI& root, const jv::JV& value);
void readInfo(ReaderContext& context, Info& info, const jv::JV& value);
void readTag(ReaderContext& context, OpenAPI& root, const jv::JV& value);
void readComponents(ReaderContext& context, Components& components, const jv::JV& value);
void readPaths(ReaderContext& context, Paths& paths, const jv::JV& value);
void readPathItem(ReaderContext& context, PathItem& item, const jv::JV& value);
void readCallback(ReaderContext& context, Callback& callback, const jv::JV& value);
void readExternalDocumentation(ReaderContext& context, ExternalDocumentation& docs, const jv::JV& value);
void readSecurityRequirement(ReaderContext& context, SecurityRequirement& requirement, const jv::JV& value);
void readSecurityScheme(ReaderContext& context, Components& components, std::string_view name,
                        const jv::JV& value);
void readParameter(ReaderContext& context, Parameter& parameter, const jv::JV& value);
void readHeader(ReaderContext& context, Header& header, const jv::JV& value);
void readExample(ReaderContext& context, Example& example, const jv::JV& value);
void readMediaType(ReaderContext& context, MediaType& mediaType, const jv::JV& value);
void readRequestBody(ReaderContext& context, RequestBody& body, const jv::JV& value);
void readResponse(ReaderContext& context, Response& response, const jv::JV& value);
void readLink(ReaderContext& context, Link& link, const jv::JV& value);
/// A schema may also be a boolean.
void readSchema(ReaderContext& context, Schema& schema, const jv::JV& value);
/// The members of a reference other than its text.
void readReference(ReaderContext& context, Reference& reference, const jv::JV& value);

/// The location and name of a parameter object. Throws jv::JVError when one is missing or no text, and
/// std::runtime_error "Invalid parameter location: " and the text.
struct ParameterIdentity {
    ParameterLocation location;
    Text name;
};
[[nodiscard]] ParameterIdentity readParameterIdentity(const jv::JV& value);

/// Reads a place that holds a schema or a reference to one: `create` makes the schema in its place, `refer`
/// the reference.
template <typename Create, typename Refer>
void readSchemaPlace(ReaderContext& context, const jv::JV& value, Create create, Refer refer) {
    const jv::JV* ref = ReaderContext::referenceIn(value);
    if (ref == nullptr)
        return readSchema(context, *create(), value);
    if (Node* target = context.resolveSchema(value, *ref); target != nullptr)
        context.noteSchemaReference(*refer(*target), value, *ref);
}

/// The same for an object of another kind, which `read` reads. Reports "Expected an object" for other values.
template <typename Create, typename Refer, typename Read>
void readPlace(ReaderContext& context, const Node& owner, ComponentSection section, const jv::JV& value,
               Create create, Refer refer, Read read) {
    if (!context.requireObject(owner, value, "Expected an object"))
        return;
    const jv::JV* ref = ReaderContext::referenceIn(value);
    if (ref == nullptr)
        return read(context, *create(), value);
    if (Node* target = context.resolveNow(section, value, *ref); target != nullptr)
        readReference(context, *refer(*target), value);
}

/// Reads the servers of an array into `owner`.
template <typename Owner>
void readServers(ReaderContext& context, Owner& owner, const Member& member);
/// Reads one server; `create` makes it from its URL. Reports "Expected object" for a value of another kind.
void readServer(ReaderContext& context, const Node& owner, const jv::JV& value,
                const std::function<Server*(Text url)>& create);

template <typename Owner>
void readServers(ReaderContext& context, Owner& owner, const Member& member) {
    for (const jv::JV* element : member.asArray().elements())
        readServer(context, owner, *element, [&](Text url) { return owner.createServer(std::move(url)); });
}

template <typename Owner>
void readSecurity(ReaderContext& context, Owner& owner, const Member& member) {
    for (const jv::JV* element : member.asArray().elements()) {
        if (context.requireObject(owner, *element, "Expected an object"))
            readSecurityRequirement(context, *owner.createSecurityRequirement(), *element);
    }
}

template <typename Owner>
void readExternalDocs(ReaderContext& context, Owner& owner, const Member& member) {
    const jv::JV& value = member.asObject();
    readExternalDocumentation(
        context, *owner.createExternalDocs(Text::borrow(value.getRequiredString("url")->text())), value);
}

/// Reads an array of parameters and references to them into a path item or an operation.
template <typename Owner>
void readParameters(ReaderContext& context, Owner& owner, const Member& member) {
    for (const jv::JV* element : member.asArray().elements()) {
        const auto create = [&]() -> Parameter* {
            ParameterIdentity identity = readParameterIdentity(*element);
            switch (identity.location) {
            case ParameterLocation::Path:
                return owner.createPathParameter(std::move(identity.name));
            case ParameterLocation::Query:
                return owner.createQueryParameter(std::move(identity.name));
            case ParameterLocation::Header:
                return owner.createHeaderParameter(std::move(identity.name));
            default:
                return owner.createCookieParameter(std::move(identity.name));
            }
        };
        readPlace(
            context, owner, ComponentSection::Parameters, *element, create,
            [&](Node& target) { return owner.addParameterReference(target); }, readParameter);
    }
}

/// Reads a map of headers and references to them into a response or an encoding.
template <typename Owner>
void readHeaders(ReaderContext& context, Owner& owner, const Member& member) {
    for (const jv::Member& entry : member.asObject().members()) {
        readPlace(
            context, owner, ComponentSection::Headers, *entry.value,
            [&] { return owner.createHeader(Text::borrow(entry.key)); },
            [&](Node& target) { return owner.addHeaderReference(Text::borrow(entry.key), target); },
            readHeader);
    }
}

/// Reads a map of media types into a response or a request body.
template <typename Owner>
void readContent(ReaderContext& context, Owner& owner, const Member& member) {
    for (const jv::Member& entry : member.asObject().members()) {
        if (context.requireObject(owner, *entry.value, "Expected an object"))
            readMediaType(context, *owner.createMediaType(Text::borrow(entry.key)), *entry.value);
    }
}

} // namespace specloom::openapi
