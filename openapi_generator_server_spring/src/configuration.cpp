#include "openapi_generator_server_spring/configuration.h"

#include "code_morph_java/spring/names.h"
#include "configuration/section.h"

#include <algorithm> // std::find
#include <stdexcept> // std::runtime_error

namespace specloom::openapi_generator::server_spring {
namespace {

std::optional<std::string> packageNameAt(const configuration::Section& section, std::string_view key) {
    const std::optional<std::string_view> name = section.textIfString(key);
    if (name)
        code_morph::java::checkUsablePackageName(*name);
    return std::optional<std::string>(name);
}

void readControllerGrouping(const jv::JV& value, std::vector<GroupingCriterion>& criteria) {
    for (const std::string_view text :
         configuration::textsOf(value, "controller_grouping must be a string or an array")) {
        const GroupingCriterion criterion = parseGroupingCriterion(text);
        if (std::find(criteria.begin(), criteria.end(), criterion) != criteria.end())
            throw std::runtime_error("Element already exists");
        criteria.push_back(criterion);
    }
}

} // namespace

void readConfiguration(const jv::JV& root, Configuration& configuration,
                       std::vector<NameSource>& nameSources) {
    const configuration::Section section = configuration::pluginSection(root, "server_spring");
    configuration.packageName = packageNameAt(section, "package_name").value_or(configuration.packageName);
    configuration.webPackageNameSuffix = packageNameAt(section, "web_package_name_suffix");
    configuration.domainPackageNameSuffix = packageNameAt(section, "domain_package_name_suffix");
    configuration.skipDeprecated = section.boolean("skip_deprecated").value_or(configuration.skipDeprecated);
    configuration.skipDisabled = section.boolean("skip_disabled").value_or(configuration.skipDisabled);
    configuration.serviceClasses = section.boolean("service_classes").value_or(configuration.serviceClasses);
    configuration.controllerTests =
        section.boolean("controller_tests").value_or(configuration.controllerTests);
    if (const jv::JV* value = section.get("controller_grouping"))
        readControllerGrouping(*value, configuration.controllerGrouping);
    if (const jv::JV* value = section.get("action_naming"))
        readNameSources(*value, nameSources);
}

} // namespace specloom::openapi_generator::server_spring
