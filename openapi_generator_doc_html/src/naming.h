#pragma once

#include "foundation/text_tables.h"
#include "openapi/openapi.h"
#include "openapi/operation_ref.h"

#include <cstddef>     // std::size_t
#include <string>      // std::string
#include <string_view> // std::string_view
#include <vector>      // std::vector

// What the artefacts of a site are called. The functions give the names that operations, schemas and tags ask
// for; DocumentNames gives each one of its own.
namespace specloom::openapi_generator::doc_html {

/// The operation's id in Pascal case or else its path, "_" and its method, with "_" for each "/", "{" and
/// "}".
[[nodiscard]] std::string operationKey(const openapi::OperationRef& ref);
/// The name of a schema with "_" for each "/", blank and ".".
[[nodiscard]] std::string schemaKey(std::string_view name);

// Anchors have "_" in the same places as the keys.

/// "operation_{method}/{path}"
[[nodiscard]] std::string operationAnchor(const openapi::OperationRef& ref);
/// "resource_{}" of schemaKey().
[[nodiscard]] std::string resourceAnchor(std::string_view name);
/// "tag_{}" of the tag in snake case.
[[nodiscard]] std::string tagAnchor(std::string_view tag);

/// The key as a name of a file: UTF-8, with "_" for control characters, for what a path cannot have where
/// modules are imported by URLs ("?", "*", "#"), and for what Astro writes into JSON without escaping it
/// (`"`, "\").
[[nodiscard]] std::string toFileName(std::string_view key);
/// What may stand behind the first sign of an identifier of JavaScript: the key with "_" for each sign but
/// ASCII letters, digits and "_". Of "$" Astro's check makes the end of a component's name.
[[nodiscard]] std::string toSymbol(std::string_view key);

/// The names of an operation or a schema.
struct ArtefactNames {
    std::string key;    ///< of the files of its components
    std::string symbol; ///< behind the kind of component, as "Operation_{}"
    std::string anchor; ///< of its place on a page that it shares
    std::string page;   ///< of the file of its own page, if it has one
};

/// The names of a tag.
struct TagNames {
    std::string anchor;
    std::string page;
};

/// The names of all operations, schemas and tags of a document. What would fall together is numbered from 2,
/// in the order of the document: no two have one file, one symbol or one anchor.
class DocumentNames {
  public:
    explicit DocumentNames(const openapi::OpenAPI& document);

    /// In the order of openapi::operationsOf().
    [[nodiscard]] const std::vector<openapi::OperationRef>& operations() const noexcept {
        return operations_;
    }

    [[nodiscard]] const ArtefactNames& of(const openapi::OperationRef& ref) const {
        return operationNames_[indexOf(ref)];
    }
    /// Its place in operations().
    [[nodiscard]] std::size_t indexOf(const openapi::OperationRef& ref) const;
    /// Of a schema of the components.
    [[nodiscard]] const ArtefactNames& ofSchema(std::string_view name) const { return schemas_.at(name); }
    /// Of a declared tag.
    [[nodiscard]] const TagNames& ofTag(std::string_view name) const { return tags_.at(name); }

  private:
    void nameOperations();
    void nameSchemas(const openapi::OpenAPI& document);
    void nameTags(const openapi::OpenAPI& document);

    std::vector<openapi::OperationRef> operations_;
    std::vector<ArtefactNames> operationNames_; ///< beside operations_
    TextViewMap<std::size_t> firstOfPath_;      ///< in operations_, by path
    TextViewMap<ArtefactNames> schemas_;
    TextViewMap<TagNames> tags_;
};

} // namespace specloom::openapi_generator::doc_html
