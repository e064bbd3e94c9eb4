#pragma once

#include "foundation/message.h"
#include "jv_schema/node.h"
#include "jv_schema/resource.h"
#include "jv_schema/schema.h"

#include <deque>         // std::deque
#include <map>           // std::map
#include <memory>        // std::shared_ptr, std::unique_ptr
#include <string>        // std::string
#include <string_view>   // std::string_view
#include <unordered_map> // std::unordered_map
#include <vector>        // std::vector

namespace specloom::jv::schema {

/// What a schema is compiled to, with all that its parts point to.
struct Program {
    const Node* root = nullptr;
    bool isDynamic = false; ///< whether a keyword asks which resources an evaluation went through
    std::deque<Node> nodes;
    std::deque<Resource> resources;
    std::unordered_map<const JV*, Place> places; ///< of all schemas that were seen
    std::deque<Place> ways;                      ///< to schemas that stand where no keyword holds one
    std::deque<Dialect> dialects;                ///< of meta-schemas that are not those of a draft
    std::vector<std::shared_ptr<const JV>> documents;
};

/// Compiles one schema. Input decides how deep schemas are, so it keeps a list of what is to be done and
/// recurses nowhere.
class Compiler {
  public:
    explicit Compiler(const CompileOptions& options);

    /// Throws CompileError.
    [[nodiscard]] std::shared_ptr<const Program> compile(const JV& schema);

    [[nodiscard]] bool assertsFormats() const noexcept { return options_.assertFormats; }
    /// The node of a schema that was seen, to be filled in later.
    [[nodiscard]] Node& nodeOf(const JV& schema) { return nodeOf(program_->places.at(&schema)); }
    [[nodiscard]] Node& nodeOf(Place& place);
    /// The same for the target of a reference.
    [[nodiscard]] Node& referredNodeOf(Place& place);
    /// The schema that a reference in `from` leads to. Throws CompileError.
    [[nodiscard]] Place& resolve(const Site& from, std::string_view reference);
    /// A number for the name of dynamic anchors; the nodes of all that have it will be there.
    [[nodiscard]] std::size_t dynamicName(std::string_view name);

  private:
    /// Enters the schema at `place` and all schemas below it.
    void scan(Place& place, std::string_view baseUri, const Dialect& fallback);
    void identify(Place& place, std::string_view baseUri, const Dialect& fallback);
    void nameAnchors(Place& place);
    void scanKeyword(const Place& parent, const KeywordEntry& entry, const JV& value);
    Place& enter(const JV& schema, const Place* parent, std::string_view keyword);

    [[nodiscard]] const Dialect& dialectOf(const Place& place, std::string_view metaSchema);
    [[nodiscard]] std::shared_ptr<const JV> findDocument(std::string_view uri) const;
    [[nodiscard]] Resource* findResource(const std::string& uri, const Dialect& fallback);
    [[nodiscard]] Place* atPointer(Resource& resource, std::string_view pointer);

    void compileWaiting();
    void compileNode(Node& node);
    void addDynamicNodes();
    void shortenAliases();

    const CompileOptions& options_;
    std::shared_ptr<Program> program_;
    std::map<std::string, Resource*, std::less<>> byUri_;
    std::map<std::string, const Dialect*, std::less<>> dialects_;
    std::map<std::string, std::size_t, std::less<>> dynamicNames_;
    std::vector<Node*> waiting_;
    std::vector<Place*> unscanned_;
};

/// A keyword about to be compiled.
struct Site {
    Compiler& compiler;
    const Place& place; ///< of the schema
    const JV& value;    ///< of the keyword
    std::string_view keyword;

    [[nodiscard]] const JV& schema() const noexcept { return *place.schema; }
    [[nodiscard]] const Dialect& dialect() const noexcept { return *place.resource->dialect; }
    /// Another keyword of the schema that the dialect knows, or null.
    [[nodiscard]] const JV* sibling(std::string_view name) const;
    /// The nodes of an array of schemas. Throws CompileError.
    [[nodiscard]] std::vector<const Node*> nodesOf(const JV& schemas) const;
    /// Throws CompileError unless the value is of a kind.
    void require(Kind kind) const;
    void require(const JV& value, Kind kind) const;
    [[noreturn]] void fault(const Message& message) const;
};

} // namespace specloom::jv::schema
