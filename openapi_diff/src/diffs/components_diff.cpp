#include "openapi_diff/diffs/components_diff.h"

#include "foundation/unreachable.h"
#include "openapi_diff/component_comparisons.h"
#include "openapi_diff/diffs/callback_diff.h"
#include "openapi_diff/diffs/example_diff.h"
#include "openapi_diff/diffs/header_diff.h"
#include "openapi_diff/diffs/link_diff.h"
#include "openapi_diff/diffs/parameter_diff.h"
#include "openapi_diff/diffs/path_item_diff.h"
#include "openapi_diff/diffs/request_body_diff.h"
#include "openapi_diff/diffs/response_diff.h"
#include "openapi_diff/diffs/schema_diff.h"
#include "openapi_diff/diffs/security_scheme_diff.h"

namespace specloom::openapi_diff {
namespace {

using openapi::ComponentSection;
using openapi::Node;

/// The sections stand in one order in the keys and in the components.
constexpr ConfigKey keyOf(std::size_t section) noexcept {
    return static_cast<ConfigKey>(static_cast<std::size_t>(ConfigKey::ComponentsSchemas) + section);
}
static_assert(keyOf(static_cast<std::size_t>(ComponentSection::PathItems)) == ConfigKey::ComponentsPathItems);

void diffSchemes(const Node* source, const Node* destination, DiffContext& context) {
    using openapi::NodeType;
    const NodeType type = (destination != nullptr ? destination : source)->type();
    if (source != nullptr && source->type() != type)
        return diffPlace<SecuritySchemeDiff>(source, destination, context);
    switch (type) {
    case NodeType::ApiKeySecurityScheme:
        return diffPlace<ApiKeySecuritySchemeDiff>(source, destination, context);
    case NodeType::HTTPSecurityScheme:
        return diffPlace<HTTPSecuritySchemeDiff>(source, destination, context);
    case NodeType::MutualTLSSecurityScheme:
        return diffPlace<MutualTLSSecuritySchemeDiff>(source, destination, context);
    case NodeType::OAuth2SecurityScheme:
        return diffPlace<OAuth2SecuritySchemeDiff>(source, destination, context);
    case NodeType::OpenIdConnectSecurityScheme:
        return diffPlace<OpenIDConnectSecuritySchemeDiff>(source, destination, context);
    default:
        SPECLOOM_UNREACHABLE("Unknown type of security scheme");
    }
}

} // namespace

void diffComponents(const Node* source, const Node* destination, DiffContext& context) {
    const Node& known = destination != nullptr ? *destination : *source;
    if (known.type() == openapi::NodeType::Reference ||
        (source != nullptr && source->type() == openapi::NodeType::Reference))
        return diffReferences(source, destination, context);
    const auto section = componentSectionOf(known.type());
    if (!section)
        SPECLOOM_UNREACHABLE("Unknown type of component");
    switch (*section) {
    case ComponentSection::Schemas:
        return diffPlace<SchemaDiff>(source, destination, context);
    case ComponentSection::Responses:
        return diffPlace<ResponseDiff>(source, destination, context);
    case ComponentSection::Parameters:
        return diffPlace<ParameterDiff>(source, destination, context);
    case ComponentSection::Examples:
        return diffPlace<ExampleDiff>(source, destination, context);
    case ComponentSection::RequestBodies:
        return diffPlace<RequestBodyDiff>(source, destination, context);
    case ComponentSection::Headers:
        return diffPlace<HeaderDiff>(source, destination, context);
    case ComponentSection::SecuritySchemes:
        return diffSchemes(source, destination, context);
    case ComponentSection::Links:
        return diffPlace<LinkDiff>(source, destination, context);
    case ComponentSection::Callbacks:
        return diffPlace<CallbackDiff>(source, destination, context);
    case ComponentSection::PathItems:
        return diffPlace<PathItemDiff>(source, destination, context);
    }
    SPECLOOM_UNREACHABLE("Unknown section of components");
}

void ComponentsDiff::diff(const openapi::Components* source, const openapi::Components* destination,
                          DiffContext& context) const {
    context.mark(source, destination);
    for (std::size_t i = 0; i < openapi::componentSectionCount; ++i) {
        const auto sectionOf = [&](const openapi::Components& components) -> const openapi::NamedNodes& {
            return components.section(static_cast<ComponentSection>(i));
        };
        walkMaps(childOf(source, sectionOf), childOf(destination, sectionOf),
                 [&](std::string_view name, const openapi::NodePointer* before,
                     const openapi::NodePointer* after) {
                     const Node* a = before == nullptr ? nullptr : before->get();
                     const Node* b = after == nullptr ? nullptr : after->get();
                     const auto scope = context.enterKey(a, b, keyOf(i), name);
                     if (a == nullptr || b == nullptr)
                         return diffComponents(a, b, context);
                     context.mark(a, b);
                     context.include(context.comparisons().ofComponents(*a, *b), true);
                 });
    }
    diffExtensions(source, destination, context);
}

} // namespace specloom::openapi_diff
