#pragma once

#include "openapi/node_visit_handler.h"
#include "openapi_generator_server_spring/context.h"

#include <functional>    // std::function
#include <string>        // std::string
#include <string_view>   // std::string_view
#include <unordered_map> // std::unordered_map
#include <unordered_set> // std::unordered_set
#include <utility>       // std::move
#include <vector>        // std::vector

namespace specloom::openapi_generator::server_spring {

/// What a walk over operations does to their schemas: records a Java type for each schema that the code
/// names, and gives a class to each that needs one.
///
/// Schemas below others that the code names no type of, such as those of `not`, have none.
class SchemaVisitorHandler final : public openapi::NodeVisitHandler {
  public:
    /// Called with each schema that gets a class, and the qualified name of that.
    using AddClass = std::function<void(const openapi::Schema& schema, const std::string& qualifiedName)>;

    /// The context outlives the handler.
    SchemaVisitorHandler(Context& context, AddClass addClass)
        : context_(&context), addClass_(std::move(addClass)) {}

    /// Takes the names of classes that do not stand for schemas.
    void reserve(std::string_view qualifiedName) { classNames_.reserve(qualifiedName); }
    /// Takes the names of the classes of `components`, so that these keep them when a schema within another
    /// would be called alike.
    void reserveComponents();
    /// To be called before the operations of a group are walked. `group` outlives that walk.
    void enter(const Group& group) { group_ = &group; }
    /// Notes an operation that several groups have, and a path item of which several have operations: from
    /// all of these the classes of their elements are seen.
    void share(const openapi::Node& node) { sharedNodes_.insert(&node); }
    /// To be called behind the walk of a group: resolves lists. Those that hold themselves, or lists nested
    /// beyond what a compiler takes, become lists of Object, and standard output says so.
    void finish();

    using NodeVisitHandler::visit;
    void visit(const openapi::Operation& operation) override { operation_ = &operation; }
    void visit(const openapi::Parameter& parameter) override;
    void visit(const openapi::RequestBody& body) override;
    void visit(const openapi::Responses& responses) override;
    void visit(const openapi::Response& response) override;
    void visit(const openapi::Schema& schema) override;

  private:
    [[nodiscard]] ElementNames elementNames() const {
        return {context_->configuration, *group_, *operation_};
    }
    /// Plans a class for an inline schema; a schema behind a reference has a plan of its own.
    void planClass(const openapi::Node* schema, const ClassPlan& plan);
    void planElement(const openapi::Node& element, const openapi::Node* schema, ClassPlan plan);
    void planBelow(const openapi::Schema& schema, const ClassPlan& owner);
    void planMembers(const openapi::NodeList& members, const ClassPlan& owner);
    void planProperties(const openapi::Schema& schema, const ClassPlan& owner);
    void setType(SchemaTypeInfo& info, ClassPlan& plan);
    void setClass(SchemaTypeInfo& info, ClassPlan& plan);
    void resolveList(SchemaTypeInfo& list) const;

    struct List {
        SchemaTypeInfo* info;
        std::string name;
    };

    Context* context_;
    AddClass addClass_;
    ClassNames classNames_;
    std::unordered_map<const openapi::Node*, std::string> componentNames_;
    const Group* group_ = nullptr;
    const openapi::Operation* operation_ = nullptr;
    std::unordered_set<const openapi::Node*> sharedNodes_;
    std::unordered_map<const openapi::Node*, std::string_view> statuses_;
    std::unordered_map<const openapi::Node*, ClassPlan> plans_;
    std::vector<List> lists_; ///< of the group
};

} // namespace specloom::openapi_generator::server_spring
