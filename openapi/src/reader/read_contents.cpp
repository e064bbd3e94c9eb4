// What requests and responses consist of: parameters, headers, bodies, media types, examples, links.

#include "foundation/message.h"
#include "openapi/reader/readers.h"
#include "openapi/reference.h"

namespace specloom::openapi {

namespace {

// ---- shared rows

/// `example` excludes `examples`, whose row stands behind it.
template <typename Owner>
void readExample(ReaderContext&, Owner& owner, const Member& member) {
    owner.examples().setSingle(Value::borrow(member.value));
}

template <typename Owner>
void readExamples(ReaderContext& context, Owner& owner, const Member& member) {
    if (owner.examples().mode() == Examples::Mode::Single)
        return;
    for (const jv::Member& entry : member.asObject().members()) {
        const auto name = [&] { return Text::borrow(entry.key); };
        readPlace(
            context, owner, ComponentSection::Examples, *entry.value,
            [&] { return owner.examples().createExample(&owner, name()); },
            [&](Node& target) { return owner.examples().addExampleReference(&owner, name(), target); },
            openapi::readExample);
    }
}

/// `schema` excludes `content`, whose row stands behind it.
template <typename Owner>
void readSchemaMember(ReaderContext& context, Owner& owner, const Member& member) {
    readSchemaPlace(
        context, member.value, [&] { return owner.value().createSchema(&owner); },
        [&](Node& target) { return owner.value().setSchemaReference(&owner, target); });
}

template <typename Owner>
void readContentMember(ReaderContext& context, Owner& owner, const Member& member) {
    if (owner.value().mode() != SchemaOrContent::Mode::None)
        return;
    const jv::JV& content = member.asObject();
    if (content.size() != 1) {
        context.report(owner, &content, "Content must have exactly one media type");
        return;
    }
    const jv::Member entry = content.members()[0];
    if (context.requireObject(owner, *entry.value, "Expected an object"))
        readMediaType(context, *owner.value().createMediaType(&owner, Text::borrow(entry.key)), *entry.value);
}

/// The style, after reporting one that `allows` refuses.
template <typename Allows>
[[nodiscard]] std::optional<ParameterStyle> styleOf(ReaderContext& context, const Node& node,
                                                    const Member& member, Allows allows) {
    const Text name = member.text();
    const auto style = parameterStyleFromName(name.view());
    if (style && allows(*style))
        return style;
    context.report(node, &member.value, formatMessage("Invalid parameter style: {}", name.view()));
    return std::nullopt;
}

template <typename T, ParameterLocation location>
void readStyle(ReaderContext& context, T& node, const Member& member) {
    node.setStyle(styleOf(context, node, member,
                          [](ParameterStyle style) { return Parameter::allowsStyle(location, style); }));
}

// ---- parameters

void readPathRequired(ReaderContext& context, PathParameter& parameter, const Member& member) {
    if (!member.boolean())
        context.report(parameter, &member.value, "Path parameters must be required");
}

constexpr ObjectReader<PathParameter, 9, NodeType::PathParameter> pathParameterReader({
    {"description", readText<PathParameter, &PathParameter::setDescription>},
    {"required", readPathRequired},
    {"deprecated", readBoolean<PathParameter, &PathParameter::setDeprecated>},
    {"style", readStyle<PathParameter, ParameterLocation::Path>},
    {"explode", readBoolean<PathParameter, &PathParameter::setExplode>},
    {"example", readExample<PathParameter>},
    {"examples", readExamples<PathParameter>},
    {"schema", readSchemaMember<PathParameter>},
    {"content", readContentMember<PathParameter>},
});

constexpr ObjectReader<QueryParameter, 11, NodeType::QueryParameter> queryParameterReader({
    {"description", readText<QueryParameter, &QueryParameter::setDescription>},
    {"required", readBoolean<QueryParameter, &QueryParameter::setRequired>},
    {"deprecated", readBoolean<QueryParameter, &QueryParameter::setDeprecated>},
    {"allowEmptyValue", readBoolean<QueryParameter, &QueryParameter::setAllowEmptyValue>},
    {"style", readStyle<QueryParameter, ParameterLocation::Query>},
    {"explode", readBoolean<QueryParameter, &QueryParameter::setExplode>},
    {"allowReserved", readBoolean<QueryParameter, &QueryParameter::setAllowReserved>},
    {"example", readExample<QueryParameter>},
    {"examples", readExamples<QueryParameter>},
    {"schema", readSchemaMember<QueryParameter>},
    {"content", readContentMember<QueryParameter>},
});

constexpr ObjectReader<HeaderParameter, 9, NodeType::HeaderParameter> headerParameterReader({
    {"description", readText<HeaderParameter, &HeaderParameter::setDescription>},
    {"required", readBoolean<HeaderParameter, &HeaderParameter::setRequired>},
    {"deprecated", readBoolean<HeaderParameter, &HeaderParameter::setDeprecated>},
    {"style", readStyle<HeaderParameter, ParameterLocation::Header>},
    {"explode", readBoolean<HeaderParameter, &HeaderParameter::setExplode>},
    {"example", readExample<HeaderParameter>},
    {"examples", readExamples<HeaderParameter>},
    {"schema", readSchemaMember<HeaderParameter>},
    {"content", readContentMember<HeaderParameter>},
});

constexpr ObjectReader<CookieParameter, 9, NodeType::CookieParameter> cookieParameterReader({
    {"description", readText<CookieParameter, &CookieParameter::setDescription>},
    {"required", readBoolean<CookieParameter, &CookieParameter::setRequired>},
    {"deprecated", readBoolean<CookieParameter, &CookieParameter::setDeprecated>},
    {"style", readStyle<CookieParameter, ParameterLocation::Cookie>},
    {"explode", readBoolean<CookieParameter, &CookieParameter::setExplode>},
    {"example", readExample<CookieParameter>},
    {"examples", readExamples<CookieParameter>},
    {"schema", readSchemaMember<CookieParameter>},
    {"content", readContentMember<CookieParameter>},
});

constexpr ObjectReader<Header, 11, NodeType::Header> headerReader({
    {"description", readText<Header, &Header::setDescription>},
    {"required", readBoolean<Header, &Header::setRequired>},
    {"deprecated", readBoolean<Header, &Header::setDeprecated>},
    {"allowEmptyValue", readBoolean<Header, &Header::setAllowEmptyValue>},
    {"style", readStyle<Header, ParameterLocation::Header>},
    {"explode", readBoolean<Header, &Header::setExplode>},
    {"allowReserved", readBoolean<Header, &Header::setAllowReserved>},
    {"example", readExample<Header>},
    {"examples", readExamples<Header>},
    {"schema", readSchemaMember<Header>},
    {"content", readContentMember<Header>},
});

// ---- media types

constexpr ObjectReader<Encoding, 5, NodeType::Encoding> encodingReader({
    {"contentType", readText<Encoding, &Encoding::setContentType>},
    {"headers", readHeaders<Encoding>},
    {"style", readStyle<Encoding, ParameterLocation::Query>},
    {"explode", readBoolean<Encoding, &Encoding::setExplode>},
    {"allowReserved", readBoolean<Encoding, &Encoding::setAllowReserved>},
});

void readMediaTypeSchema(ReaderContext& context, MediaType& mediaType, const Member& member) {
    readSchemaPlace(
        context, member.value, [&] { return mediaType.createSchema(); },
        [&](Node& target) { return mediaType.setSchemaReference(target); });
}

void readEncodings(ReaderContext& context, MediaType& mediaType, const Member& member) {
    for (const jv::Member& entry : member.asObject().members()) {
        if (context.requireObject(mediaType, *entry.value, "Expected an object"))
            encodingReader.read(context, *mediaType.createEncoding(Text::borrow(entry.key)), *entry.value);
    }
}

constexpr ObjectReader<MediaType, 4, NodeType::MediaType> mediaTypeReader({
    {"schema", readMediaTypeSchema},
    {"example", readExample<MediaType>},
    {"examples", readExamples<MediaType>},
    {"encoding", readEncodings},
});

constexpr ObjectReader<Example, 4, NodeType::Example> exampleReader({
    {"summary", readText<Example, &Example::setSummary>},
    {"description", readText<Example, &Example::setDescription>},
    {"value", readValue<Example, &Example::setValue>},
    {"externalValue", readText<Example, &Example::setExternalValue>},
});

// ---- bodies, responses, links

constexpr ObjectReader<RequestBody, 3, NodeType::RequestBody> requestBodyReader({
    {"description", readText<RequestBody, &RequestBody::setDescription>},
    {"required", readBoolean<RequestBody, &RequestBody::setRequired>},
    {"content", readContent<RequestBody>},
});

void readOperationId(ReaderContext&, Link& link, const Member& member) {
    if (!link.operationRef())
        link.setOperationId(member.text());
}

void readLinkParameters(ReaderContext&, Link& link, const Member& member) {
    for (const jv::Member& entry : member.asObject().members())
        link.addParameter(Text::borrow(entry.key), Value::borrow(*entry.value));
}

void readLinkServer(ReaderContext& context, Link& link, const Member& member) {
    readServer(context, link, member.value, [&](Text url) { return link.createServer(std::move(url)); });
}

constexpr ObjectReader<Link, 6, NodeType::Link> linkReader({
    {"operationRef", readText<Link, &Link::setOperationRef>},
    {"operationId", readOperationId},
    {"parameters", readLinkParameters},
    {"requestBody", readValue<Link, &Link::setRequestBody>},
    {"description", readText<Link, &Link::setDescription>},
    {"server", readLinkServer},
});

void readLinks(ReaderContext& context, Response& response, const Member& member) {
    for (const jv::Member& entry : member.asObject().members()) {
        readPlace(
            context, response, ComponentSection::Links, *entry.value,
            [&] { return response.createLink(Text::borrow(entry.key)); },
            [&](Node& target) { return response.addLinkReference(Text::borrow(entry.key), target); },
            readLink);
    }
}

constexpr ObjectReader<Response, 4, NodeType::Response> responseReader({
    {"description", readText<Response, &Response::setDescription>},
    {"headers", readHeaders<Response>},
    {"content", readContent<Response>},
    {"links", readLinks},
});

} // namespace

ParameterIdentity readParameterIdentity(const jv::JV& value) {
    const std::string_view in = value.getRequiredString("in")->text();
    const std::string_view name = value.getRequiredString("name")->text();
    const auto location = parameterLocationFromName(in);
    if (!location)
        throw std::runtime_error(formatMessage("Invalid parameter location: {}", in));
    return {*location, Text::borrow(name)};
}

void readParameter(ReaderContext& context, Parameter& parameter, const jv::JV& value) {
    switch (parameter.location()) {
    case ParameterLocation::Path:
        return pathParameterReader.read(context, static_cast<PathParameter&>(parameter), value);
    case ParameterLocation::Query:
        return queryParameterReader.read(context, static_cast<QueryParameter&>(parameter), value);
    case ParameterLocation::Header:
        return headerParameterReader.read(context, static_cast<HeaderParameter&>(parameter), value);
    case ParameterLocation::Cookie:
        return cookieParameterReader.read(context, static_cast<CookieParameter&>(parameter), value);
    }
}

void readHeader(ReaderContext& context, Header& header, const jv::JV& value) {
    headerReader.read(context, header, value);
}

void readExample(ReaderContext& context, Example& example, const jv::JV& value) {
    exampleReader.read(context, example, value);
}

void readMediaType(ReaderContext& context, MediaType& mediaType, const jv::JV& value) {
    mediaTypeReader.read(context, mediaType, value);
}

void readRequestBody(ReaderContext& context, RequestBody& body, const jv::JV& value) {
    requestBodyReader.read(context, body, value);
}

void readResponse(ReaderContext& context, Response& response, const jv::JV& value) {
    responseReader.read(context, response, value);
}

void readLink(ReaderContext& context, Link& link, const jv::JV& value) {
    linkReader.read(context, link, value);
}

} // namespace specloom::openapi
