#include "openapi_generator_server_spring/class_naming.h"

#include "code_morph_java/spring/names.h"

#include <algorithm> // std::binary_search, std::is_sorted
#include <array>     // std::to_array
#include <optional>  // std::optional
#include <utility>   // std::move

#include <fmt/core.h>

namespace specloom::openapi_generator::server_spring {
namespace {

using code_morph::java::classOf;
using code_morph::java::packageOf;
using code_morph::java::toClassName;

/// What templates and annotations name without a package.
constexpr auto namesOfTemplates = std::to_array<std::string_view>({
    "AfterAll",       "AfterEach",  "AssertFalse",  "AssertTrue",        "BeforeAll",
    "BeforeEach",     "Boolean",    "CookieValue",  "DeleteMapping",     "Disabled",
    "Double",         "GetMapping", "HeadMapping",  "Integer",           "JsonProperty",
    "List",           "Max",        "Min",          "NotNull",           "Object",
    "OptionsMapping", "Override",   "PatchMapping", "PathVariable",      "Pattern",
    "PostMapping",    "PutMapping", "RequestBody",  "RequestHeader",     "RequestParam",
    "RestController", "Service",    "Size",         "SpringApplication", "SpringBootApplication",
    "String",         "Test",       "TraceMapping",
});
static_assert(std::is_sorted(namesOfTemplates.begin(), namesOfTemplates.end()));

std::string withSuffix(const std::string& package, const std::optional<std::string>& suffix) {
    return suffix ? package + "." + *suffix : package;
}

ClassPlan elementPlan(const ElementNames& names, const openapi::Node& element, std::string_view status,
                      const openapi::Schema* schema, std::string_view kind) {
    if (const auto key = openapi::documentOf(element).components().nameOf(&element))
        return sharedDtoName(names.configuration, *key);
    const std::string phrase =
        fmt::format("{} {} {} {}", names.operation.operationId().value_or(""), status,
                    schema == nullptr ? std::string_view() : schema->title().value_or(""), kind);
    return {.package = domainPackage(names.configuration, names.group), .name = toClassName(phrase)};
}

} // namespace

Group GroupNames::groupOf(std::string_view name) {
    const std::string part = code_morph::java::toPackagePart(name);
    const std::string taken = packageParts_.take(part);
    return {taken, toClassName(name, "Root").append(taken, part.size())};
}

std::string webPackage(const Configuration& configuration) {
    return withSuffix(configuration.packageName, configuration.webPackageNameSuffix);
}

std::string domainPackage(const Configuration& configuration) {
    return withSuffix(configuration.packageName, configuration.domainPackageNameSuffix);
}

std::string webPackage(const Configuration& configuration, const Group& group) {
    return fmt::format("{}.{}", webPackage(configuration), group.packagePart);
}

std::string domainPackage(const Configuration& configuration, const Group& group) {
    return fmt::format("{}.{}", domainPackage(configuration), group.packagePart);
}

std::string sharedPackage(const Configuration& configuration) {
    return fmt::format("{}.shared", domainPackage(configuration));
}

std::string applicationClassName(const Configuration& configuration) {
    return fmt::format("{}.Application", configuration.packageName);
}

std::string controllerClassName(const Configuration& configuration, const Group& group) {
    return fmt::format("{}.{}Controller", webPackage(configuration, group), group.classPrefix);
}

std::string controllerTestClassName(const Configuration& configuration, const Group& group) {
    return fmt::format("{}.{}ControllerTest", webPackage(configuration, group), group.classPrefix);
}

std::string serviceInterfaceName(const Configuration& configuration, const Group& group) {
    return fmt::format("{}.{}Service", domainPackage(configuration, group), group.classPrefix);
}

std::string serviceClassName(const Configuration& configuration, const Group& group) {
    return fmt::format("{}.{}ServiceImpl", domainPackage(configuration, group), group.classPrefix);
}

const openapi::Node* schemaNodeOf(const openapi::Parameter& parameter) {
    const openapi::MediaType* content = parameter.value().mediaType();
    return content != nullptr ? content->schemaNode() : parameter.value().schemaNode();
}

ClassPlan paramDtoName(const ElementNames& names, const openapi::Parameter& parameter) {
    return elementPlan(names, parameter, "", openapi::resolveTo<openapi::Schema>(schemaNodeOf(parameter)),
                       "ParamDTO");
}

ClassPlan requestDtoName(const ElementNames& names, const openapi::RequestBody& body,
                         const openapi::MediaType& mediaType) {
    return elementPlan(names, body, "", mediaType.schema(), "RequestDTO");
}

ClassPlan responseDtoName(const ElementNames& names, const openapi::Response& response,
                          std::string_view status, const openapi::MediaType& mediaType) {
    return elementPlan(names, response, status, mediaType.schema(), "ResponseDTO");
}

ClassPlan sharedDtoName(const Configuration& configuration, std::string_view key) {
    return {sharedPackage(configuration) + ".dto", toClassName(key), true};
}

void ClassNames::reserve(std::string_view qualifiedName) {
    holders_[std::string(classOf(qualifiedName))].packages.emplace(packageOf(qualifiedName));
}

std::string ClassNames::take(const ClassPlan& plan) {
    std::string name = plan.name;
    if (isTaken(plan, name)) {
        std::size_t& number = lastNumbers_.try_emplace(plan.package + "." + plan.name, 1).first->second;
        do
            name = fmt::format("{}{}", plan.name, ++number);
        while (isTaken(plan, name));
    }
    Holders& holders = holders_[name];
    holders.packages.insert(plan.package);
    holders.isSeenEverywhere = holders.isSeenEverywhere || plan.isSeenEverywhere;
    return plan.package + "." + name;
}

bool ClassNames::isTaken(const ClassPlan& plan, std::string_view name) const {
    if (std::binary_search(namesOfTemplates.begin(), namesOfTemplates.end(), name))
        return true;
    const auto found = holders_.find(name);
    return found != holders_.end() && (plan.isSeenEverywhere || found->second.isSeenEverywhere ||
                                       found->second.packages.contains(plan.package));
}

} // namespace specloom::openapi_generator::server_spring
