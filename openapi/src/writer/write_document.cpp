// The objects around the paths: the root, its description, servers, tags, components.

#include "openapi/openapi.h"
#include "openapi/writer/node_writers.h"

namespace specloom::openapi {

void writeMembers(ObjectWriter& out, const OpenAPI& root) {
    out.text("openapi", root.version());
    out.node("info", &root.info());
    out.text("jsonSchemaDialect", root.jsonSchemaDialect());
    out.list("servers", root.servers());
    if (!root.components().empty() || !root.components().extensions().empty())
        out.node("components", &root.components());
    out.node("paths", &root.paths()); // even when empty: OpenAPI 3.0 demands it
    out.map("webhooks", root.webhooks());
    out.list("security", root.security());
    out.list("tags", root.tags());
    out.node("externalDocs", root.externalDocs());
}

void writeMembers(ObjectWriter& out, const Info& info) {
    out.text("title", info.title());
    out.text("summary", info.summary());
    out.text("description", info.description());
    out.text("termsOfService", info.termsOfService());
    out.node("contact", info.contact());
    out.node("license", info.license());
    out.text("version", info.version());
}

void writeMembers(ObjectWriter& out, const Contact& contact) {
    out.text("name", contact.name());
    out.text("url", contact.url());
    out.text("email", contact.email());
}

void writeMembers(ObjectWriter& out, const License& license) {
    out.text("name", license.name());
    out.text("identifier", license.identifier());
    out.text("url", license.url());
}

void writeMembers(ObjectWriter& out, const Server& server) {
    out.text("url", server.url());
    out.text("description", server.description());
    // The URL makes the variables. One that the document does not describe would come back as an object that
    // nobody wrote.
    const auto isDescribed = [](const ServerVariable& variable) {
        return variable.source() != nullptr || !variable.defaultValue().empty() ||
               !variable.enumeration().empty() || variable.description() || !variable.extensions().empty();
    };
    out.fill("variables", server.variables(), [&](const auto& entry) -> std::unique_ptr<jv::JV> {
        if (server.source() != nullptr && !isDescribed(static_cast<const ServerVariable&>(*entry.value)))
            return nullptr;
        return writeNode(out.context(), *entry.value);
    });
}

void writeMembers(ObjectWriter& out, const ServerVariable& variable) {
    out.list("enum", variable.enumeration());
    if (!variable.defaultValue().empty() || out.keepsEmpty("default"))
        out.text("default", variable.defaultValue());
    out.text("description", variable.description());
}

void writeMembers(ObjectWriter& out, const Tag& tag) {
    out.text("name", tag.name());
    out.text("description", tag.description());
    out.node("externalDocs", tag.externalDocs());
}

void writeMembers(ObjectWriter& out, const ExternalDocumentation& docs) {
    out.text("url", docs.url());
    out.text("description", docs.description());
}

void writeMembers(ObjectWriter& out, const Components& components) {
    for (std::size_t index = 0; index < componentSectionCount; ++index) {
        const auto section = static_cast<ComponentSection>(index);
        out.map(componentSectionKey(section), components.section(section));
    }
}

} // namespace specloom::openapi
