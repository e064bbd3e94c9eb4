// The objects around the paths and components: the root, its description, servers, tags, security
// requirements.

#include "foundation/message.h"
#include "openapi/reader/readers.h"
#include "openapi/reference.h"

namespace specloom::openapi {

namespace {

// ---- info

constexpr ObjectReader<Contact, 3, NodeType::Contact> contactReader({
    {"name", readText<Contact, &Contact::setName>},
    {"url", readText<Contact, &Contact::setUrl>},
    {"email", readText<Contact, &Contact::setEmail>},
});

constexpr ObjectReader<License, 2, NodeType::License> licenseReader({
    {"identifier", readText<License, &License::setIdentifier>},
    {"url", readText<License, &License::setUrl>},
});

void readContact(ReaderContext& context, Info& info, const Member& member) {
    if (context.requireObject(info, member.value, "Expected object"))
        contactReader.read(context, *info.createContact(), member.value);
}

void readLicense(ReaderContext& context, Info& info, const Member& member) {
    const jv::JV& value = member.value;
    if (!context.requireObject(info, value, "Expected object"))
        return;
    License* license = info.createLicense(Text::borrow(value.getRequiredString("name")->text()));
    if (value.has("identifier") && value.has("url"))
        context.report(*license, &value, "License object must have either identifier or url, not both");
    licenseReader.read(context, *license, value);
}

constexpr ObjectReader<Info, 7, NodeType::Info> infoReader({
    {"title", readRequiredText<Info, &Info::setTitle>},
    {"summary", readText<Info, &Info::setSummary>},
    {"description", readText<Info, &Info::setDescription>},
    {"termsOfService", readText<Info, &Info::setTermsOfService>},
    {"contact", readContact},
    {"license", readLicense},
    {"version", readRequiredText<Info, &Info::setVersion>},
});

// ---- servers

void readEnumeration(ReaderContext& context, ServerVariable& variable, const Member& member) {
    variable.setEnumeration(readTexts(context, variable, member.asArray()));
}

constexpr ObjectReader<ServerVariable, 3, NodeType::ServerVariable> serverVariableReader({
    {"enum", readEnumeration},
    {"default", readText<ServerVariable, &ServerVariable::setDefaultValue>},
    {"description", readText<ServerVariable, &ServerVariable::setDescription>},
});

void readServerVariables(ReaderContext& context, Server& server, const Member& member) {
    for (const jv::Member& entry : member.asObject().members()) {
        ServerVariable* variable = server.variable(entry.key);
        if (variable == nullptr)
            throw std::runtime_error(formatMessage("Invalid server variable: {}", entry.key));
        if (context.requireObject(server, *entry.value, "Expected object"))
            serverVariableReader.read(context, *variable, *entry.value);
    }
}

constexpr ObjectReader<Server, 2, NodeType::Server> serverReader({
    {"description", readText<Server, &Server::setDescription>},
    {"variables", readServerVariables},
});

// ---- tags and others

constexpr ObjectReader<ExternalDocumentation, 1, NodeType::ExternalDocumentation>
    externalDocumentationReader({
        {"description", readText<ExternalDocumentation, &ExternalDocumentation::setDescription>},
    });

constexpr ObjectReader<Tag, 2, NodeType::Tag> tagReader({
    {"description", readText<Tag, &Tag::setDescription>},
    {"externalDocs", readExternalDocs<Tag>},
});

constexpr ObjectReader<Reference, 2, NodeType::Reference> referenceReader({
    {"summary", readText<Reference, &Reference::setSummary>},
    {"description", readText<Reference, &Reference::setDescription>},
});

// ---- the root

void readVersion(ReaderContext& context, OpenAPI& root, const Member& member) {
    root.setVersion(member.text());
    context.isOpenAPI30 = root.isVersion30();
}

void readInfoMember(ReaderContext& context, OpenAPI& root, const Member& member) {
    if (context.requireObject(root, member.value, "Info object must be an object"))
        readInfo(context, root.info(), member.value);
}

void readTags(ReaderContext& context, OpenAPI& root, const Member& member) {
    for (const jv::JV* element : member.asArray().elements())
        readTag(context, root, *element);
}

void readComponentsMember(ReaderContext& context, OpenAPI& root, const Member& member) {
    if (context.requireObject(root, member.value, "Expected an object"))
        readComponents(context, root.components(), member.value);
}

void readPathsMember(ReaderContext& context, OpenAPI& root, const Member& member) {
    readPaths(context, root.paths(), member.asObject());
}

void readWebhooks(ReaderContext& context, OpenAPI& root, const Member& member) {
    for (const jv::Member& entry : member.asObject().members()) {
        readPlace(
            context, root, ComponentSection::PathItems, *entry.value,
            [&] { return root.createWebhook(Text::borrow(entry.key)); },
            [&](Node& target) { return root.addWebhookReference(Text::borrow(entry.key), target); },
            readPathItem);
    }
}

// Components stand before the paths, so that all that is looked up at once is there.
constexpr ObjectReader<OpenAPI, 10, NodeType::OpenAPI> rootReader({
    {"openapi", readVersion},
    {"info", readInfoMember},
    {"jsonSchemaDialect", readText<OpenAPI, &OpenAPI::setJsonSchemaDialect>},
    {"servers", readServers<OpenAPI>},
    {"tags", readTags},
    {"components", readComponentsMember},
    {"paths", readPathsMember},
    {"webhooks", readWebhooks},
    {"security", readSecurity<OpenAPI>},
    {"externalDocs", readExternalDocs<OpenAPI>},
});

} // namespace

void readOpenAPI(ReaderContext& context, OpenAPI& root, const jv::JV& value) {
    root.setSource(&value);
    if (context.requireObject(root, value, "OpenAPI object must be an object"))
        rootReader.read(context, root, value);
}

void readInfo(ReaderContext& context, Info& info, const jv::JV& value) {
    infoReader.read(context, info, value);
}

void readServer(ReaderContext& context, const Node& owner, const jv::JV& value,
                const std::function<Server*(Text url)>& create) {
    if (context.requireObject(owner, value, "Expected object"))
        serverReader.read(context, *create(Text::borrow(value.getRequiredString("url")->text())), value);
}

void readTag(ReaderContext& context, OpenAPI& root, const jv::JV& value) {
    if (context.requireObject(root, value, "Expected object"))
        tagReader.read(context, *root.createTag(Text::borrow(value.getRequiredString("name")->text())),
                       value);
}

void readExternalDocumentation(ReaderContext& context, ExternalDocumentation& docs, const jv::JV& value) {
    externalDocumentationReader.read(context, docs, value);
}

void readReference(ReaderContext& context, Reference& reference, const jv::JV& value) {
    referenceReader.read(context, reference, value);
}

void readSecurityRequirement(ReaderContext& context, SecurityRequirement& requirement, const jv::JV& value) {
    requirement.setSource(&value);
    context.source().forEachOrdered(&value, [&](const jv::Member& entry) {
        const jv::JV& scopes = Member{value, entry.key, *entry.value}.asArray();
        requirement.setScheme(Text::borrow(entry.key), readTexts(context, requirement, scopes));
    });
}

} // namespace specloom::openapi
