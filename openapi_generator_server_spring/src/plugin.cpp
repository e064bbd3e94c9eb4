#include "openapi_generator_server_spring/plugin.h"

#include "code_morph_java/spring/names.h"
#include "openapi/node_visitor.h"
#include "openapi_generator/plugin_runner.h"
#include "openapi_generator_server_spring/named_type.h"
#include "openapi_generator_server_spring/schema_visitor_handler.h"

#include <stdexcept>     // std::runtime_error
#include <unordered_map> // std::unordered_map

namespace specloom::openapi_generator::server_spring {
namespace {

/// Tells the handler of what several groups have.
void noteShared(const OperationGrouper::Groups& groups, SchemaVisitorHandler& handler) {
    std::unordered_map<const openapi::Node*, const std::string*> groupOf;
    const auto note = [&](const openapi::Node* node, const std::string& group) {
        if (groupOf.try_emplace(node, &group).first->second != &group)
            handler.share(*node);
    };
    for (const auto& [name, operations] : groups)
        for (const openapi::OperationRef& ref : operations) {
            note(ref.operation, name);
            note(ref.pathItem, name);
        }
}

/// The position of the node or, where it has none, as a boolean in place of a schema, of what it stands in.
jv::Pos nearestPos(const PluginRunner& host, const openapi::Node& node) {
    jv::Pos pos = host.nodePos(node);
    for (const openapi::Node* around = node.parent(); !pos.isKnown() && around != nullptr;
         around = around->parent())
        pos = host.nodePos(*around);
    return pos;
}

} // namespace

Plugin::Plugin(PluginRunner& host)
    : openapi_generator::Plugin(host), context_(std::make_unique<Context>(host.fileSystem())),
      signatures_(std::make_unique<Signatures>(*context_)) {
    setPackage("com.specloom", "0.1.0");
}

Plugin::~Plugin() = default;

void Plugin::configure(const jv::JV& root) {
    readConfiguration(root, context_->configuration, context_->nameSources);
}

void Plugin::configureDefaults() {
    context_->configuration.packageName = packageName();
    context_->configuration.packageVersion = packageVersion();
    context_->configuration.controllerGrouping = {GroupingCriterion::Tag};
}

void Plugin::configureSelf() {
    code_morph::java::checkUsablePackageName(packageName());
    context_->project.setRootPath(outputPath());
    context_->document = document();
    context_->configuration.packageName = packageName();
    context_->configuration.packageVersion = packageVersion();
    context_->nodePos = [this](const openapi::Node& node) { return nearestPos(host(), node); };
}

void Plugin::configureParts() {
    groupOperations();
    addPart<AppClass>(*context_, context_->project.mainClass(applicationClassName(context_->configuration)));
    SchemaVisitorHandler handler(
        *context_, [this](const openapi::Schema& schema, const std::string& qualifiedName) {
            addPart<NamedType>(*context_, context_->project.mainClass(qualifiedName), schema, qualifiedName);
        });
    const Configuration& configuration = context_->configuration;
    for (const Group& group : groups_)
        for (const std::string& name :
             {serviceInterfaceName(configuration, group), serviceClassName(configuration, group),
              controllerClassName(configuration, group), controllerTestClassName(configuration, group)})
            handler.reserve(name);
    handler.reserveComponents();
    noteShared(grouper_.groups(), handler);
    openapi::NodeVisitor visitor(handler);
    auto group = groups_.begin();
    for (const auto& [name, operations] : grouper_.groups()) {
        addClasses(*group, operations);
        handler.enter(*group);
        for (const openapi::OperationRef& ref : operations)
            visitor.visit(*ref.operation);
        handler.finish();
        ++group;
    }
}

void Plugin::groupOperations() {
    const Configuration& configuration = context_->configuration;
    grouper_.setSkipDeprecated(configuration.skipDeprecated);
    grouper_.setSkipDisabled(configuration.skipDisabled);
    for (const GroupingCriterion criterion : configuration.controllerGrouping)
        grouper_.addCriterion(criterion);
    grouper_.group(*context_->document);
    for (const openapi::OperationRef& ref : grouper_.ungrouped())
        context_->addIssue(IssueSeverity::Error,
                           formatMessage("Operation {} '{}' could not be grouped",
                                         openapi::operationKey(ref.method), ref.path),
                           *ref.operation);
    GroupNames names;
    for (const auto& [name, operations] : grouper_.groups())
        groups_.push_back(names.groupOf(name));
}

void Plugin::addClasses(const Group& group, const std::vector<openapi::OperationRef>& operations) {
    const Configuration& configuration = context_->configuration;
    code_morph::java::Project& project = context_->project;
    const GroupScope scope = {*context_, *signatures_, group, operations};
    const std::string interfaceName = serviceInterfaceName(configuration, group);
    addPart<ServiceInterface>(scope, project.mainClass(interfaceName));
    if (configuration.serviceClasses)
        addPart<ServiceClass>(scope, project.mainClass(serviceClassName(configuration, group)),
                              interfaceName);
    addPart<Controller>(scope, project.mainClass(controllerClassName(configuration, group)), interfaceName);
    if (configuration.controllerTests)
        addPart<ControllerTest>(scope, project.testClass(controllerTestClassName(configuration, group)));
}

void Plugin::generateCode() {
    if (context_->hasErrors()) {
        reportIssues(context_->issues);
        if (context_->hasIssue(IssueSeverity::Fatal))
            throw std::runtime_error("Invalid variable name");
        return;
    }
    context_->recordCycles.find();
    openapi_generator::Plugin::generateCode();
    context_->project.saveAll();
}

} // namespace specloom::openapi_generator::server_spring
