#pragma once

#include "openapi/writer/object_writer.h"

// What the objects of each class are made of, in canonical order. The extensions come from
// ObjectWriter::finish().
namespace specloom::openapi {

void writeMembers(ObjectWriter& out, const OpenAPI& root);
void writeMembers(ObjectWriter& out, const Info& info);
void writeMembers(ObjectWriter& out, const Contact& contact);
void writeMembers(ObjectWriter& out, const License& license);
void writeMembers(ObjectWriter& out, const Server& server);
void writeMembers(ObjectWriter& out, const ServerVariable& variable);
void writeMembers(ObjectWriter& out, const Tag& tag);
void writeMembers(ObjectWriter& out, const ExternalDocumentation& docs);
void writeMembers(ObjectWriter& out, const Components& components);
void writeMembers(ObjectWriter& out, const Paths& paths);
void writeMembers(ObjectWriter& out, const PathItem& item);
void writeMembers(ObjectWriter& out, const Operation& operation);
void writeMembers(ObjectWriter& out, const Callback& callback);
void writeMembers(ObjectWriter& out, const Responses& responses);
void writeMembers(ObjectWriter& out, const Response& response);
void writeMembers(ObjectWriter& out, const RequestBody& body);
void writeMembers(ObjectWriter& out, const MediaType& mediaType);
void writeMembers(ObjectWriter& out, const Encoding& encoding);
void writeMembers(ObjectWriter& out, const Parameter& parameter);
void writeMembers(ObjectWriter& out, const Header& header);
void writeMembers(ObjectWriter& out, const Example& example);
void writeMembers(ObjectWriter& out, const Link& link);
void writeMembers(ObjectWriter& out, const Schema& schema);
void writeMembers(ObjectWriter& out, const Discriminator& discriminator);
void writeMembers(ObjectWriter& out, const XML& xml);
void writeMembers(ObjectWriter& out, const SecurityScheme& scheme);
void writeMembers(ObjectWriter& out, const OAuthFlows& flows);
void writeMembers(ObjectWriter& out, const OAuthFlow& flow);
void writeMembers(ObjectWriter& out, const SecurityRequirement& requirement);
void writeMembers(ObjectWriter& out, const Reference& reference);

/// Whether a reference has a text: its target is a component.
[[nodiscard]] bool canWrite(const Reference& reference);
/// The boolean that stands for a schema of its meaning; null when there is none.
[[nodiscard]] std::unique_ptr<jv::JV> booleanFor(const Schema& schema);

} // namespace specloom::openapi
