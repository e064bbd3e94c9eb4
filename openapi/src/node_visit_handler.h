#pragma once

namespace specloom::openapi {

class Callback;
class Components;
class Contact;
class Discriminator;
class Encoding;
class Example;
class ExternalDocumentation;
class Header;
class Info;
class License;
class Link;
class MediaType;
class Node;
class OAuthFlow;
class OAuthFlows;
class OpenAPI;
class Operation;
class Parameter;
class PathItem;
class Paths;
class RequestBody;
class Response;
class Responses;
class Schema;
class SecurityRequirement;
class SecurityScheme;
class Server;
class ServerVariable;
class Tag;
class XML;

/// What a walk of the tree tells: one hook for each class, and one for every node. All do nothing here. A
/// handler that overrides some of them says `using NodeVisitHandler::visit;` to keep the others in sight.
class NodeVisitHandler {
  public:
    virtual ~NodeVisitHandler() = default;

    virtual void visit(const Discriminator&) {}
    virtual void visit(const XML&) {}
    virtual void visit(const OAuthFlow&) {}
    virtual void visit(const OAuthFlows&) {}
    virtual void visit(const MediaType&) {}
    virtual void visit(const Encoding&) {}
    virtual void visit(const SecurityRequirement&) {}
    virtual void visit(const Tag&) {}
    virtual void visit(const ExternalDocumentation&) {}
    virtual void visit(const Operation&) {}
    virtual void visit(const Callback&) {}
    virtual void visit(const Link&) {}
    virtual void visit(const SecurityScheme&) {}
    virtual void visit(const Header&) {}
    virtual void visit(const RequestBody&) {}
    virtual void visit(const Example&) {}
    virtual void visit(const Parameter&) {}
    virtual void visit(const Response&) {}
    virtual void visit(const Responses&) {}
    virtual void visit(const Schema&) {}
    virtual void visit(const Components&) {}
    virtual void visit(const PathItem&) {}
    virtual void visit(const Paths&) {}
    virtual void visit(const ServerVariable&) {}
    virtual void visit(const Server&) {}
    virtual void visit(const License&) {}
    virtual void visit(const Contact&) {}
    virtual void visit(const Info&) {}
    virtual void visit(const OpenAPI&) {}
    /// Every node, right after the hook of its class.
    virtual void visit(const Node&) {}
};

} // namespace specloom::openapi
