#include "foundation/unreachable.h"
#include "openapi/openapi.h"
#include "openapi/reference.h"
#include "openapi/writer/node_writers.h"

namespace specloom::openapi {

namespace {

[[nodiscard]] std::optional<std::string_view> componentName(const Node& target) {
    return documentOf(target).components().nameOf(&target);
}

/// The section to which a `$ref` may lead. Nothing refers to security schemes: requirements name them.
[[nodiscard]] std::string_view referableSection(NodeType type) {
    const auto section = componentSectionOf(type);
    if (!section || (section == ComponentSection::SecuritySchemes && type != NodeType::SecurityScheme))
        SPECLOOM_UNREACHABLE("Unsupported reference type");
    return componentSectionKey(*section);
}

} // namespace

bool canWrite(const Reference& reference) {
    return reference.target() != nullptr && componentName(*reference.target());
}

void writeMembers(ObjectWriter& out, const Reference& reference) {
    const Node& target = *reference.target();
    std::string text = "#/components/";
    text += referableSection(target.type());
    text += '/';
    text += *componentName(target); // unescaped, as the reader takes it
    out.text("$ref", text);
    out.text("summary", reference.summary());
    out.text("description", reference.description());
}

} // namespace specloom::openapi
