#include "openapi_generator_doc_html/sidebar.h"

#include "code_morph_astro/attributes.h"
#include "foundation/unreachable.h"

#include <cstdint> // std::int64_t
#include <variant> // std::visit

namespace specloom::openapi_generator::doc_html {
namespace {

using code_morph::astro::Attributes;

void setCustomItem(const CustomItem& item, const Texts& texts, jv::JV& target) {
    target.setString("type", "item");
    target.setString("text", texts.translate(item.text));
    target.setString("href", item.href);
}

/// Appends what the template takes for an item.
class SidebarItemWriter {
  public:
    SidebarItemWriter(const Texts& texts, jv::JV& items) : texts_(&texts), items_(&items) {}

    void operator()(PredefinedItem item) const { items_->appendString(predefinedItemName(item)); }

    void operator()(const CustomItem& item) const { setCustomItem(item, *texts_, *items_->appendObject()); }

    void operator()(const CustomItemGroup& group) const {
        jv::JV* target = items_->appendObject();
        target->setString("type", "group");
        target->setString("text", texts_->translate(group.text));
        jv::JV* nested = target->setArray("items");
        for (const CustomItem& item : group.items)
            setCustomItem(item, *texts_, *nested->appendObject());
    }

  private:
    const Texts* texts_;
    jv::JV* items_;
};

} // namespace

void Sidebar::collect(jv::JV& data) {
    addImport(data, "Operations", "sidebar", "Operations");
    addImport(data, "Resources", "sidebar", "Resources");
    data.setString("overviewUrl", site().urls.ofOverview(locale()));
    bool hasCustomItems = false;
    bool hasCustomGroups = false;
    const SidebarItemWriter writer(texts(), *data.setArray("items"));
    for (const SidebarItem& item : configuration().sidebarItems) {
        if (item.valueless_by_exception())
            SPECLOOM_UNREACHABLE("Handle all cases");
        std::visit(writer, item);
        const auto* group = std::get_if<CustomItemGroup>(&item);
        hasCustomGroups = hasCustomGroups || group != nullptr;
        hasCustomItems = hasCustomItems || std::holds_alternative<CustomItem>(item) ||
                         (group != nullptr && !group->items.empty());
    }
    data.setBoolean("hasCustomItems", hasCustomItems);
    data.setBoolean("hasCustomGroups", hasCustomGroups);
}

void SidebarOperations::collect(jv::JV& data) {
    jv::JV* groups = data.setArray("operationGroups");
    for (const auto& [tag, operations] : site().grouper.groups()) {
        jv::JV* group = groups->appendObject();
        group->setString("name", texts().translate(tag));
        jv::JV* entries = group->setArray("operations");
        for (const openapi::OperationRef& ref : operations)
            entries->appendString(entryOf(ref));
    }
    data.setInteger("nGroups", static_cast<std::int64_t>(groups->size()));
    jv::JV* entries = data.setArray("operations");
    for (const openapi::OperationRef& ref : site().grouper.ungrouped())
        entries->appendString(entryOf(ref));
}

std::string SidebarOperations::entryOf(const openapi::OperationRef& ref) const {
    return Attributes()
        .text("href", site().urls.ofOperation(ref, locale()))
        .text("url", ref.path)
        .text("method", openapi::operationKey(ref.method))
        .text("path", ref.path)
        .text("summary", texts().translate(ref.operation->summary().value_or("<absent>")))
        .text("layout", configuration().operationItemLayout)
        .take();
}

void SidebarResources::collect(jv::JV& data) {
    jv::JV* list = data.setArray("resources");
    for (const auto& entry : context().document->components().schemas())
        list->appendString(Attributes()
                               .text("name", entry.name())
                               .text("href", site().urls.ofResource(entry.name(), locale()))
                               .view());
}

} // namespace specloom::openapi_generator::doc_html
