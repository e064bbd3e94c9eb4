#pragma once

#include "jv/jv.h"
#include "openapi/node.h"

#include <cstdint>       // std::uint8_t
#include <memory>        // std::unique_ptr
#include <string>        // std::string
#include <string_view>   // std::string_view
#include <unordered_map> // std::unordered_map
#include <vector>        // std::vector

namespace specloom::jv_generator {

/// A schema of an OpenAPI document, with all that it refers to, as JSON Schema of draft 2020-12:
///
///     {"$ref": "#/$defs/0", "$defs": {"0": ..., "1": ...}}
///
/// The schemas of OpenAPI 3.0 come in the words of 3.1: `nullable` is a type more, exclusive limits are
/// numbers, and what stands beside a `$ref` is left out. What says nothing of values is left out everywhere.
class JSONSchema {
  public:
    /// `schema` is a schema, or a reference to one, that was read from a document, which outlives the result.
    explicit JSONSchema(const openapi::Node& schema);

    /// What the root of the bundle says when there are several schemas.
    enum class Root : std::uint8_t {
        First,  ///< what the first schema says
        Members ///< of an object, that its member "0" fits "#/$defs/0", and so on
    };

    /// The same for several schemas of one document.
    explicit JSONSchema(const std::vector<const openapi::Node*>& schemas, Root root = Root::First);

    [[nodiscard]] const jv::JV& bundle() const noexcept { return *bundle_; }
    /// The schema itself, below `$defs`.
    [[nodiscard]] const jv::JV& root() const noexcept { return *definitions_->get("0"); }
    /// The `$ref` to a schema that was given.
    [[nodiscard]] const std::string& reference(const openapi::Node& schema) const {
        return references_.at(schema.source());
    }
    /// The member of Root::Members that is about a schema that was given.
    [[nodiscard]] std::string memberOf(const openapi::Node& schema) const {
        return memberOf(reference(schema));
    }
    /// Whether a format has a say in more than the text that it stands beside, as below `oneOf` or `not`,
    /// where not to have a format may be what counts.
    [[nodiscard]] bool formatsChoose() const noexcept { return formatsChoose_; }
    /// What a `$ref` of the bundle leads to.
    [[nodiscard]] const jv::JV& target(std::string_view reference) const;
    /// The value of the document that a schema of the bundle came from; null for other values.
    [[nodiscard]] const jv::JV* origin(const jv::JV& schema) const;
    /// The JSON pointer (RFC 6901) in the document of a place in the bundle, given by the fragment of its
    /// URI: that of the innermost schema around it.
    [[nodiscard]] std::string documentPointer(std::string_view fragment) const;
    /// The schema that stands at a JSON pointer in the bundle, or null.
    [[nodiscard]] const jv::JV* at(std::string_view pointer) const;

  private:
    friend class JSONSchemaBuilder;

    [[nodiscard]] static std::string memberOf(const std::string& reference) {
        return reference.substr(std::string_view("#/$defs/").size());
    }

    std::unique_ptr<jv::JV> bundle_;
    jv::JV* definitions_;
    bool formatsChoose_ = false;
    std::unordered_map<const jv::JV*, const jv::JV*> origins_;
    std::unordered_map<const jv::JV*, std::string> references_; ///< by the value in the document
};

} // namespace specloom::jv_generator
