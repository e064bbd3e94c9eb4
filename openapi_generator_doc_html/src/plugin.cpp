#include "openapi_generator_doc_html/plugin.h"

#include "openapi_generator/plugin_runner.h"
#include "openapi_generator/schema_file.h"
#include "openapi_generator_doc_html/component_kinds.h"
#include "openapi_generator_doc_html/components.h"
#include "openapi_generator_doc_html/pages.h"
#include "openapi_generator_doc_html/project_files.h"
#include "openapi_generator_doc_html/sidebar.h"

namespace specloom::openapi_generator::doc_html {

Plugin::Plugin(PluginRunner& host)
    : openapi_generator::Plugin(host), context_(std::make_unique<Context>(host.fileSystem())) {
    setPackage(context_->configuration.packageName, context_->configuration.packageVersion);
}

Plugin::~Plugin() = default;

void Plugin::configure(const jv::JV& root) {
    readConfiguration(root, context_->configuration);
}

void Plugin::configureDefaults() {
    context_->configuration.sidebarItems = defaultSidebarItems();
}

void Plugin::configureSelf() {
    context_->project.setRootPath(outputPath());
    context_->configuration.packageName = packageName();
    context_->configuration.packageVersion = packageVersion();
    context_->begin(*document(), host().translations());
}

void Plugin::configureParts() {
    const Configuration& configuration = context_->configuration;
    if (configuration.locales.empty())
        addLocale({});
    for (const std::string& locale : configuration.locales)
        addLocale(locale);
    if (configuration.pages) {
        addSchemaCopy();
        if (configuration.locales.size() > 1 && configuration.prefixDefaultLocale)
            addPart<MultiLocaleIndexPage>(*context_, context_->project.page("index"));
    }
    if (configuration.locales.size() > 1)
        addPart<I18nMiddleware>(*context_, context_->project.createSourceFile("src/middleware/index.ts"));
    addProjectFiles();
}

void Plugin::addLocale(const Locale& locale) {
    addPart<Sidebar>(*context_, component({}, "Sidebar", locale), locale);
    addPart<SidebarOperations>(*context_, component("sidebar", "Operations", locale), locale);
    addPart<SidebarResources>(*context_, component("sidebar", "Resources", locale), locale);
    addPart<Overview>(*context_, component({}, "Overview", locale), locale);
    addOperations(locale);
    addResources(locale);
    if (context_->configuration.pages)
        addPages(locale);
}

void Plugin::addOperations(const Locale& locale) {
    for (const openapi::OperationRef& ref : context_->site->names.operations()) {
        const std::string& key = context_->site->names.of(ref).key;
        const DocumentName origin = nameOfOperation(ref);
        addPart<Operation>(*context_, component(operationComponent.folder, key, locale, origin), ref, locale);
        addPart<OperationUsage>(*context_, component(operationUsageComponent.folder, key, locale, origin),
                                ref, locale);
    }
}

void Plugin::addResources(const Locale& locale) {
    for (const auto& entry : document()->components().schemas()) {
        const std::string& key = context_->site->names.ofSchema(entry.name()).key;
        const DocumentName origin = nameOfSchema(entry.name());
        addPart<Resource>(*context_, component(resourceComponent.folder, key, locale, origin), entry.name(),
                          *entry.value, locale);
        addPart<ResourceUsage>(*context_, component(resourceUsageComponent.folder, key, locale, origin),
                               entry.name(), locale);
    }
}

void Plugin::addPages(const Locale& locale) {
    const Configuration& configuration = context_->configuration;
    if (configuration.searchPage)
        addPart<SearchPage>(*context_, page({}, "search", locale), locale);
    if (configuration.changelogPage)
        addPart<ChangelogPage>(*context_, page({}, "changelog", locale), locale);
    if (configuration.isSinglePage()) {
        addPart<SinglePage>(*context_, page({}, "index", locale), locale);
        return;
    }
    addPart<OverviewPage>(*context_, page({}, "index", locale), locale);
    addPagesOfOperations(locale);
    addPagesOfResources(locale);
}

void Plugin::addPagesOfOperations(const Locale& locale) {
    const Site& site = *context_->site;
    switch (context_->configuration.operationGranularity) {
    case OperationGranularity::Merge:
        addPart<OperationIndexPage>(*context_, page({}, "operations", locale), locale);
        break;
    case OperationGranularity::Group:
        for (const auto& [tag, operations] : site.grouper.groups()) {
            const DocumentName origin = nameOf(*operations.front().operation->tags().front());
            addPart<OperationGroupPage>(*context_, page("groups", site.names.ofTag(tag).page, locale, origin),
                                        tag, operations, locale);
        }
        addPart<UngroupedOperationsPage>(*context_, page({}, "operations", locale), site.grouper.ungrouped(),
                                         locale);
        break;
    case OperationGranularity::Separate:
        for (const openapi::OperationRef& ref : site.names.operations())
            addPart<OperationPage>(*context_,
                                   page("operations", site.names.of(ref).page, locale, nameOfOperation(ref)),
                                   ref, locale);
        break;
    }
}

void Plugin::addPagesOfResources(const Locale& locale) {
    if (context_->configuration.resourceGranularity == ResourceGranularity::Separate)
        for (const auto& entry : document()->components().schemas())
            addPart<ResourcePage>(*context_,
                                  page("resources", context_->site->names.ofSchema(entry.name()).page, locale,
                                       nameOfSchema(entry.name())),
                                  entry.name(), locale);
    addPart<ResourceIndexPage>(*context_, page({}, "resources", locale), locale);
}

void Plugin::addSchemaCopy() {
    const Configuration& configuration = context_->configuration;
    if (const auto path = pathOfSchemaCopy(configuration.openapiSchema, host().inputPath()))
        addPart<OpenAPISchemaFile>(context_->project, context_->project.createSourceFile(*path),
                                   host().inputPath());
}

void Plugin::addProjectFiles() {
    code_morph::astro::Project& project = context_->project;
    addPart<PackageJson>(*context_, project.packageJson());
    addPart<TypeScriptConfig>(*context_, project.tsConfig());
    addPart<AstroConfig>(*context_, project.astroConfig());
    addPart<TailwindConfig>(*context_, project.tailwindConfig());
}

SourceFile& Plugin::component(std::string_view folder, std::string_view name, const Locale& locale) {
    return context_->project.component(
        filePath({}, localeSegment(context_->configuration, locale), folder, name, false));
}

SourceFile& Plugin::component(std::string_view folder, std::string_view name, const Locale& locale,
                              const DocumentName& origin) {
    return createNamed(host(), origin, [&]() -> SourceFile& { return component(folder, name, locale); });
}

SourceFile& Plugin::page(std::string_view folder, std::string_view name, const Locale& locale) {
    return context_->project.page(
        filePath({}, localeSegment(context_->configuration, locale), folder, name, false));
}

SourceFile& Plugin::page(std::string_view folder, std::string_view name, const Locale& locale,
                         const DocumentName& origin) {
    return createNamed(host(), origin, [&]() -> SourceFile& { return page(folder, name, locale); });
}

DocumentName Plugin::nameOfOperation(const openapi::OperationRef& ref) const {
    if (const auto id = ref.operation->operationId())
        return {.kind = "Operation", .name = *id, .node = ref.operation, .member = "operationId"};
    return {.kind = "Path", .name = ref.path, .node = &document()->paths(), .member = ref.path};
}

DocumentName Plugin::nameOfSchema(std::string_view name) const {
    return {.kind = "Schema", .name = name, .node = &document()->components(), .member = "schemas"};
}

void Plugin::generateCode() {
    openapi_generator::Plugin::generateCode();
    context_->project.saveAll();
}

} // namespace specloom::openapi_generator::doc_html
