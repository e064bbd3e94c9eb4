#pragma once

#include "jv/jv_document.h"
#include "openapi/openapi.h"
#include "openapi/schema_format.h"

#include <memory>        // std::shared_ptr, std::unique_ptr
#include <optional>      // std::optional
#include <string>        // std::string
#include <string_view>   // std::string_view
#include <unordered_map> // std::unordered_map
#include <utility>       // std::move
#include <vector>        // std::vector

namespace specloom::openapi {

/// A document as values and as a tree. The tree refers to the values, so both live and end together here.
class ReadResult {
  public:
    /// An empty tree beside `source`, which must have a root and stay as it is. The formats, to which schemas
    /// of the tree may refer, live as long as the result at least.
    ReadResult(std::unique_ptr<jv::JVDocument> source, std::shared_ptr<const SchemaFormatRegistry> formats);
    ReadResult(const ReadResult&) = delete;
    ReadResult& operator=(const ReadResult&) = delete;
    ~ReadResult();

    [[nodiscard]] const jv::JVDocument& source() const noexcept { return *source_; }
    [[nodiscard]] const SchemaFormatRegistry& formats() const noexcept { return *formats_; }
    [[nodiscard]] const OpenAPI& root() const noexcept { return *root_; }
    [[nodiscard]] OpenAPI& root() noexcept { return *root_; }

    /// The path of the input in UTF-8, where it came from a file.
    [[nodiscard]] const std::optional<std::string>& sourcePath() const noexcept {
        return source_->sourcePath();
    }
    void setSourcePath(std::string path) { source_->setSourcePath(std::move(path)); }

    /// Says that a value of the source stands elsewhere now, as after a repair of its text.
    void movePosition(const jv::JV& value, jv::Pos pos) noexcept { source_->movePos(value, pos); }

    /// Where the value stands that the node was read from.
    [[nodiscard]] jv::Location locationOf(const Node& node) const noexcept {
        return source_->locationOf(node.source());
    }
    /// The same of the node or, where that has no position, of the nearest one around it that has: booleans
    /// that stand for schemas have none. Without a position where there is no such node.
    [[nodiscard]] jv::Location nearestLocationOf(const Node& node) const;
    /// jv::Location::pointer() of the node.
    [[nodiscard]] std::string pointerOf(const Node& node) const { return locationOf(node).pointer(); }
    /// That of a member of the node, whether it is there or not; empty for a node that was made in code.
    [[nodiscard]] std::optional<std::string> pointerOf(const Node& node, std::string_view key) const;
    /// 1-based and counted in bytes for JSON, 0-based and counted in code points for YAML; unknown, with -1,
    /// for a node that was made in code.
    [[nodiscard]] jv::Pos positionOf(const Node& node) const { return locationOf(node).pos; }
    /// The keys of the source object, in their order; none for a node that was made in code. A path item that
    /// was renamed since has its new URL there.
    [[nodiscard]] std::vector<std::string_view> keyOrderOf(const Node& node) const;
    /// The same for a member of the source object that is a map of its own, such as "properties". For the
    /// definitions of a schema the key is "definitions" whichever of its names was used.
    [[nodiscard]] std::vector<std::string_view> keyOrderOf(const Node& node, std::string_view key) const;
    /// The node that was read from the value at a JSON pointer, or null. The first call makes a table of all
    /// nodes; nodes that are added or destroyed after it are not in it.
    [[nodiscard]] const Node* nodeAtPointer(std::string_view pointer) const;

  private:
    std::unique_ptr<jv::JVDocument> source_;
    std::shared_ptr<const SchemaFormatRegistry> formats_;
    std::unique_ptr<OpenAPI> root_; ///< behind what it refers to, so that it ends first
    mutable std::unordered_map<const jv::JV*, const Node*> nodesByValue_;
};

} // namespace specloom::openapi
