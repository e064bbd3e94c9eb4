#include "openapi_lint/rules/unused_shared_component.h"

#include "foundation/text_tables.h"
#include "openapi/components.h"
#include "openapi/reference.h"
#include "openapi/security_requirement.h"
#include "openapi_lint/rule_handler.h"

#include <algorithm>   // std::any_of
#include <string_view> // std::string_view
#include <vector>      // std::vector

namespace specloom::openapi_lint {
namespace {

using openapi::Node;
using openapi::Schema;

constexpr const char* unusedComponent = "Unused shared component";

constexpr std::string_view schemaPrefix = "#/components/schemas/";

bool isInside(const Node& node, const Node& owner) {
    const Node* current = &node;
    while (current != nullptr && current != &owner)
        current = current->parent();
    return current != nullptr;
}

bool isReferredTo(const Node& component) {
    for (const auto* reference = component.firstReference(); reference != nullptr;
         reference = reference->nextReference())
        if (!isInside(*reference, component))
            return true;
    return false;
}

bool extendsDiscriminated(const Node& component) {
    if (component.type() != openapi::NodeType::Schema)
        return false;
    const openapi::NodeList& bases = static_cast<const Schema&>(component).allOf();
    return std::any_of(bases.begin(), bases.end(), [](const openapi::NodePointer& base) {
        const auto* schema = openapi::resolveTo<Schema>(base.get());
        return schema != nullptr && schema->discriminator() != nullptr;
    });
}

/// Records the components, and the names by which some of them are used.
class UnusedSharedComponentHandler final : public RuleHandler {
  public:
    using RuleHandler::RuleHandler;
    using RuleHandler::visit;
    void visit(const openapi::Components& components) override { components_ = &components; }
    void visit(const openapi::SecurityRequirement& requirement) override {
        for (const auto& scheme : requirement.schemes())
            securitySchemes_.insert(scheme.name());
    }
    void visit(const openapi::Discriminator& discriminator) override {
        for (const auto& entry : discriminator.mapping()) {
            const std::string_view schema = entry.value.view();
            schemas_.insert(schema.starts_with(schemaPrefix) ? schema.substr(schemaPrefix.size()) : schema);
        }
    }

    void reportUnused() const {
        if (components_ == nullptr)
            return;
        for (std::size_t i = 0; i < openapi::componentSectionCount; ++i) {
            const auto section = static_cast<openapi::ComponentSection>(i);
            for (const auto& entry : components_->section(section))
                if (!isUsed(section, entry.name(), *entry.value) && !isDisabled(*entry.value))
                    report(unusedComponent, *entry.value);
        }
    }

  private:
    [[nodiscard]] bool isUsed(openapi::ComponentSection section, std::string_view name,
                              const Node& component) const {
        if (component.type() == openapi::NodeType::Reference)
            return true; // what refers to it refers to the object behind it
        if (section == openapi::ComponentSection::SecuritySchemes && securitySchemes_.contains(name))
            return true;
        if (section == openapi::ComponentSection::Schemas && schemas_.contains(name))
            return true;
        return isReferredTo(component) || extendsDiscriminated(component);
    }

    const openapi::Components* components_ = nullptr;
    TextViewSet securitySchemes_;
    TextViewSet schemas_; ///< that discriminators name
};

} // namespace

void UnusedSharedComponent::check(LintContext& context) {
    UnusedSharedComponentHandler handler(*this, context);
    context.walk(handler);
    handler.reportUnused();
}

} // namespace specloom::openapi_lint
