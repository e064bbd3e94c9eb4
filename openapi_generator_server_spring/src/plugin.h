#pragma once

#include "openapi/operation_ref.h"
#include "openapi_generator/operation_grouper.h"
#include "openapi_generator/plugin.h"

#include <memory> // std::unique_ptr
#include <vector> // std::vector

namespace specloom::openapi_generator::server_spring {

struct Context;
struct Group;
class SchemaVisitorHandler;
class Signatures;

/// Makes the skeleton of a Spring server in Java: for each group of operations a controller with a test, the
/// interface of a service and a class for that; records for the schemas; and an application class.
///
/// What the document has and Java cannot have becomes issues. With an Error among them the run ends with
/// their report, and writes nothing.
class Plugin final : public openapi_generator::Plugin {
  public:
    explicit Plugin(PluginRunner& host);
    ~Plugin() override;

    /// Throws what readConfiguration() throws.
    void configure(const jv::JV& root) override;
    void configureDefaults() override;

  protected:
    /// Throws std::invalid_argument "Invalid package name: '{}'".
    void configureSelf() override;
    void configureParts() override;
    /// Throws std::runtime_error "Invalid variable name", behind the report, when the document asks for a
    /// name that is none.
    void generateCode() override;

  private:
    void groupOperations();
    void addClasses(const Group& group, const std::vector<openapi::OperationRef>& operations);

    std::unique_ptr<Context> context_;
    std::unique_ptr<Signatures> signatures_;
    OperationGrouper grouper_;
    std::vector<Group> groups_; ///< of the grouper, in their order
};

} // namespace specloom::openapi_generator::server_spring
