#pragma once

#include "jv/jv.h"
#include "openapi_generator/action_naming.h"
#include "openapi_generator/operation_grouper.h"

#include <optional> // std::optional
#include <string>   // std::string
#include <vector>   // std::vector

namespace specloom::openapi_generator::server_spring {

/// What is generated, and under which names.
struct Configuration {
    std::string packageName = "com.specloom";
    std::string packageVersion = "0.1.0";
    bool skipDeprecated = false;
    bool skipDisabled = false;
    std::vector<GroupingCriterion> controllerGrouping;
    std::optional<std::string> webPackageNameSuffix;    ///< behind packageName, for controllers
    std::optional<std::string> domainPackageNameSuffix; ///< behind packageName, for services and records
    bool serviceClasses = true;
    bool controllerTests = true;
};

/// Takes over the keys that "/commands/generate/server_spring" of a configuration has, and appends what
/// "action_naming" names to `nameSources`. Names of packages that are no strings are ignored. Throws
///   std::invalid_argument "Invalid package name: '{}'",
///   ConfigError "controller_grouping must be a string or an array",
///   std::runtime_error "Element already exists" for a criterion that is named twice,
/// and what parseGroupingCriterion(), readNameSources() and Section throw.
void readConfiguration(const jv::JV& root, Configuration& configuration,
                       std::vector<NameSource>& nameSources);

} // namespace specloom::openapi_generator::server_spring
