#include "openapi/reader/readers.h"
#include "openapi/reference.h"

namespace specloom::openapi {

namespace {

/// Reads a section whose objects `create` makes by name and `read` reads.
template <typename Create, typename Read>
void readSection(ReaderContext& context, Components& components, ComponentSection section,
                 const Member& member, Create create, Read read) {
    const jv::JV& entries = member.asObject();
    components.reserve(section, entries.size());
    for (const jv::Member& entry : entries.members()) {
        readPlace(
            context, components, section, *entry.value, [&] { return create(entry); },
            [&](Node& target) { return components.addReference(section, Text::borrow(entry.key), target); },
            read);
    }
}

void readExamples(ReaderContext& context, Components& components, const Member& member) {
    readSection(
        context, components, ComponentSection::Examples, member,
        [&](const jv::Member& entry) { return components.createExample(Text::borrow(entry.key)); },
        readExample);
}

void readSchemas(ReaderContext& context, Components& components, const Member& member) {
    const jv::JV& entries = member.asObject();
    components.reserve(ComponentSection::Schemas, entries.size());
    for (const jv::Member& entry : entries.members()) {
        readSchemaPlace(
            context, *entry.value, [&] { return components.createSchema(Text::borrow(entry.key)); },
            [&](Node& target) {
                return components.addReference(ComponentSection::Schemas, Text::borrow(entry.key), target);
            });
    }
}

void readComponentParameters(ReaderContext& context, Components& components, const Member& member) {
    const auto create = [&](const jv::Member& entry) -> Parameter* {
        ParameterIdentity identity = readParameterIdentity(*entry.value);
        const auto make = [&](auto factory) {
            return (components.*factory)(Text::borrow(entry.key), std::move(identity.name));
        };
        switch (identity.location) {
        case ParameterLocation::Path:
            return make(&Components::createPathParameter);
        case ParameterLocation::Query:
            return make(&Components::createQueryParameter);
        case ParameterLocation::Header:
            return make(&Components::createHeaderParameter);
        default:
            return make(&Components::createCookieParameter);
        }
    };
    readSection(context, components, ComponentSection::Parameters, member, create, readParameter);
}

void readHeaderSection(ReaderContext& context, Components& components, const Member& member) {
    readSection(
        context, components, ComponentSection::Headers, member,
        [&](const jv::Member& entry) { return components.createHeader(Text::borrow(entry.key)); },
        readHeader);
}

void readLinks(ReaderContext& context, Components& components, const Member& member) {
    readSection(
        context, components, ComponentSection::Links, member,
        [&](const jv::Member& entry) { return components.createLink(Text::borrow(entry.key)); }, readLink);
}

void readResponses(ReaderContext& context, Components& components, const Member& member) {
    readSection(
        context, components, ComponentSection::Responses, member,
        [&](const jv::Member& entry) { return components.createResponse(Text::borrow(entry.key)); },
        readResponse);
}

void readRequestBodies(ReaderContext& context, Components& components, const Member& member) {
    readSection(
        context, components, ComponentSection::RequestBodies, member,
        [&](const jv::Member& entry) { return components.createRequestBody(Text::borrow(entry.key)); },
        readRequestBody);
}

/// No place in a document refers to a security scheme by `$ref` but another entry of this section, and the
/// tree has no reference for that.
void readSecuritySchemes(ReaderContext& context, Components& components, const Member& member) {
    for (const jv::Member& entry : member.asObject().members()) {
        if (!context.requireObject(components, *entry.value, "Expected an object"))
            continue;
        if (const jv::JV* ref = ReaderContext::referenceIn(*entry.value); ref != nullptr)
            context.noteUnresolved(*entry.value, *ref);
        else
            readSecurityScheme(context, components, entry.key, *entry.value);
    }
}

void readCallbacks(ReaderContext& context, Components& components, const Member& member) {
    readSection(
        context, components, ComponentSection::Callbacks, member,
        [&](const jv::Member& entry) { return components.createCallback(Text::borrow(entry.key)); },
        readCallback);
}

void readPathItems(ReaderContext& context, Components& components, const Member& member) {
    readSection(
        context, components, ComponentSection::PathItems, member,
        [&](const jv::Member& entry) { return components.createPathItem(Text::borrow(entry.key)); },
        readPathItem);
}

// This order decides which references between components find their target: all but those to schemas are
// looked up where they stand.
constexpr ObjectReader<Components, 10, NodeType::Components> componentsReader({
    {"examples", readExamples},
    {"schemas", readSchemas},
    {"parameters", readComponentParameters},
    {"headers", readHeaderSection},
    {"links", readLinks},
    {"responses", readResponses},
    {"requestBodies", readRequestBodies},
    {"securitySchemes", readSecuritySchemes},
    {"callbacks", readCallbacks},
    {"pathItems", readPathItems},
});

} // namespace

void readComponents(ReaderContext& context, Components& components, const jv::JV& value) {
    componentsReader.read(context, components, value);
}

} // namespace specloom::openapi
