#pragma once

#include "jv/deser.h"
#include "openapi/read_result.h"

#include <functional>  // std::function
#include <memory>      // std::unique_ptr
#include <string_view> // std::string_view
#include <vector>      // std::vector

namespace specloom::openapi {

/// Turns a tree into document values: the reader's inverse for everything that the tree keeps.
///
/// Members stand in the writer's canonical order, extensions behind them in byte-wise order, unless the key
/// orders say otherwise. A document of the 3.0 family gets the schema keywords of OpenAPI 3.0 only.
class Writer {
  public:
    using NodeKeyOrder = std::function<std::vector<std::string_view>(const Node&)>;
    using FieldKeyOrder = std::function<std::vector<std::string_view>(const Node&, std::string_view key)>;

    /// The canonical order.
    Writer() = default;
    /// The keys of every object stand as in the source, and so do the names in `required`; keys that it did
    /// not have stand behind them. The result must outlive the writer.
    explicit Writer(const ReadResult& result);

    /// The order of the keys of a node's object, and of one of its members that is a map; of "required" in a
    /// schema that of the names. What the list does not name stays behind what it does.
    void setKeyOrders(NodeKeyOrder ofNode, FieldKeyOrder ofField);
    /// Write an `enum` of one value as `const`, except in a document of the 3.0 family. Off at first.
    void setConstFromEnum(bool value) { constFromEnum_ = value; }
    /// Write schemas that accept everything, or nothing, as booleans; in a document of the 3.0 family only
    /// `additionalProperties`. Off at first.
    void setBooleanSchemas(bool value) { booleanSchemas_ = value; }

    /// A document whose root is the object of `root`. References to what is no component are left out, since
    /// nothing could name them.
    [[nodiscard]] std::unique_ptr<jv::JVDocument> write(const OpenAPI& root) const;

  private:
    NodeKeyOrder keyOrderOfNode_;
    FieldKeyOrder keyOrderOfField_;
    const jv::JVDocument* valueSource_ = nullptr; ///< knows the key orders inside kept values
    bool constFromEnum_ = false;
    bool booleanSchemas_ = false;
};

/// Writes the tree of `result` with the key orders of its source, in the format of the path's extension. The
/// text is complete before the file is opened. Throws what jv::saveDocument() throws.
void writeFile(const ReadResult& result, std::string_view path);
/// Writes a tree in canonical order.
void writeTree(const OpenAPI& root, std::string_view path, jv::DocumentFormat format);

} // namespace specloom::openapi
